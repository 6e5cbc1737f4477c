#pragma once

#include "project/StoreResult.h"

#include <string>

class IDBAdapter;

/// The complete copy of a project's database that stands beside it while it is saved.
///
/// A save empties the tables in one transaction and fills them in another. Between the two a table
/// of the copy's making marks the database, so that a save that was cut off is told from one that
/// was not: only a marked or damaged database is replaced by the copy.
class SafetyCopy
{
public:
    static constexpr const char* kMark = "create table if not exists SaveUnderWay (x)";
    static constexpr const char* kUnmark = "drop table SaveUnderWay";

    explicit SafetyCopy(const std::string& database);

    /// Of the open database, which nobody else may write meanwhile.
    bool make(IDBAdapter& database) const;

    /// Once all is saved. That it fails is logged; the next `recover` removes the copy.
    void drop() const;

    /// Brings back what an interrupted save has left; closes `database`, which it uses for that.
    /// \returns not done when there is a copy, and the database can neither be read nor replaced
    [[nodiscard]] StoreResult recover(IDBAdapter& database) const;

private:
    [[nodiscard]] StoreResult restore() const;

    std::string m_database;
    std::string m_copy;
};
