#include "project/history/UnsavedHistory.h"

#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"
#include "project/history/EditWalk.h"
#include "project/history/HistoryAuthor.h"

#include <algorithm>

namespace {

using Entry = UnsavedEdits::Entry;

/// \param only  the point that is asked for, or null
std::vector<HistoryItem> itemsOf(EditContent content, const PointName* only = nullptr)
{
    std::vector<HistoryItem> items;
    const auto add = [&](HistoryData data, const HistoryRows& rows) {
        const auto push = [&](const PointName& name, HistoryChange change, std::string_view row) {
            if (only == nullptr || name == *only)
                items.push_back({data, change, name, {}, std::string(row), {}});
        };
        if (only == nullptr)
            rows.visit(push);
        else
            rows.visitLine(only->line, push);
    };
    add(HistoryData::Results, content.resultRows);
    add(HistoryData::Design, content.designRows);
    std::ranges::move(content.items, std::back_inserter(items));
    if (only != nullptr)
        std::erase_if(items, [&](const HistoryItem& item) { return item.name != *only; });
    return items;
}

} // namespace

std::vector<HistoryAction> UnsavedHistory::actions() const
{
    const HistoryAuthor author = HistoryAuthor::current();
    std::vector<HistoryAction> actions;
    for (auto reached = m_entries.rbegin(); reached != m_entries.rend(); ++reached) {
        const Entry& entry = *reached;
        HistoryAction action;
        action.time = entry.time;
        action.person = author.person;
        action.machine = author.machine;
        action.kind = entry.kind->name;
        action.state = entry.state;
        action.file = entry.file;
        action.points = entry.points;
        action.reason = entry.reason;
        action.designColumns = DesignRecord::columns();
        action.resultColumns = SurveyRecord::columns();
        actions.push_back(std::move(action));
    }
    return actions;
}

std::vector<HistoryItem> UnsavedHistory::items(std::size_t action) const
{
    EditWalk walk(m_present);
    const Entry& wanted = m_entries[m_entries.size() - 1 - action];
    if (wanted.edit == nullptr)
        return itemsOf(wanted.content);
    for (auto later = m_entries.rbegin(); &*later != &wanted; ++later) {
        if (later->edit != nullptr)
            walk.pass(*later->edit);
    }
    return itemsOf(walk.contentOf(*wanted.edit));
}

std::vector<std::vector<HistoryItem>> UnsavedHistory::life(const PointName& point) const
{
    EditWalk walk(m_present);
    std::vector<std::vector<HistoryItem>> life;
    for (auto entry = m_entries.rbegin(); entry != m_entries.rend(); ++entry)
        life.push_back(entry->edit == nullptr
                           ? itemsOf(entry->content, &point)
                           : itemsOf(walk.contentOf(*entry->edit, &point), &point));
    return life;
}
