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

private:
    const char* m_next;
    const char* m_end;
    bool m_isDone = false;
};

/// The beginning of a field for a message, without unprintable characters.
[[nodiscard]] QString shownField(std::string_view field);
