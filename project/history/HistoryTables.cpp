#include "project/history/HistoryTables.h"

#include "basalt_utilities/KeyList.h"
#include "lum_sdk/database/IDBAdapter.h"

#include <algorithm>

namespace HistoryTables {

namespace {

bool hasColumns(IDBAdapter& database, const char* table, std::string_view wanted)
{
    const std::vector<std::string> columns = database.columns(table);
    while (!wanted.empty()) {
        if (std::ranges::find(columns, next_word3(wanted, ',')) == columns.end())
            return false;
    }
    return true;
}

} // namespace

bool make(IDBAdapter& database)
{
    // The items of an action stand together, and those of a point are found by the index.
    return database.execute(
        "create table if not exists ProjectHistory (id INTEGER PRIMARY KEY, form INTEGER, "
        "time TEXT, person TEXT, machine TEXT, kind TEXT, state TEXT, file TEXT, "
        "points INTEGER, reason TEXT, design_columns TEXT, result_columns TEXT, "
        "design_rows BLOB, result_rows BLOB);"
        "create table if not exists ProjectHistoryItem (action INTEGER, number INTEGER, "
        "data TEXT, change TEXT, line_num TEXT, point_num TEXT, field TEXT, old TEXT, new TEXT, "
        "PRIMARY KEY (action, number)) without rowid;"
        "create index if not exists ProjectHistoryPoint on ProjectHistoryItem "
        "(line_num, point_num)");
}

bool exist(IDBAdapter& database)
{
    return database.tableExists(kActions) || database.tableExists(kItems);
}

bool areKnown(IDBAdapter& database)
{
    return hasColumns(database, kActions, kActionColumns) &&
           hasColumns(database, kActions, std::string(kDesignRows) + ',' + kResultRows) &&
           hasColumns(database, kItems, kItemColumns);
}

std::int64_t newerActions(IDBAdapter& database)
{
    const std::string condition = "typeof(form) = 'integer' and form > " + std::to_string(kForm);
    return hasColumns(database, kActions, "form")
               ? std::max<std::int64_t>(database.rowCount(kActions, condition.c_str()), 0)
               : 0;
}

std::string quoted(std::string_view text)
{
    std::string result = "'";
    for (const char c : text)
        result.append(c == '\'' ? 2 : 1, c);
    return result + '\'';
}

} // namespace HistoryTables
