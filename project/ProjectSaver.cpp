#include "project/ProjectSaver.h"

#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/ProjectTables.h"
#include "model/RowNumbers.h"
#include "model/SurveyRecord.h"
#include "project/AcceptanceTable.h"
#include "project/DatabaseReason.h"
#include "project/history/HistoryWriter.h"
#include "project/SafetyCopy.h"
#include "project/TableRows.h"

#include <QCoreApplication>

namespace {

QString caption(const char* text)
{
    return QCoreApplication::translate("DataProcessDataManager", text);
}

} // namespace

ProjectSaver::ProjectSaver(IDBAdapter& database, ProgressReporter& progress)
    : m_database(database), m_progress(progress)
{
}

Outcome ProjectSaver::save(const std::string& path, const DesignPoints& design,
                           const SurveyPoints& survey, const IDictionary& coordParameters,
                           const SavedBeside& beside)
{
    const SafetyCopy copy(path);
    // An interrupted save may have left emptied tables and a copy: `make` would replace that copy.
    if (Outcome recovery = copy.recover(m_database); !recovery.isDone())
        return recovery;
    const std::string connection = lum::databaseConnection(path);
    bool isSaved = false;
    std::string reason;
    try {
        isSaved = m_database.open((connection + ",exclusive=1").c_str()) && copy.make(m_database) &&
                  clearTables() && writeAll(design, survey, coordParameters, beside);
        reason = m_database.lastError();
    } catch (const std::exception& fault) { // of either thread, such as no memory
        reason = fault.what();
    }
    if (!isSaved)
        return undo(path, reason);
    copy.drop();
    m_database.open(connection.c_str()); // no longer exclusively
    m_progress.hide();
    Outcome saving = Outcome::done(m_notice);
    if (beside.history != nullptr)
        saving.add(beside.history->notice());
    return saving;
}

bool ProjectSaver::writeAll(const DesignPoints& design, const SurveyPoints& survey,
                            const IDictionary& coordParameters, const SavedBeside& beside)
{
    using namespace TableRows;
    return m_database.beginTransaction() && addMissingColumns() &&
           addDesign(m_database, linesOf(design), false,
                     {m_progress,
                      caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Save Design Data"))}) &&
           addSurvey(m_database, linesOf(survey),
                     {m_progress,
                      caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Save Survey Data"))}) &&
           addCoordinateSystem(m_database, coordParameters) &&
           (beside.acceptances == nullptr ||
            AcceptanceTable::write(m_database, *beside.acceptances, m_notice)) &&
           (beside.history == nullptr || beside.history->write(m_database, m_progress)) &&
           m_database.execute(SafetyCopy::kUnmark) && m_database.commit();
}

bool ProjectSaver::clearTables()
{
    return m_database.beginTransaction() && m_database.execute(SafetyCopy::kMark) &&
           m_database.remove(DesignRecord::kTable, nullptr) &&
           m_database.remove(SurveyRecord::kTable, nullptr) &&
           m_database.remove(CoordinateRecord::kTable, nullptr) && m_database.commit();
}

bool ProjectSaver::addMissingColumns()
{
    RecordSet schema;
    if (!m_database.query("select * from sqlite_master where tbl_name='ExplorationResultItem' "
                          "collate nocase",
                          schema))
        return false;
    const std::string statement = schema.isEmpty() ? "" : lowerName(schema[0].text("sql"));
    if (statement.empty())
        return true;
    for (const auto& [name, type] : laterSurveyColumns()) {
        // A plain search in the whole statement, as in every earlier version: a column counts as
        // present also when its name is a part of another column's name.
        if (statement.find(name) != std::string::npos)
            continue;
        std::string change = "alter table ExplorationResultItem add ";
        change.append(name).append(" ").append(type);
        if (!m_database.execute(change.c_str()))
            return false;
    }
    return true;
}

Outcome ProjectSaver::undo(const std::string& path, const std::string& reason)
{
    Outcome recovery = SafetyCopy(path).recover(m_database);
    m_database.open(lum::databaseConnection(path).c_str());
    m_progress.finish();
    if (!recovery.isDone())
        return recovery;
    return Outcome::failed(
        QCoreApplication::translate(
            "ProjectStore",
            "The project database \"%1\" cannot be written: %2. It is as it was before.")
            .arg(QString::fromStdString(path), databaseReason(reason)),
        "Cannot save \"" + path + "\": " + reason);
}
