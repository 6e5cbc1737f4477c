#include "project/DBAdapter.h"

#include <QtGlobal>

DBAdapter::DBAdapter(const char* kind) : m_inner(extensible_factory_get_IDBAdapter(kind))
{
    Q_ASSERT(m_inner != nullptr);
}

DBAdapter::~DBAdapter()
{
    extensible_factory_release_IDBAdapter(m_inner);
}

bool DBAdapter::open(const char* connection)
{
    return m_inner->open(connection);
}

void DBAdapter::close()
{
    m_inner->close();
}

bool DBAdapter::insert(const char* table, const char* columns, const IDictionary& record, int flag)
{
    return m_inner->insert(table, columns, record, flag);
}

bool DBAdapter::remove(const char* table, const char* condition, int reserved)
{
    return m_inner->remove(table, condition, reserved);
}

bool DBAdapter::update(const char* table, const char* columns, const IDictionary& record,
                       const char* condition)
{
    return m_inner->update(table, columns, record, condition);
}

bool DBAdapter::replace(const char* table, const char* columns, const IDictionary& record)
{
    return m_inner->replace(table, columns, record);
}

bool DBAdapter::query(const char* sql, RecordSet& records)
{
    return m_inner->query(sql, records);
}

bool DBAdapter::forEachRow(const char* sql, const RowVisitor& visit)
{
    return m_inner->forEachRow(sql, visit);
}

bool DBAdapter::select(const char* table, const char* columns, const char* condition,
                       RecordSet& records, const char* order, int limit, int offset)
{
    return m_inner->select(table, columns, condition, records, order, limit, offset);
}

bool DBAdapter::select(const char* table, const std::vector<std::string>& columns,
                       const char* condition, RecordSet& records, const char* order, int limit,
                       int offset)
{
    return m_inner->select(table, columns, condition, records, order, limit, offset);
}

bool DBAdapter::execute(const char* sql, int /*reserved*/)
{
    return m_inner->execute(sql, 0);
}

std::int64_t DBAdapter::rowCount(const char* table, const char* condition)
{
    return m_inner->rowCount(table, condition);
}

bool DBAdapter::tableExists(const char* table)
{
    return m_inner->tableExists(table);
}

std::vector<std::string> DBAdapter::columns(const char* table)
{
    return m_inner->columns(table);
}

std::int64_t DBAdapter::lastInsertId() const
{
    return m_inner->lastInsertId();
}

std::string DBAdapter::lastError() const
{
    return m_inner->lastError();
}

std::unique_ptr<IBulkInsert> DBAdapter::bulkInsert(const char* table, const char* columns)
{
    return m_inner->bulkInsert(table, columns);
}

bool DBAdapter::backup(const char* path)
{
    return m_inner->backup(path);
}

bool DBAdapter::beginTransaction()
{
    return m_inner->beginTransaction();
}

bool DBAdapter::commit()
{
    return m_inner->commit();
}

bool DBAdapter::rollback()
{
    return m_inner->rollback();
}
