#pragma once

#include "lum_sdk/database/IDBAdapter.h"

/// The access to a project's database: hands every operation to an adapter that the factory makes.
class DBAdapter : public IDBAdapter
{
public:
    explicit DBAdapter(const char* kind = "sqlite");
    ~DBAdapter() override;

    DBAdapter(const DBAdapter&) = delete;
    DBAdapter& operator=(const DBAdapter&) = delete;

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
    [[nodiscard]] std::string lastError() const override;
    [[nodiscard]] std::unique_ptr<IBulkInsert> bulkInsert(const char* table,
                                                          const char* columns) override;
    bool backup(const char* path) override;
    bool beginTransaction() override;
    bool commit() override;
    bool rollback() override;

private:
    IDBAdapter* m_inner; // from the factory, which also ends it
};
