#pragma once

#include "basalt_utilities/IDictionary.h"

#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement. It is also its current row, as a dictionary that can only be read: views
/// of values are valid until the next step, and `find` has no value for a NULL.
class SqliteStatement final : public IDictionary
{
public:
    /// Prepares the first statement of `sql`. When the database refuses it, the object is not valid
    /// and the connection holds the message.
    SqliteStatement(sqlite3* database, std::string_view sql);

    [[nodiscard]] bool isValid() const { return m_statement != nullptr; }

    /// \param index from 1; the text must stay alive until `rewind`
    void bind(int index, std::string_view text);

    /// SQLITE_ROW, SQLITE_DONE or an error.
    int step();
    void rewind();

    [[nodiscard]] bool isNull(std::size_t index) const;

    [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const override;
    bool set(std::string_view /*key*/, std::string_view /*value*/) override { return false; }
    bool remove(std::string_view /*key*/) override { return false; }
    void clear() override {}
    [[nodiscard]] std::size_t size() const override { return m_size; }
    [[nodiscard]] std::string_view keyAt(std::size_t index) const override;
    [[nodiscard]] std::string_view valueAt(std::size_t index) const override;

private:
    struct Finalizer
    {
        void operator()(sqlite3_stmt* statement) const;
    };

    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
    std::size_t m_size = 0; ///< columns of a row
};
