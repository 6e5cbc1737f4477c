#include "project/history/HistoryReader.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "model/DesignRecord.h"
#include "model/PointNumber.h"
#include "model/RowNumbers.h"
#include "model/SurveyRecord.h"
#include "project/DatabaseReason.h"
#include "project/history/HistoryRows.h"
#include "project/history/HistoryTables.h"
#include "project/history/PointLife.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using HistoryTables::quoted;

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectStore", text);
}

std::string storedTime(const QDateTime& time)
{
    return time.toUTC().toString(Qt::ISODateWithMs).toStdString();
}

std::string pointCondition(const PointName& point)
{
    return "line_num = " + quoted(point.line) + " and point_num = " + quoted(point.point);
}

std::string knownForms()
{
    return "form <= " + std::to_string(HistoryTables::kForm);
}

/// Conditions for all of a filter but its point.
std::string conditionOf(const HistoryFilter& filter)
{
    std::string condition = knownForms();
    if (!filter.person.isEmpty())
        condition += " and person = " + quoted(filter.person.toStdString());
    if (!filter.kind.empty())
        condition += " and kind = " + quoted(filter.kind);
    if (filter.from.isValid())
        condition += " and time >= " + quoted(storedTime(filter.from.startOfDay()));
    if (filter.to.isValid())
        condition += " and time <= " + quoted(storedTime(filter.to.endOfDay()));
    return condition;
}

HistoryAction actionOf(const IDictionary& row)
{
    HistoryAction action;
    action.id = readInteger64(row.text("id"));
    action.time = QDateTime::fromString(lum::toQString(row.text("time")), Qt::ISODateWithMs);
    action.person = lum::toQString(row.text("person"));
    action.machine = lum::toQString(row.text("machine"));
    action.kind = row.text("kind");
    action.state = historyStateOf(row.text("state")).value_or(HistoryState::Done);
    action.file = lum::toQString(row.text("file"));
    action.points =
        static_cast<std::size_t>(std::max<std::int64_t>(readInteger64(row.text("points")), 0));
    action.reason = lum::toQString(row.text("reason"));
    action.designColumns = row.text("design_columns");
    action.resultColumns = row.text("result_columns");
    action.isLarge = row.integer("is_large") != 0;
    action.isKnown = row.integer("is_known") != 0;
    return action;
}

/// Nothing for an item that a newer version has added to an action.
std::optional<HistoryItem> itemOf(const IDictionary& row)
{
    const auto data = historyDataOf(row.text("data"));
    const auto change = historyChangeOf(row.text("change"));
    if (!data || !change)
        return std::nullopt;
    HistoryItem item;
    item.data = *data;
    item.change = *change;
    item.name = {std::string(row.text("line_num")), std::string(row.text("point_num"))};
    item.field = row.text("field");
    item.oldText = row.text("old");
    item.newText = row.text("new");
    return item;
}

/// \returns false when it is damaged, so that rows are missing
bool readBlob(std::string_view hex, HistoryData data, const PointName* point,
              std::vector<HistoryItem>& items)
{
    const HistoryRows rows(
        QByteArray::fromHex(QByteArray::fromRawData(hex.data(), static_cast<int>(hex.size()))));
    const auto add = [&](const PointName& name, HistoryChange change, std::string_view row) {
        if (point == nullptr || name.point == point->point)
            items.push_back({data, change, name, {}, std::string(row), {}});
    };
    return point == nullptr ? rows.visit(add) : rows.visitLine(point->line, add);
}

} // namespace

Outcome HistoryReader::actions(const HistoryFilter& filter, std::vector<HistoryAction>& actions)
{
    actions.clear();
    if (!HistoryTables::areKnown(m_database))
        return Outcome::done();
    if (!filter.point)
        return outcome(readActions(conditionOf(filter), actions));
    std::vector<Event> events;
    Outcome reading = life(filter, events);
    for (Event& event : events)
        actions.push_back(std::move(event.action));
    return reading;
}

Outcome HistoryReader::items(const HistoryAction& action, std::vector<HistoryItem>& items)
{
    items.clear();
    return outcome(readItems(action, nullptr, items));
}

Outcome HistoryReader::life(const HistoryFilter& filter, std::vector<Event>& events)
{
    Q_ASSERT(filter.point);
    events.clear();
    if (!HistoryTables::areKnown(m_database))
        return Outcome::done();
    // All of it, since what a point became is told by what happened to it next.
    PointLife life;
    std::vector<HistoryAction> chosen;
    if (!readLife(*filter.point, events) || !readPresent(*filter.point, life) ||
        !readActions(conditionOf(filter), chosen))
        return outcome(false);
    for (Event& event : events) {
        if (event.action.isKnown)
            life.tellNewTexts(event.action, event.items);
        else
            life.forget();
    }
    std::set<std::int64_t> ids;
    for (const HistoryAction& action : chosen)
        ids.insert(action.id);
    std::erase_if(events, [&](const Event& event) {
        return event.items.empty() || !ids.contains(event.action.id);
    });
    return outcome(true);
}

QString HistoryReader::notice()
{
    if (!HistoryTables::exist(m_database))
        return {};
    const std::int64_t newer = HistoryTables::newerActions(m_database);
    if (!HistoryTables::areKnown(m_database))
        return newer > 0
                   ? translated(QT_TRANSLATE_NOOP(
                         "ProjectStore",
                         "The history of this project is of a newer version of the program. It is "
                         "kept, but not shown, and what you change is not added to it."))
                   : translated(QT_TRANSLATE_NOOP(
                         "ProjectStore",
                         "The history of this project has lost a table or a column. It is kept, "
                         "but not shown, and what you change is not added to it."));
    if (newer == 0)
        return {};
    return translated(QT_TRANSLATE_NOOP("ProjectStore",
                                        "Actions in the history of this project that a newer "
                                        "version of the program has written: %1. They are kept, "
                                        "but not shown."))
        .arg(lum::groupedNumber(newer));
}

bool HistoryReader::readActions(const std::string& condition, std::vector<HistoryAction>& actions)
{
    const std::string question =
        std::string("select ") + HistoryTables::kActionColumns +
        ", design_rows is not null or result_rows is not null as is_large, " + knownForms() +
        " as is_known from " + HistoryTables::kActions + " where " + condition +
        " order by id desc";
    return m_database.forEachRow(question.c_str(), [&](const IDictionary& row) {
        actions.push_back(actionOf(row));
        return true;
    });
}

bool HistoryReader::readItems(const HistoryAction& action, const PointName* point,
                              std::vector<HistoryItem>& items)
{
    if (action.isLarge && !readRows(action, point, items))
        return false;
    std::string question = std::string("select ") + HistoryTables::kItemColumns + " from " +
                           HistoryTables::kItems + " where action = " + std::to_string(action.id);
    if (point != nullptr)
        question += " and " + pointCondition(*point);
    return m_database.forEachRow((question + " order by number").c_str(),
                                 [&](const IDictionary& row) {
                                     if (auto item = itemOf(row))
                                         items.push_back(std::move(*item));
                                     return true;
                                 });
}

bool HistoryReader::readRows(const HistoryAction& action, const PointName* point,
                             std::vector<HistoryItem>& items)
{
    // As digits, since a database may keep its texts in another encoding, and would convert them.
    const std::string question = "select hex(result_rows), hex(design_rows) from ProjectHistory "
                                 "where id = " +
                                 std::to_string(action.id);
    return m_database.forEachRow(question.c_str(), [&](const IDictionary& row) {
        const bool hasResults = readBlob(row.valueAt(0), HistoryData::Results, point, items);
        if (!readBlob(row.valueAt(1), HistoryData::Design, point, items) || !hasResults)
            m_damaged.insert(action.id);
        return true;
    });
}

bool HistoryReader::readLife(const PointName& point, std::vector<Event>& events)
{
    std::vector<HistoryAction> actions;
    std::set<std::int64_t> touching; // of the small ones
    const std::string question = std::string("select distinct action from ") +
                                 HistoryTables::kItems + " where " + pointCondition(point);
    if (!readActions("1", actions) ||
        !m_database.forEachRow(question.c_str(), [&](const IDictionary& row) {
            touching.insert(readInteger64(row.valueAt(0)));
            return true;
        }))
        return false;
    for (HistoryAction& action : actions) {
        if (action.isKnown && !action.isLarge && !touching.contains(action.id))
            continue;
        Event event;
        if (action.isKnown && !readItems(action, &point, event.items))
            return false;
        action.isKnown = action.isKnown && !m_damaged.contains(action.id);
        event.action = std::move(action);
        if (!event.items.empty() || !event.action.isKnown)
            events.push_back(std::move(event));
    }
    return true;
}

bool HistoryReader::readPresent(const PointName& point, PointLife& life)
{
    const auto read = [&](HistoryData data, const char* table) {
        const std::string question =
            std::string("select * from ") + table + " where " + pointCondition(point);
        return m_database.forEachRow(question.c_str(), [&](const IDictionary& row) {
            life.setPresent(data, row);
            return true;
        });
    };
    return isCheckPoint(point.point) || // its measurements have one name here
           (read(HistoryData::Results, SurveyRecord::kTable) &&
            read(HistoryData::Design, DesignRecord::kTable));
}

Outcome HistoryReader::outcome(bool isRead) const
{
    if (isRead && m_damaged.empty())
        return Outcome::done();
    if (isRead)
        return Outcome::done(
            translated(QT_TRANSLATE_NOOP("ProjectStore", "Actions in the history of this project "
                                                         "whose points are damaged and are not all "
                                                         "shown: %1."))
                .arg(lum::groupedNumber(m_damaged.size())));
    const std::string reason = m_database.lastError();
    return Outcome::failed(
        translated(
            QT_TRANSLATE_NOOP("ProjectStore", "The history of this project cannot be read: %1."))
            .arg(databaseReason(reason)),
        "Cannot read the project's history: " + reason);
}
