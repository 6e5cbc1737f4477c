#pragma once

#include "basalt_utilities/PlainDecimal.h"

#include <QString>

#include <cstring>
#include <string_view>

/// The fields of a line, one after the other. Empty fields count; an empty line has one.
class CsvFields
{
public:
    explicit CsvFields(std::string_view line) : m_next(line.data()), m_end(m_next + line.size()) {}

    /// \returns false behind the last field, with an empty `field`
    bool next(std::string_view& field)
    {
        field = {};
        if (m_isDone)
            return false;
        const auto size = static_cast<std::size_t>(m_end - m_next);
        const void* const comma = size == 0 ? nullptr : std::memchr(m_next, ',', size);
        m_isDone = comma == nullptr;
        const char* const end = m_isDone ? m_end : static_cast<const char*>(comma);
        field = {m_next, static_cast<std::size_t>(end - m_next)};
        m_next = m_isDone ? m_end : end + 1;
        return true;
    }

    /// Takes the next field when it is a plain number; otherwise answers false and stays before it.
    bool nextNumber(double& value)
    {
        const char* c = m_next;
        double number = 0;
        if (m_isDone || !basalt::takePlainDecimal(c, m_end, number) || (c != m_end && *c != ','))
            return false;
        value = number;
        m_isDone = c == m_end;
        m_next = m_isDone ? m_end : c + 1;
        return true;
    }

    [[nodiscard]] bool isDone() const { return m_isDone; }

    /// What stands behind the last comma that was passed.
    [[nodiscard]] std::string_view rest() const
    {
        return {m_next, static_cast<std::size_t>(m_end - m_next)};
    }

private:
    const char* m_next;
    const char* m_end;
    bool m_isDone = false;
};

/// Without the blanks of Unicode, such as the wide one of Chinese texts, too.
[[nodiscard]] std::string_view withoutWideBlanks(std::string_view text);

/// Without the blanks around it; inline, since a large file has ten million fields.
[[nodiscard]] inline std::string_view withoutBlanks(std::string_view text)
{
    const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    const bool mayHaveWide = !text.empty() && (text.front() < 0 || text.back() < 0);
    return mayHaveWide ? withoutWideBlanks(text) : text;
}

/// The field with this number, counted from 1; empty when there are fewer.
[[nodiscard]] std::string_view fieldAt(std::string_view line, std::size_t number);

/// The beginning of a text for a message, with blanks for tabs and without unprintable characters.
[[nodiscard]] QString shownField(std::string_view field);

// What a line has instead of the fields that an import expects, in whole sentences.

/// \param rest what stands behind the `count` fields that are read
[[nodiscard]] QString surplusText(std::size_t count, std::string_view rest);
[[nodiscard]] QString otherSeparator(char separator);
[[nodiscard]] QString zeroBytes();
