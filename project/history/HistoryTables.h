#pragma once

#include <cstdint>
#include <string>
#include <string_view>

class IDBAdapter;

/// The two tables of the history in a project's database. The first change that is saved makes
/// them; nothing ever clears them.
///
/// An action has a row of the first table. Of an action with at most `kMostItems` points each
/// change has a row of the second table; of a larger one the rows of its points stand in blobs of
/// the action (see HistoryRows.h).
///
/// A later form may add columns that may be empty. What it cannot add it puts into other tables.
namespace HistoryTables {

inline constexpr int kForm = 1; ///< of the rows that this version writes
inline constexpr std::size_t kMostItems = 5000;

inline constexpr const char* kActions = "ProjectHistory";
inline constexpr const char* kItems = "ProjectHistoryItem";

inline constexpr const char* kActionColumns = "id,form,time,person,machine,kind,state,file,"
                                              "points,reason,design_columns,result_columns";
inline constexpr const char* kItemColumns =
    "action,number,data,change,line_num,point_num,field,old,new";
inline constexpr const char* kDesignRows = "design_rows"; ///< blobs of the actions
inline constexpr const char* kResultRows = "result_rows";

/// Makes the tables where they are missing.
bool make(IDBAdapter& database);

[[nodiscard]] bool exist(IDBAdapter& database);
/// Whether they have all columns that this version knows.
[[nodiscard]] bool areKnown(IDBAdapter& database);
/// How many actions a newer version has written; 0 when no row says of which form it is.
[[nodiscard]] std::int64_t newerActions(IDBAdapter& database);

/// A text as SQL has it, in quotes.
[[nodiscard]] std::string quoted(std::string_view text);

} // namespace HistoryTables
