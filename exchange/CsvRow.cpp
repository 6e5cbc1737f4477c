#include "exchange/CsvRow.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/LocalTimes.h"
#include "exchange/AngleText.h"

#include <algorithm>
#include <charconv>

void CsvRow::addText(std::string_view text)
{
    char* const from = room(text.size() + 1);
    char* const to = std::copy(text.begin(), text.end(), from);
    std::replace_if(
        from, to, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    endField(to);
}

void CsvRow::addInteger(std::int64_t value)
{
    char* const to = room(basalt::kFixedSize);
    endField(std::to_chars(to, to + basalt::kFixedSize, value).ptr);
}

void CsvRow::addFixed(double value, int decimals)
{
    endField(basalt::writeFixed(room(basalt::kFixedSize + 1), value, decimals));
}

void CsvRow::addGeneral(double value)
{
    char* const to = room(basalt::kFixedSize);
    endField(std::to_chars(to, to + basalt::kFixedSize, value, std::chars_format::general, 6).ptr);
}

void CsvRow::addAngle(const AngleText& angles, double degrees)
{
    endField(angles.write(room(AngleText::kMostSize + 1), degrees));
}

void CsvRow::addTime(basalt::LocalTimes& times, std::int64_t milliseconds)
{
    endField(times.write(room(basalt::LocalTimes::kTextSize + 1), milliseconds));
}

std::string_view CsvRow::finished()
{
    if (m_size == 0)
        room(++m_size);
    m_buffer[m_size - 1] = '\n'; // replaces the comma behind the last field
    return {m_buffer.data(), m_size};
}

char* CsvRow::room(std::size_t size)
{
    if (m_buffer.size() < m_size + size)
        m_buffer.resize((m_size + size) * 2);
    return m_buffer.data() + m_size;
}

void CsvRow::endField(const char* end)
{
    m_size = static_cast<std::size_t>(end - m_buffer.data());
    m_buffer[m_size++] = ',';
}
