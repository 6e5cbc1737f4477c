#include "project/TableRows.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"
#include "project/RowFormatter.h"

#include <array>

namespace TableRows {

namespace {

/// Inserts the rows of a batch from one to another.
bool insert(IBulkInsert& rows, const RowBatch& batch, std::size_t from, std::size_t to)
{
    std::array<std::string_view, RecordTexts::kMostColumns> values;
    for (std::size_t row = from; row < to; ++row) {
        batch.copyRow(row, values.data());
        if (!rows.add(values.data()))
            return false;
    }
    return true;
}

template <class Line, class Write>
bool insertLines(IBulkInsert& rows, const std::vector<const Line*>& lines, Write write,
                 const LineProgress& progress)
{
    RowFormatter<Line, Write> formatter(lines, write);
    for (RowBatch batch = formatter.next(); !batch.isEmpty(); batch = formatter.next()) {
        std::size_t done = 0;
        for (const RowBatch::LineEnd& end : batch.lineEnds()) {
            if (!insert(rows, batch, std::exchange(done, end.rows), end.rows))
                return false;
            progress.reporter.report(progress.caption, end.linesDone, lines.size());
        }
        if (!insert(rows, batch, done, batch.size()))
            return false;
    }
    return true;
}

bool addUnitColumn(IDBAdapter& database)
{
    const std::string table = CoordinateRecord::kTable;
    const std::string column = CoordinateRecord::kUnit;
    RecordSet known;
    const std::string question =
        "select name from pragma_table_info('" + table + "') where name = '" + column + "'";
    if (!database.query(question.c_str(), known))
        return false;
    return !known.isEmpty() ||
           database.execute(("alter table " + table + " add " + column + " TEXT").c_str());
}

} // namespace

bool addDesign(IDBAdapter& database, const std::vector<const DesignPoints::Line*>& lines,
               bool onlyUnsurveyed, const LineProgress& progress)
{
    const auto write = [onlyUnsurveyed](const DesignPoint& point, RecordTexts& texts) {
        if (onlyUnsurveyed && point.status != 0)
            return false;
        DesignRecord::write(point, texts);
        return true;
    };
    const auto rows = database.bulkInsert(DesignRecord::kTable, DesignRecord::columns().c_str());
    return rows && insertLines(*rows, lines, write, progress);
}

bool addSurvey(IDBAdapter& database, const std::vector<const SurveyPoints::Line*>& lines,
               const LineProgress& progress)
{
    const auto write = [](const SurveyPoint& point, RecordTexts& texts) {
        SurveyRecord::write(point, texts);
        return true;
    };
    const auto rows = database.bulkInsert(SurveyRecord::kTable, SurveyRecord::columns().c_str());
    return rows && insertLines(*rows, lines, write, progress);
}

bool addCoordinateSystem(IDBAdapter& database, const IDictionary& parameters)
{
    basalt::Dictionary record;
    record.set(CoordinateRecord::kId, CoordinateRecord::kUndefinedId);
    CoordinateRecord::copy(parameters, record);
    return (!record.contains(CoordinateRecord::kUnit) || addUnitColumn(database)) &&
           database.insert(CoordinateRecord::kTable, nullptr, record);
}

} // namespace TableRows
