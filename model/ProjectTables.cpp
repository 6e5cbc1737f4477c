#include "model/ProjectTables.h"

#include "basalt_utilities/KeyList.h"
#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"

#include <algorithm>

namespace {

constexpr const char* kText = "TEXT";
constexpr const char* kInteger = "INTEGER";

/// Texts and decimals keep the form in which they are written; codes, counts and times are
/// integers.
const char* typeOf(const SurveyColumn& column)
{
    const bool isInteger = column.stored == StoredForm::Integer ||
                           column.stored == StoredForm::LongInteger ||
                           column.stored == StoredForm::SixDigitsReadWhole;
    return isInteger ? kInteger : kText;
}

std::vector<TableColumn> surveyTable()
{
    std::vector<TableColumn> columns;
    for (const SurveyColumn& column : surveyColumns()) {
        if (column.stored != StoredForm::None)
            columns.push_back({column.key, typeOf(column)});
    }
    return columns;
}

std::vector<TableColumn> designTable()
{
    std::vector<TableColumn> columns;
    columns.reserve(DesignRecord::kColumns.size());
    for (const DesignRecord::Column& column : DesignRecord::kColumns)
        columns.push_back({column.key, column.isInteger ? kInteger : kText});
    return columns;
}

std::vector<TableColumn> coordinateTable()
{
    std::vector<TableColumn> columns;
    std::string_view keys = CoordinateRecord::kKeys;
    while (!keys.empty())
        columns.push_back({std::string(next_word3(keys, ',')), kText});
    columns.push_back({CoordinateRecord::kId, kText});
    return columns;
}

/// The layout stays as it is: SQLite stores this text, and every version searches it for the names
/// of columns.
std::string createTable(const char* name, const std::vector<TableColumn>& columns)
{
    std::string list;
    for (const TableColumn& column : columns) {
        list += list.empty() ? "\n    " : ",\n    ";
        list += column.name + ' ' + column.type;
    }
    return std::string("create table ") + name + " (" + list + "\n);\n";
}

} // namespace

std::string projectTables()
{
    return "pragma page_size = 8192;\n" + createTable(DesignRecord::kTable, designTable()) +
           createTable(SurveyRecord::kTable, surveyTable()) +
           createTable(CoordinateRecord::kTable, coordinateTable());
}

std::vector<TableColumn> laterSurveyColumns()
{
    std::vector<const SurveyColumn*> later;
    for (const SurveyColumn& column : surveyColumns()) {
        if (column.since > 0)
            later.push_back(&column);
    }
    std::stable_sort(later.begin(), later.end(), [](const SurveyColumn* a, const SurveyColumn* b) {
        return a->since < b->since;
    });
    std::vector<TableColumn> columns;
    for (const SurveyColumn* column : later) {
        // Earlier versions add it so, and a number that is read from it has decimals.
        const bool isReal = column->stored == StoredForm::LongInteger;
        columns.push_back({column->key, isReal ? "REAL" : typeOf(*column)});
    }
    return columns;
}
