#pragma once

#include "basalt_utilities/IDictionary.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class RecordSet;

/// Inserts many rows into the same columns: one prepared statement, bound anew for each row.
class IBulkInsert
{
public:
    virtual ~IBulkInsert() = default;

    /// One row: a text for each column, in the columns' order. Inside a transaction of the adapter.
    virtual bool add(const std::string_view* values) = 0;
};

/// A database whose rows are dictionaries: column name to text.
///
/// The operations stand in the order of their slots. Those that return bool answer whether they
/// succeeded; `lastError` says why one did not. Names of tables and columns are quoted and values
/// bound; a condition ("point_num = '7'"), an order and a statement are SQL of the caller's.
/// Column lists are comma-separated names, null for all. An adapter belongs to one thread at a
/// time; several may be open on one file.
class IDBAdapter
{
public:
    /// Called for each row; false ends the reading. The row lives for this call only.
    using RowVisitor = std::function<bool(const IDictionary& row)>;

    /// Opens what `connection` names, after closing what was open. A key list:
    /// - dbPath: the file, in quotes; it must be there, and be a database
    /// - readOnly: 1 never writes to it (0); after a write that was cut off it cannot be read then
    /// - create: 1 makes the file when it is missing (0)
    /// - exclusive: 1 keeps everybody else out until `close` (0)
    /// - busyTimeout: how long to wait for another program's lock, milliseconds (2000)
    virtual bool open(const char* connection) = 0; // 0

    /// Rolls back what was not committed.
    virtual void close() = 0;

    /// Inserts the values of `columns` that the record has.
    virtual bool insert(const char* table, const char* columns, const IDictionary& record,
                        int flag = 0) = 0; // 2, flag is reserved

    /// Deletes the rows that meet `condition`; all of them when it is null.
    virtual bool remove(const char* table, const char* condition, int reserved = 0) = 0; // 3

    /// Sets the values of `columns` that the record has, in the rows that meet `condition`.
    virtual bool update(const char* table, const char* columns, const IDictionary& record,
                        const char* condition) = 0;

    /// As `insert`, over a row with the same key.
    virtual bool replace(const char* table, const char* columns, const IDictionary& record) = 0;

    /// Replaces `records` by all rows of the statement, those before a failure included.
    virtual bool query(const char* sql, RecordSet& records) = 0; // 6

    /// The rows of the statement one by one, for tables that need not be held as records.
    virtual bool forEachRow(const char* sql, const RowVisitor& visit) = 0;

    /// Reads a table into `records`; null condition and order and a limit of 0 are none.
    virtual bool select(const char* table, const char* columns, const char* condition,
                        RecordSet& records, const char* order = nullptr, int limit = 0,
                        int offset = 0) = 0; // 8
    virtual bool select(const char* table, const std::vector<std::string>& columns,
                        const char* condition, RecordSet& records, const char* order = nullptr,
                        int limit = 0, int offset = 0) = 0; // 9

    /// Runs one or several statements and drops their rows.
    virtual bool execute(const char* sql, int reserved = 0) = 0; // 10

    /// -1 when it cannot be told.
    [[nodiscard]] virtual std::int64_t rowCount(const char* table, const char* condition) = 0;
    [[nodiscard]] virtual bool tableExists(const char* table) = 0;
    /// In the table's order; none when there is no such table.
    [[nodiscard]] virtual std::vector<std::string> columns(const char* table) = 0;
    [[nodiscard]] virtual std::int64_t lastInsertId() const = 0;
    /// Why the last operation failed, in the database's words; empty when it did not.
    [[nodiscard]] virtual std::string lastError() const = 0;

    /// Null when table or columns are not as named. Ended before the adapter is closed.
    [[nodiscard]] virtual std::unique_ptr<IBulkInsert> bulkInsert(const char* table,
                                                                  const char* columns) = 0;

    /// Writes a complete copy of the database to `path`, over what stands there, and brings it to
    /// the disk: the copy is whole or not there. Not inside a transaction.
    virtual bool backup(const char* path) = 0;

    virtual bool beginTransaction() = 0; // 18
    virtual bool commit() = 0;           // 19
    virtual bool rollback() = 0;         // 20

    virtual ~IDBAdapter() = default; // behind the operations, which are counted from `open`
};

// Adapters by the name of their kind. "sqlite" is there from the start. GUI thread.

/// \returns false, and a line in the log, when the name is taken
bool extensible_factory_register_IDBAdapter(const char* name, const char* caption,
                                            IDBAdapter* (*create)(), void (*destroy)(IDBAdapter*));
/// Null, and a line in the log, for a name that nobody registered.
[[nodiscard]] IDBAdapter* extensible_factory_get_IDBAdapter(const char* name);
void extensible_factory_release_IDBAdapter(IDBAdapter* adapter);

namespace lum {

/// The connection text that opens the database at `path`.
[[nodiscard]] std::string databaseConnection(std::string_view path);
/// The same, for reading alone.
[[nodiscard]] std::string readOnlyConnection(std::string_view path);

} // namespace lum
