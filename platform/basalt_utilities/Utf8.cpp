#include "basalt_utilities/Utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace basalt {

namespace {

/// One row of the table: for first bytes from `first` to `last`, how many bytes follow and the
/// range of the second one. All further bytes lie in 0x80 to 0xBF.
struct Sequence
{
    std::uint8_t first, last, following, lowestSecond, highestSecond;
};

// The Unicode Standard, table 3-7.
constexpr Sequence kSequences[] = {{0xC2, 0xDF, 1, 0x80, 0xBF}, {0xE0, 0xE0, 2, 0xA0, 0xBF},
                                   {0xE1, 0xEC, 2, 0x80, 0xBF}, {0xED, 0xED, 2, 0x80, 0x9F},
                                   {0xEE, 0xEF, 2, 0x80, 0xBF}, {0xF0, 0xF0, 3, 0x90, 0xBF},
                                   {0xF1, 0xF3, 3, 0x80, 0xBF}, {0xF4, 0xF4, 3, 0x80, 0x8F}};

constexpr std::size_t kStride = 32;

bool areAscii(const char* bytes)
{
    std::uint64_t words[kStride / 8];
    std::memcpy(words, bytes, sizeof words);
    return ((words[0] | words[1] | words[2] | words[3]) & 0x8080808080808080U) == 0;
}

/// The bytes of the first character of `text`, which is not ASCII; 0 when it is malformed.
std::size_t sequenceSize(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    for (const Sequence& sequence : kSequences) {
        if (byte(0) < sequence.first || byte(0) > sequence.last)
            continue;
        if (text.size() <= sequence.following || byte(1) < sequence.lowestSecond ||
            byte(1) > sequence.highestSecond)
            return 0;
        for (std::size_t i = 2; i <= sequence.following; ++i) {
            if ((byte(i) & 0xC0U) != 0x80U)
                return 0;
        }
        return std::size_t(sequence.following) + 1;
    }
    return 0;
}

} // namespace

bool isUtf8(std::string_view text)
{
    Utf8Count count;
    countUtf8(text, count);
    return count.faults == 0;
}

void countUtf8(std::string_view text, Utf8Count& count)
{
    std::size_t i = 0;
    while (i < text.size()) {
        if (text.size() - i >= kStride && areAscii(text.data() + i)) {
            i += kStride;
        } else if (static_cast<std::uint8_t>(text[i]) < 0x80U) {
            ++i;
        } else {
            const std::size_t size = sequenceSize(text.substr(i));
            ++(size == 0 ? count.faults : count.characters);
            i += size == 0 ? 1 : size;
        }
    }
}

} // namespace basalt
