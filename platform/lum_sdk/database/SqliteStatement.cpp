#include "lum_sdk/database/SqliteStatement.h"

#include <sqlite3.h>

SqliteStatement::SqliteStatement(sqlite3* database, std::string_view sql)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
    m_statement.reset(statement);
    m_size = static_cast<std::size_t>(sqlite3_column_count(statement));
}

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

void SqliteStatement::bind(int index, std::string_view text)
{
    // A null pointer would be bound as NULL.
    sqlite3_bind_text(m_statement.get(), index, text.empty() ? "" : text.data(),
                      static_cast<int>(text.size()), SQLITE_STATIC);
}

int SqliteStatement::step()
{
    return sqlite3_step(m_statement.get());
}

void SqliteStatement::rewind()
{
    sqlite3_reset(m_statement.get());
}

bool SqliteStatement::isNull(std::size_t index) const
{
    return sqlite3_column_type(m_statement.get(), static_cast<int>(index)) == SQLITE_NULL;
}

std::optional<std::string_view> SqliteStatement::find(std::string_view key) const
{
    for (std::size_t i = 0; i < m_size; ++i) {
        if (keyAt(i) == key)
            return isNull(i) ? std::nullopt : std::optional<std::string_view>(valueAt(i));
    }
    return std::nullopt;
}

std::string_view SqliteStatement::keyAt(std::size_t index) const
{
    const char* const name = sqlite3_column_name(m_statement.get(), static_cast<int>(index));
    return name == nullptr ? std::string_view() : std::string_view(name);
}

std::string_view SqliteStatement::valueAt(std::size_t index) const
{
    const int column = static_cast<int>(index);
    // The text first: converting the value to text may change the length.
    const unsigned char* const text = sqlite3_column_text(m_statement.get(), column);
    if (text == nullptr)
        return {};
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(size)};
}
