#include "model/RecordTexts.h"

#include <charconv>

void RecordTexts::clear()
{
    m_size = 0;
    m_free = m_buffer.data();
}

void RecordTexts::add(std::string_view text)
{
    m_values[m_size++] = text;
}

void RecordTexts::addInteger(std::int64_t value)
{
    addUpTo(std::to_chars(m_free, m_free + basalt::kFixedSize, value).ptr);
}

void RecordTexts::addFixed(double value, int decimals)
{
    addUpTo(basalt::writeFixed(m_free, value, decimals));
}

void RecordTexts::addGeneral(double value)
{
    addUpTo(std::to_chars(m_free, m_free + basalt::kFixedSize, value, std::chars_format::general, 6)
                .ptr);
}

void RecordTexts::addUpTo(const char* end)
{
    add({m_free, static_cast<std::size_t>(end - m_free)});
    m_free += end - m_free;
}
