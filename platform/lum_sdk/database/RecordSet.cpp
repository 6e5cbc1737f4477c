#include "lum_sdk/database/RecordSet.h"

#include <algorithm>

std::size_t RecordSet::size() const
{
    return m_columns.empty() ? 0 : m_ends.size() / m_columns.size();
}

void RecordSet::reset(std::vector<std::string> columns)
{
    m_columns = std::move(columns);
    m_text.clear();
    m_ends.clear();
    m_nulls.clear();
}

void RecordSet::add(std::string_view text)
{
    m_text.append(text);
    m_ends.push_back(m_text.size());
    m_nulls.push_back(false);
}

void RecordSet::addNull()
{
    m_ends.push_back(m_text.size());
    m_nulls.push_back(true);
}

std::string_view RecordSet::cell(std::size_t row, std::size_t column) const
{
    const std::size_t index = row * m_columns.size() + column;
    const std::size_t start = index == 0 ? 0 : m_ends[index - 1];
    return std::string_view(m_text).substr(start, m_ends[index] - start);
}

bool RecordSet::isNull(std::size_t row, std::size_t column) const
{
    return m_nulls[row * m_columns.size() + column];
}

std::optional<std::string_view> RecordSet::Row::find(std::string_view key) const
{
    const auto& columns = m_records.m_columns;
    const auto place = std::find(columns.begin(), columns.end(), key);
    const auto column = static_cast<std::size_t>(place - columns.begin());
    if (place == columns.end() || m_records.isNull(m_index, column))
        return std::nullopt;
    return m_records.cell(m_index, column);
}

std::size_t RecordSet::Row::size() const
{
    return m_records.m_columns.size();
}

std::string_view RecordSet::Row::keyAt(std::size_t index) const
{
    return m_records.m_columns[index];
}

std::string_view RecordSet::Row::valueAt(std::size_t index) const
{
    return m_records.cell(m_index, index);
}
