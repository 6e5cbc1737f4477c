#include "basalt_utilities/KeyList.h"

#include "basalt_utilities/ILogger.h"

namespace {

/// Reads one key list from front to back; `m_rest` is what has not been read yet.
class KeyListReader
{
public:
    KeyListReader(IDictionary& target, std::string_view text, char mark, char separator, char quote)
        : m_target(target), m_text(text), m_rest(text), m_mark(mark), m_separator(separator),
          m_quote(quote)
    {
    }

    bool read()
    {
        while (!m_rest.empty())
            readItem();
        return m_wellFormed;
    }

private:
    void readItem()
    {
        const std::size_t end = m_rest.find(m_separator);
        const std::size_t mark = m_rest.substr(0, end).find(m_mark);
        if (mark == std::string_view::npos) {
            if (!basalt::trimmed(next_word3(m_rest, m_separator)).empty())
                report("an item without a mark between key and value");
            return;
        }
        const std::string_view key = basalt::trimmed(m_rest.substr(0, mark));
        m_rest.remove_prefix(mark + 1);
        const std::string_view value = !m_rest.empty() && m_rest.front() == m_quote
                                           ? quotedValue()
                                           : next_word3(m_rest, m_separator);
        if (key.empty())
            report("a value without a key");
        else
            m_target.set(key, value);
    }

    std::string_view quotedValue()
    {
        const std::size_t close = m_rest.find(m_quote, 1);
        const bool doubled = close + 1 < m_rest.size() && m_rest[close + 1] == m_quote;
        if (close != std::string_view::npos && !doubled) { // nothing to unescape: no copy
            const std::string_view value = m_rest.substr(1, close - 1);
            m_rest.remove_prefix(close + 1);
            dropToSeparator();
            return value;
        }
        return unescapedValue();
    }

    std::string_view unescapedValue()
    {
        m_unescaped.clear();
        for (std::size_t i = 1; i < m_rest.size(); ++i) {
            if (m_rest[i] == m_quote) {
                if (i + 1 == m_rest.size() || m_rest[i + 1] != m_quote) {
                    m_rest.remove_prefix(i + 1);
                    dropToSeparator();
                    return m_unescaped;
                }
                ++i;
            }
            m_unescaped += m_rest[i];
        }
        report("a quoted value without its closing quote");
        m_rest = {};
        return m_unescaped;
    }

    void dropToSeparator()
    {
        if (!basalt::trimmed(next_word3(m_rest, m_separator)).empty())
            report("text behind a closing quote");
    }

    void report(std::string_view fault)
    {
        if (!m_wellFormed) // once a list: a wrong file would fill the log
            return;
        m_wellFormed = false;
        constexpr std::size_t kShown = 200;
        std::string line = "Key list with ";
        line.append(fault).append(": ").append(m_text.substr(0, kShown));
        if (m_text.size() > kShown)
            line += "...";
        basalt::logWarning(line);
    }

    IDictionary& m_target;
    std::string_view m_text;
    std::string_view m_rest;
    char m_mark;
    char m_separator;
    char m_quote;
    bool m_wellFormed = true;
    std::string m_unescaped;
};

} // namespace

bool csa_to_dictionary(IDictionary& dictionary, std::string_view text, char mark, char separator,
                       char quote)
{
    return KeyListReader(dictionary, text, mark, separator, quote).read();
}

std::string dictionary_to_csa(const IDictionary& dictionary, char mark, char separator, char quote)
{
    std::string text;
    for (std::size_t i = 0; i < dictionary.size(); ++i) {
        if (i > 0)
            text += separator;
        text.append(dictionary.keyAt(i));
        text += mark;
        text += basalt::quotedValue(dictionary.valueAt(i), separator, quote);
    }
    return text;
}

std::string_view next_word3(std::string_view& rest, char separator)
{
    const std::size_t end = rest.find(separator);
    const std::string_view word = rest.substr(0, end);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
    return word;
}

namespace basalt {

std::string quotedValue(std::string_view value, char separator, char quote)
{
    const bool holdsSeparator = value.find(separator) != std::string_view::npos;
    if (!holdsSeparator && (value.empty() || value.front() != quote))
        return std::string(value);
    std::string quoted(1, quote);
    for (const char c : value) {
        if (c == quote)
            quoted += quote;
        quoted += c;
    }
    quoted += quote;
    return quoted;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

} // namespace basalt
