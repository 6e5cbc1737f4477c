#include "project/edits/Edit.h"

#include <numeric>

void Edit::exchange(const EditedData& data)
{
    for (const auto& part : m_parts)
        part->prepare(data);
    for (const auto& part : m_parts)
        part->exchange(data);
}

void Edit::tell(const EditedData& data, IEditReader& reader) const
{
    for (const auto& part : m_parts)
        part->tell(data, reader);
}

unsigned Edit::scope() const
{
    return std::accumulate(m_parts.begin(), m_parts.end(), 0U,
                           [](unsigned all, const auto& part) { return all | part->scope(); });
}

std::size_t Edit::bytes() const
{
    return std::accumulate(m_parts.begin(), m_parts.end(), std::size_t(0),
                           [](std::size_t all, const auto& part) { return all + part->bytes(); });
}
