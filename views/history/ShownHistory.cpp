#include "views/history/ShownHistory.h"

#include "basalt_utilities/ILogger.h"
#include "project/DataProcessDataManager.h"

namespace ShownHistory {

namespace {

using Rows = HistoryActionModel::Rows;

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

/// Whether an action passes all of a filter but its point.
bool passes(const HistoryFilter& filter, const HistoryAction& action)
{
    const QDate day = action.time.toLocalTime().date();
    return (filter.person.isEmpty() || filter.person == action.person) &&
           (filter.kind.empty() || filter.kind == action.kind) &&
           (!filter.from.isValid() || day >= filter.from) &&
           (!filter.to.isValid() || day <= filter.to);
}

QString toldFault(const Outcome& outcome)
{
    if (outcome.isDone())
        return {};
    basalt::logError(outcome.detail());
    return outcome.text();
}

} // namespace

Rows unsaved(const HistoryFilter& filter)
{
    const UnsavedHistory history = manager().unsavedHistory();
    std::vector<HistoryAction> actions = history.actions();
    std::vector<std::vector<HistoryItem>> lives;
    if (filter.point)
        lives = history.life(*filter.point);
    Rows rows;
    for (std::size_t i = 0; i < actions.size(); ++i) {
        HistoryActionModel::Row row;
        if (filter.point)
            row.event.items = std::move(lives[i]);
        if (!passes(filter, actions[i]) || (filter.point && row.event.items.empty()))
            continue;
        row.event.action = std::move(actions[i]);
        row.unsaved = i;
        rows.push_back(std::move(row));
    }
    return rows;
}

Rows saved(const HistoryFilter& filter, QString& note)
{
    HistoryReader reader = manager().history();
    std::vector<HistoryReader::Event> events;
    if (filter.point) {
        note = toldFault(reader.life(filter, events));
    } else {
        std::vector<HistoryAction> actions;
        note = toldFault(reader.actions(filter, actions));
        for (HistoryAction& action : actions)
            events.push_back({std::move(action), {}});
    }
    if (note.isEmpty())
        note = reader.notice();
    Rows rows;
    rows.reserve(events.size());
    for (HistoryReader::Event& event : events)
        rows.push_back({std::move(event), {}});
    return rows;
}

HistoryReader::Event eventOf(const HistoryActionModel::Row& row, QString& fault)
{
    HistoryReader::Event event{row.event.action, {}};
    if (!row.unsaved)
        fault = toldFault(manager().history().items(event.action, event.items));
    else if (*row.unsaved < manager().unsavedEdits().entries().size()) // else it was saved just now
        event.items = manager().unsavedHistory().items(*row.unsaved);
    return event;
}

} // namespace ShownHistory
