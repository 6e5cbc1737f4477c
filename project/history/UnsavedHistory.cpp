#include "project/history/UnsavedHistory.h"

#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"
#include "project/history/EditWalk.h"
#include "project/history/HistoryAuthor.h"

#include <algorithm>
#include <ranges>

namespace {

std::vector<HistoryItem> itemsOf(EditContent&& content)
{
    std::vector<HistoryItem> items;
    const auto add = [&](HistoryData data, const HistoryRows& rows) {
        rows.visit([&](const PointName& name, HistoryChange change, std::string_view row) {
            items.push_back({data, change, name, {}, std::string(row), {}});
        });
    };
    add(HistoryData::Results, content.resultRows);
    add(HistoryData::Design, content.designRows);
    std::ranges::move(content.items, std::back_inserter(items));
    return items;
}

} // namespace

std::vector<HistoryAction> UnsavedHistory::actions() const
{
    const HistoryAuthor author = HistoryAuthor::current();
    std::vector<HistoryAction> actions;
    for (const UnsavedEdits::Entry& entry : std::views::reverse(m_entries)) {
        HistoryAction action;
        action.time = entry.time;
        action.person = author.person;
        action.machine = author.machine;
        action.kind = entry.edit->kind().name;
        action.isTakenBack = entry.isTakenBack;
        action.file = entry.edit->file();
        action.points = entry.edit->points();
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
    for (std::size_t later = 0; later < action; ++later)
        walk.pass(*m_entries[m_entries.size() - 1 - later].edit);
    return itemsOf(walk.contentOf(*m_entries[m_entries.size() - 1 - action].edit));
}

std::vector<std::vector<HistoryItem>> UnsavedHistory::life(const PointName& point) const
{
    EditWalk walk(m_present);
    std::vector<std::vector<HistoryItem>> life;
    for (const UnsavedEdits::Entry& entry : std::views::reverse(m_entries)) {
        life.push_back(itemsOf(walk.contentOf(*entry.edit, &point)));
        std::erase_if(life.back(), [&](const HistoryItem& item) { return item.name != point; });
    }
    return life;
}
