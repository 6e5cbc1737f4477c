#include "lum_sdk/database/SqliteAdapter.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/database/SqliteCopy.h"
#include "lum_sdk/database/SqliteStatement.h"
#include "lum_sdk/files/FileSync.h"

#include <sqlite3.h>

#include <cstdio>

namespace {

constexpr const char* kNotOpen = "no database is open";
constexpr int kBusyTimeoutMs = 2000;
constexpr std::size_t kMostStatements = 64;

std::string quotedName(std::string_view name)
{
    std::string text = "\"";
    for (const char c : name)
        text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

std::vector<std::string> listedNames(const char* columns)
{
    std::vector<std::string> names;
    std::string_view rest = columns == nullptr ? "" : columns;
    while (!rest.empty())
        names.emplace_back(basalt::trimmed(next_word3(rest, ',')));
    return names;
}

std::vector<std::string> keysOf(const IDictionary& record)
{
    std::vector<std::string> keys;
    for (std::size_t i = 0; i < record.size(); ++i)
        keys.emplace_back(record.keyAt(i));
    return keys;
}

/// "a", "b" and so on, each name quoted and followed by `behind`.
std::string joinedNames(const std::vector<std::string>& names, const char* behind = "")
{
    std::string text;
    for (const std::string& name : names) {
        text += text.empty() ? "" : ",";
        text += quotedName(name);
        text += behind;
    }
    return text;
}

std::string insertStatement(const char* verb, const char* table,
                            const std::vector<std::string>& columns)
{
    std::string marks;
    for (std::size_t i = 0; i < columns.size(); ++i)
        marks += i == 0 ? "?" : ",?";
    return std::string(verb) + " into " + quotedName(table) + " (" + joinedNames(columns) +
           ") values (" + marks + ")";
}

std::string whereClause(const char* condition)
{
    return condition == nullptr || *condition == '\0' ? std::string()
                                                      : " where " + std::string(condition);
}

/// The columns of `columns` (null for all) that the record has, with their values.
struct Values
{
    Values(const char* columns, const IDictionary& record)
    {
        for (std::string& name : columns == nullptr ? keysOf(record) : listedNames(columns)) {
            if (const auto value = record.find(name)) {
                names.push_back(std::move(name));
                texts.push_back(*value);
            }
        }
    }
    std::vector<std::string> names;
    std::vector<std::string_view> texts;
};

class SqliteBulkInsert final : public IBulkInsert
{
public:
    using Report = std::function<void()>;

    SqliteBulkInsert(SqliteStatement statement, int columns, Report report)
        : m_statement(std::move(statement)), m_columns(columns), m_report(std::move(report))
    {
    }

    bool add(const std::string_view* values) override
    {
        for (int i = 0; i < m_columns; ++i)
            m_statement.bind(i + 1, values[i]);
        const bool isDone = m_statement.step() == SQLITE_DONE;
        if (!isDone)
            m_report(); // before rewinding, which clears the message
        m_statement.rewind();
        return isDone;
    }

private:
    SqliteStatement m_statement;
    int m_columns;
    Report m_report;
};

} // namespace

SqliteAdapter::SqliteAdapter() = default;
SqliteAdapter::~SqliteAdapter() = default;

void SqliteAdapter::Closer::operator()(sqlite3* database) const
{
    sqlite3_close_v2(database);
}

bool SqliteAdapter::open(const char* connection)
{
    close();
    basalt::Dictionary options;
    if (connection == nullptr || !csa_to_dictionary(options, connection))
        return fail("the connection text is malformed");
    const std::string path(options.text("dbPath"));
    if (path.empty())
        return fail("the connection text names no database");
    if (openFile(path, options))
        return succeed();
    const std::string why = lastError();
    close();
    return fail(why);
}

bool SqliteAdapter::openFile(const std::string& path, const IDictionary& options)
{
    const int access =
        options.integer("readOnly") != 0 ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int flags =
        access | SQLITE_OPEN_NOMUTEX | (options.integer("create") != 0 ? SQLITE_OPEN_CREATE : 0);
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &database, flags, nullptr);
    m_database.reset(database);
    if (result != SQLITE_OK)
        return fail(database == nullptr ? sqlite3_errstr(result) : sqlite3_errmsg(database));
    sqlite3_extended_result_codes(database, 1);
    sqlite3_busy_timeout(database, options.integer("busyTimeout", kBusyTimeoutMs));
    // Opening reads nothing, so the query tells whether the file is a database. In some
    // distributions secure_delete is on, and deleting would overwrite every row.
    if (!execute("select count(*) from sqlite_master;"
                 "pragma cache_size=-32768; pragma secure_delete=off",
                 0))
        return false;
    if (options.integer("exclusive") == 0)
        return true;
    // The lock of this transaction is kept until the connection is closed.
    return execute("pragma locking_mode=exclusive; begin exclusive; commit", 0);
}

void SqliteAdapter::close()
{
    m_statements.clear();
    m_database.reset();
    m_error.clear();
}

bool SqliteAdapter::insert(const char* table, const char* columns, const IDictionary& record,
                           int /*flag*/)
{
    return write("insert", table, columns, record);
}

bool SqliteAdapter::replace(const char* table, const char* columns, const IDictionary& record)
{
    return write("replace", table, columns, record);
}

bool SqliteAdapter::write(const char* verb, const char* table, const char* columns,
                          const IDictionary& record)
{
    const Values values(columns, record);
    if (values.names.empty())
        return run(std::string(verb) + " into " + quotedName(table) + " default values", {});
    return run(insertStatement(verb, table, values.names), values.texts);
}

bool SqliteAdapter::remove(const char* table, const char* condition, int /*reserved*/)
{
    return execute(("delete from " + quotedName(table) + whereClause(condition)).c_str(), 0);
}

bool SqliteAdapter::update(const char* table, const char* columns, const IDictionary& record,
                           const char* condition)
{
    const Values values(columns, record);
    if (values.names.empty())
        return succeed();
    return run("update " + quotedName(table) + " set " + joinedNames(values.names, "=?") +
                   whereClause(condition),
               values.texts);
}

bool SqliteAdapter::query(const char* sql, RecordSet& records)
{
    records.reset({});
    if (m_database == nullptr)
        return fail(kNotOpen);
    SqliteStatement statement(m_database.get(), sql);
    if (!statement.isValid())
        return fail();
    records.reset(keysOf(statement));
    int result = SQLITE_ROW;
    while ((result = statement.step()) == SQLITE_ROW) {
        for (std::size_t i = 0; i < statement.size(); ++i) {
            if (statement.isNull(i))
                records.addNull();
            else
                records.add(statement.valueAt(i));
        }
    }
    return result == SQLITE_DONE ? succeed() : fail();
}

bool SqliteAdapter::forEachRow(const char* sql, const RowVisitor& visit)
{
    if (m_database == nullptr)
        return fail(kNotOpen);
    SqliteStatement statement(m_database.get(), sql);
    if (!statement.isValid())
        return fail();
    int result = SQLITE_ROW;
    while ((result = statement.step()) == SQLITE_ROW) {
        if (!visit(statement))
            return succeed();
    }
    return result == SQLITE_DONE ? succeed() : fail();
}

bool SqliteAdapter::select(const char* table, const char* columns, const char* condition,
                           RecordSet& records, const char* order, int limit, int offset)
{
    return select(table, listedNames(columns), condition, records, order, limit, offset);
}

bool SqliteAdapter::select(const char* table, const std::vector<std::string>& columns,
                           const char* condition, RecordSet& records, const char* order, int limit,
                           int offset)
{
    std::string sql = "select " + (columns.empty() ? "*" : joinedNames(columns)) + " from " +
                      quotedName(table) + whereClause(condition);
    if (order != nullptr && *order != '\0')
        sql += " order by " + std::string(order);
    if (limit > 0 || offset > 0)
        sql += " limit " + std::to_string(limit > 0 ? limit : -1) + " offset " +
               std::to_string(offset);
    return query(sql.c_str(), records);
}

bool SqliteAdapter::execute(const char* sql, int /*reserved*/)
{
    if (m_database == nullptr)
        return fail(kNotOpen);
    const int result = sqlite3_exec(m_database.get(), sql, nullptr, nullptr, nullptr);
    return result == SQLITE_OK ? succeed() : fail();
}

std::int64_t SqliteAdapter::rowCount(const char* table, const char* condition)
{
    std::int64_t count = -1;
    const std::string sql = "select count(*) from " + quotedName(table) + whereClause(condition);
    forEachRow(sql.c_str(), [&](const IDictionary& row) {
        count = std::stoll(std::string(row.valueAt(0)));
        return true;
    });
    return count;
}

bool SqliteAdapter::tableExists(const char* table)
{
    return !columns(table).empty();
}

std::vector<std::string> SqliteAdapter::columns(const char* table)
{
    std::vector<std::string> names;
    forEachRow(("pragma table_info(" + quotedName(table) + ")").c_str(),
               [&](const IDictionary& row) {
                   names.emplace_back(row.text("name"));
                   return true;
               });
    return names;
}

std::int64_t SqliteAdapter::lastInsertId() const
{
    return m_database == nullptr ? 0 : sqlite3_last_insert_rowid(m_database.get());
}

std::unique_ptr<IBulkInsert> SqliteAdapter::bulkInsert(const char* table, const char* columns)
{
    if (m_database == nullptr) {
        fail(kNotOpen);
        return nullptr;
    }
    const std::vector<std::string> names =
        columns == nullptr ? this->columns(table) : listedNames(columns);
    SqliteStatement statement(m_database.get(), insertStatement("insert", table, names));
    if (!statement.isValid()) {
        fail();
        return nullptr;
    }
    succeed();
    return std::make_unique<SqliteBulkInsert>(std::move(statement), static_cast<int>(names.size()),
                                              [this] { fail(); });
}

bool SqliteAdapter::backup(const char* path)
{
    if (m_database == nullptr)
        return fail(kNotOpen);
    const std::string aside = std::string(path) + ".part";
    std::string why = lum::copyDatabase(m_database.get(), aside);
    if (why.empty())
        why = lum::syncFile(aside);
    if (why.empty())
        why = lum::renameFile(aside, path);
    if (why.empty())
        return succeed();
    std::remove(aside.c_str());
    return fail(why);
}

bool SqliteAdapter::beginTransaction()
{
    return execute("begin immediate", 0);
}

bool SqliteAdapter::commit()
{
    return execute("commit", 0);
}

bool SqliteAdapter::rollback()
{
    return execute("rollback", 0);
}

bool SqliteAdapter::run(const std::string& sql, const std::vector<std::string_view>& values)
{
    SqliteStatement* const statement = prepared(sql);
    if (statement == nullptr)
        return false;
    for (std::size_t i = 0; i < values.size(); ++i)
        statement->bind(static_cast<int>(i) + 1, values[i]);
    const bool isDone = statement->step() == SQLITE_DONE;
    const bool result = isDone ? succeed() : fail(); // before rewinding, which clears the message
    statement->rewind();
    return result;
}

SqliteStatement* SqliteAdapter::prepared(const std::string& sql)
{
    if (m_database == nullptr) {
        fail(kNotOpen);
        return nullptr;
    }
    if (const auto found = m_statements.find(sql); found != m_statements.end())
        return found->second.get();
    auto statement = std::make_unique<SqliteStatement>(m_database.get(), sql);
    if (!statement->isValid()) {
        fail();
        return nullptr;
    }
    if (m_statements.size() == kMostStatements)
        m_statements.clear();
    return m_statements.emplace(sql, std::move(statement)).first->second.get();
}

bool SqliteAdapter::fail()
{
    return fail(sqlite3_errmsg(m_database.get()));
}

bool SqliteAdapter::fail(std::string message)
{
    m_error = std::move(message);
    return false;
}

bool SqliteAdapter::succeed()
{
    m_error.clear();
    return true;
}
