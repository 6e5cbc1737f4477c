#pragma once

#include "lum_sdk/database/IDBAdapter.h"

#include <unordered_map>

class SqliteStatement;
struct sqlite3;

/// The adapter of kind "sqlite", over SQLite's C interface.
class SqliteAdapter final : public IDBAdapter
{
public:
    SqliteAdapter();
    ~SqliteAdapter() override;

    SqliteAdapter(const SqliteAdapter&) = delete;
    SqliteAdapter& operator=(const SqliteAdapter&) = delete;

    bool open(const char* connection) override;
    void close() override;
    bool insert(const char* table, const char* columns, const IDictionary& record,
                int flag) override;
    bool remove(const char* table, const char* condition, int reserved) override;
    bool update(const char* table, const char* columns, const IDictionary& record,
                const char* condition) override;
    bool replace(const char* table, const char* columns, const IDictionary& record) override;
    bool query(const char* sql, RecordSet& records) override;
    bool forEachRow(const char* sql, const RowVisitor& visit) override;
    bool select(const char* table, const char* columns, const char* condition, RecordSet& records,
                const char* order, int limit, int offset) override;
    bool select(const char* table, const std::vector<std::string>& columns, const char* condition,
                RecordSet& records, const char* order, int limit, int offset) override;
    bool execute(const char* sql, int reserved) override;
    [[nodiscard]] std::int64_t rowCount(const char* table, const char* condition) override;
    [[nodiscard]] bool tableExists(const char* table) override;
    [[nodiscard]] std::vector<std::string> columns(const char* table) override;
    [[nodiscard]] std::int64_t lastInsertId() const override;
    [[nodiscard]] std::string lastError() const override { return m_error; }
    [[nodiscard]] std::unique_ptr<IBulkInsert> bulkInsert(const char* table,
                                                          const char* columns) override;
    bool backup(const char* path) override;
    bool beginTransaction() override;
    bool commit() override;
    bool rollback() override;

private:
    struct Closer
    {
        void operator()(sqlite3* database) const;
    };

    bool openFile(const std::string& path, const IDictionary& options);
    bool write(const char* verb, const char* table, const char* columns, const IDictionary& record);
    bool run(const std::string& sql, const std::vector<std::string_view>& values);
    /// From the cache; null when the database refuses the text.
    SqliteStatement* prepared(const std::string& sql);
    /// Remembers why an operation failed: the database's message, or `message`.
    bool fail();
    bool fail(std::string message);
    bool succeed();

    std::unique_ptr<sqlite3, Closer> m_database;
    std::unordered_map<std::string, std::unique_ptr<SqliteStatement>> m_statements;
    std::string m_error;
};
