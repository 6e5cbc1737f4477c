#include "project/history/HistoryWriter.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/DesignRecord.h"
#include "model/RowNumbers.h"
#include "model/SurveyRecord.h"
#include "project/DatabaseReason.h"
#include "project/history/EditWalk.h"
#include "project/history/HistoryTables.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

using std::to_string;

bool insertAction(IBulkInsert& actions, std::int64_t id, const UnsavedEdits::Entry& entry,
                  const HistoryAuthor& author, const EditContent& content)
{
    const std::array<std::string, 12> texts{
        to_string(id),
        to_string(HistoryTables::kForm),
        entry.time.toUTC().toString(Qt::ISODateWithMs).toStdString(),
        author.person.toStdString(),
        author.machine.toStdString(),
        entry.kind->name,
        nameOf(entry.state),
        entry.file.toStdString(),
        to_string(entry.points),
        entry.reason.toStdString(),
        content.holdsDesign ? DesignRecord::columns() : std::string(),
        content.holdsResults ? SurveyRecord::columns() : std::string()};
    const std::array<std::string_view, 12> values = [&] {
        std::array<std::string_view, 12> views;
        std::ranges::copy(texts, views.begin());
        return views;
    }();
    return actions.add(values.data());
}

bool insertItems(IBulkInsert& rows, std::int64_t action, const std::vector<HistoryItem>& items)
{
    const std::string id = to_string(action);
    std::size_t count = 0;
    for (const HistoryItem& item : items) {
        const std::string number = to_string(count++);
        const std::array<std::string_view, 9> values{id,
                                                     number,
                                                     nameOf(item.data),
                                                     nameOf(item.change),
                                                     item.name.line,
                                                     item.name.point,
                                                     item.field,
                                                     item.oldText,
                                                     item.newText};
        if (!rows.add(values.data()))
            return false;
    }
    return true;
}

/// In digits, so that it is stored byte for byte and not as a text.
bool storeBlob(IDBAdapter& database, std::int64_t action, const char* column,
               const HistoryRows& rows)
{
    if (rows.isEmpty())
        return true;
    const std::string statement = std::string("update ") + HistoryTables::kActions + " set " +
                                  column + " = x'" + rows.blob().toHex().toStdString() +
                                  "' where id = " + to_string(action);
    return database.execute(statement.c_str());
}

} // namespace

bool HistoryWriter::write(IDBAdapter& database, ProgressReporter& progress)
{
    if (!m_edits.holdChanges())
        return true;
    if (HistoryTables::exist(database) && !HistoryTables::areKnown(database)) {
        basalt::logWarning("The history of this project is of a newer version: what was changed is "
                           "not added to it.");
        return true;
    }
    if (!database.execute("savepoint history"))
        return false;
    std::string reason;
    try {
        if (writeAll(database, progress))
            return database.execute("release history");
        reason = database.lastError();
    } catch (const std::exception& fault) { // no memory
        reason = fault.what();
    }
    basalt::logError("Cannot write the project's history: " + reason);
    m_notice = QCoreApplication::translate("ProjectStore",
                                           "The points are saved. The history of this project "
                                           "does not take what you have changed: %1.")
                   .arg(databaseReason(reason));
    return database.execute("rollback to history; release history");
}

bool HistoryWriter::writeAll(IDBAdapter& database, ProgressReporter& progress) const
{
    RecordSet last;
    // Items may be left of actions that somebody has deleted.
    if (!HistoryTables::make(database) ||
        !database.query("select max(coalesce((select max(id) from ProjectHistory), 0), "
                        "coalesce((select max(action) from ProjectHistoryItem), 0))",
                        last))
        return false;
    const auto actions =
        database.bulkInsert(HistoryTables::kActions, HistoryTables::kActionColumns);
    const auto items = database.bulkInsert(HistoryTables::kItems, HistoryTables::kItemColumns);
    if (!actions || !items)
        return false;
    EditWalk walk(m_present);
    const std::int64_t before = readInteger64(last[0].valueAt(0));
    const std::vector<UnsavedEdits::Entry>& entries = m_edits.entries();
    for (std::size_t i = entries.size(); i-- > 0;) {
        const std::int64_t id = before + static_cast<std::int64_t>(i) + 1;
        const UnsavedEdits::Entry& entry = entries[i];
        const EditContent walked =
            entry.edit == nullptr ? EditContent() : walk.contentOf(*entry.edit);
        const EditContent& content = entry.edit == nullptr ? entry.content : walked;
        if (!insertAction(*actions, id, entry, m_author, content) ||
            !insertItems(*items, id, content.items) ||
            !storeBlob(database, id, HistoryTables::kDesignRows, content.designRows) ||
            !storeBlob(database, id, HistoryTables::kResultRows, content.resultRows))
            return false;
        progress.report(QCoreApplication::translate("DataProcessDataManager", "Save History"),
                        entries.size() - i, entries.size());
    }
    return true;
}
