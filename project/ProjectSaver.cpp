#include "project/ProjectSaver.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/ProjectTables.h"
#include "model/RowNumbers.h"
#include "model/SurveyRecord.h"
#include "project/DatabaseReason.h"
#include "project/RowFormatter.h"
#include "project/SafetyCopy.h"

#include <QCoreApplication>

#include <array>

namespace {

QString caption(const char* text)
{
    return QCoreApplication::translate("DataProcessDataManager", text);
}

/// Inserts a row for every point, in order, and reports after each line.
template <class Points, class Write>
bool insertPoints(IBulkInsert& rows, const Points& points, Write write, ProgressReporter& progress,
                  const QString& caption)
{
    RowFormatter formatter(points, write);
    std::array<std::string_view, RecordTexts::kMostColumns> values;
    std::size_t linesDone = 0;
    for (RowBatch batch = formatter.next(); batch.size() != 0; batch = formatter.next()) {
        auto lineEnd = batch.lineEnds().begin();
        for (std::size_t row = 0; row < batch.size(); ++row) {
            batch.copyRow(row, values.data());
            if (!rows.add(values.data()))
                return false;
            if (lineEnd == batch.lineEnds().end() || *lineEnd != row + 1)
                continue;
            progress.report(caption, ++linesDone, points.lineCount());
            ++lineEnd;
        }
    }
    return true;
}

} // namespace

ProjectSaver::ProjectSaver(IDBAdapter& database, ProgressReporter& progress)
    : m_database(database), m_progress(progress)
{
}

Outcome ProjectSaver::save(const std::string& path, const DesignPoints& design,
                           const SurveyPoints& survey, const IDictionary& coordParameters)
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
                  clearTables() && writeAll(design, survey, coordParameters);
        reason = m_database.lastError();
    } catch (const std::exception& fault) { // of either thread, such as no memory
        reason = fault.what();
    }
    if (!isSaved)
        return undo(path, reason);
    copy.drop();
    m_database.open(connection.c_str()); // no longer exclusively
    m_progress.hide();
    return Outcome::done();
}

bool ProjectSaver::writeAll(const DesignPoints& design, const SurveyPoints& survey,
                            const IDictionary& coordParameters)
{
    return m_database.beginTransaction() && addMissingColumns() && writeDesign(design) &&
           writeSurvey(survey) && writeCoordinateSystem(coordParameters) &&
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

bool ProjectSaver::addUnitColumn()
{
    const std::string table = CoordinateRecord::kTable;
    const std::string column = CoordinateRecord::kUnit;
    RecordSet known;
    const std::string question =
        "select name from pragma_table_info('" + table + "') where name = '" + column + "'";
    if (!m_database.query(question.c_str(), known))
        return false;
    return !known.isEmpty() ||
           m_database.execute(("alter table " + table + " add " + column + " TEXT").c_str());
}

bool ProjectSaver::writeDesign(const DesignPoints& design)
{
    const auto rows = m_database.bulkInsert(DesignRecord::kTable, DesignRecord::columns().c_str());
    return rows &&
           insertPoints(*rows, design, DesignRecord::write, m_progress,
                        caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Save Design Data")));
}

bool ProjectSaver::writeSurvey(const SurveyPoints& survey)
{
    const auto rows = m_database.bulkInsert(SurveyRecord::kTable, SurveyRecord::columns().c_str());
    return rows &&
           insertPoints(*rows, survey, SurveyRecord::write, m_progress,
                        caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Save Survey Data")));
}

bool ProjectSaver::writeCoordinateSystem(const IDictionary& parameters)
{
    basalt::Dictionary record;
    record.set(CoordinateRecord::kId, CoordinateRecord::kUndefinedId);
    CoordinateRecord::copy(parameters, record);
    return (!record.contains(CoordinateRecord::kUnit) || addUnitColumn()) &&
           m_database.insert(CoordinateRecord::kTable, nullptr, record);
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
