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

void UnsavedEdits::makeRoom()
{
    if (m_entries.size() == m_entries.capacity())
        m_entries.reserve(2 * m_entries.size() + 8);
}

void UnsavedEdits::add(const std::shared_ptr<Edit>& edit, bool isTakenBack)
{
    if (!m_entries.empty() && m_entries.back().edit == edit) {
        m_entries.pop_back();
        return;
    }
    m_entries.push_back({edit, isTakenBack, QDateTime::currentDateTimeUtc(), {}});
}

void UnsavedEdits::setReason(const std::shared_ptr<Edit>& edit, const QString& reason)
{
    for (Entry& entry : m_entries) {
        if (entry.edit == edit)
            entry.reason = reason;
    }
}
