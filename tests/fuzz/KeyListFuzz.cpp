#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "Hold.h"

#include <cstdint>

namespace {

struct Form
{
    char mark, separator, quote;
};

constexpr Form kForms[] = {{'=', ',', '"'}, {'=', ' ', '"'},  {':', ';', '\''},
                           {'=', '&', '"'}, {'=', '\n', '"'}, {':', '\t', '|'}};

void comesBack(const IDictionary& written, const Form& form)
{
    const auto& [mark, separator, quote] = form;
    const std::string text = dictionary_to_csa(written, mark, separator, quote);
    basalt::Dictionary read;
    hold(csa_to_dictionary(read, text, mark, separator, quote), "what was written is well formed");
    holdSame(read, written, "what was written reads back");
}

void wordsMakeUpTheText(std::string_view text, char separator)
{
    std::string joined;
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::string_view word = next_word3(rest, separator);
        hold(word.find(separator) == std::string_view::npos, "a word holds no separator");
        joined.append(word);
        if (joined.size() < text.size())
            joined += separator;
    }
    hold(joined == text, "the words and their separators are the text");
}

} // namespace

/// The first byte chooses the form of the list, the rest is the list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const Form& form = kForms[data[0] % std::size(kForms)];
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);

    // A key from a list is not empty and has no mark, separator or outer blanks, so it can be
    // written.
    basalt::Dictionary read;
    csa_to_dictionary(read, text, form.mark, form.separator, form.quote);
    comesBack(read, form);

    basalt::Dictionary anyValue; // once in the middle, once at the end
    anyValue.set("first", text);
    anyValue.set("last", text);
    comesBack(anyValue, form);

    wordsMakeUpTheText(text, form.separator);
    return 0;
}
