#pragma once

#include "basalt_utilities/IDictionary.h"

#include <string>
#include <vector>

/// The rows of a query, in order.
///
/// All rows share one column list and one long text; a row is a light view of them. A column
/// without a value (NULL) is missing from its row's look-ups, and empty text by index.
class RecordSet
{
public:
    /// One row, to be read only; valid until the set changes.
    class Row final : public IDictionary
    {
    public:
        Row(const RecordSet& records, std::size_t index) : m_records(records), m_index(index) {}

        [[nodiscard]] std::optional<std::string_view> find(std::string_view key) const override;
        bool set(std::string_view /*key*/, std::string_view /*value*/) override { return false; }
        bool remove(std::string_view /*key*/) override { return false; }
        void clear() override {}

        [[nodiscard]] std::size_t size() const override;
        [[nodiscard]] std::string_view keyAt(std::size_t index) const override;
        [[nodiscard]] std::string_view valueAt(std::size_t index) const override;

    private:
        const RecordSet& m_records;
        std::size_t m_index;
    };

    [[nodiscard]] std::size_t size() const;
    [[nodiscard]] bool isEmpty() const { return size() == 0; }
    /// `index < size()`.
    [[nodiscard]] Row operator[](std::size_t index) const { return {*this, index}; }
    [[nodiscard]] const std::vector<std::string>& columns() const { return m_columns; }

    /// Removes all rows and sets the columns; the memory is kept for the next rows.
    void reset(std::vector<std::string> columns);
    /// The cells of a row are added one after the other, one for each column.
    void add(std::string_view text);
    void addNull();

private:
    [[nodiscard]] std::string_view cell(std::size_t row, std::size_t column) const;
    [[nodiscard]] bool isNull(std::size_t row, std::size_t column) const;

    std::vector<std::string> m_columns;
    std::string m_text;              ///< the cells, one behind the other
    std::vector<std::size_t> m_ends; ///< of each cell in the text
    std::vector<bool> m_nulls;
};
