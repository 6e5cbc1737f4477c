#pragma once

#include "protocol/Outcome.h"

#include <string>

class IDBAdapter;

/// The complete copy of a project's database that stands beside it while it is saved.
///
/// A save empties the tables in one transaction and fills them in another. While the tables are
/// empty, the database holds the table "SaveUnderWay". It is the mark of an interrupted save: only
/// a database with this mark, or a damaged one, is replaced by the copy.
class SafetyCopy
{
public:
    static constexpr const char* kMark = "create table if not exists SaveUnderWay (x)";
    static constexpr const char* kUnmark = "drop table SaveUnderWay";

    explicit SafetyCopy(const std::string& database);

    /// Copies the open database. The caller keeps every other program from writing to it.
    bool make(IDBAdapter& database) const;

    /// Removes the copy when everything is saved. A failure is logged, and the next `recover`
    /// removes the copy.
    void drop() const;

    /// Undoes an interrupted save, if there was one. Closes `database` and works with it.
    /// \returns done, with a notice when a save was undone; failed when there is a copy, and the
    ///          database can neither be read nor replaced
    [[nodiscard]] Outcome recover(IDBAdapter& database) const;

private:
    [[nodiscard]] Outcome restore() const;

    std::string m_database;
    std::string m_copy;
};
