#pragma once

#include "exchange/workbook/CellFormats.h"

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class Workbook;
struct lxw_worksheet;

/// A column of a table in a workbook.
struct SheetColumn
{
    using Form = CellFormats::Form;

    QString caption; ///< translated, with its unit: "Distance (m)"
    Form form = Form::Text;
    int decimals = 0; ///< of a number or percentage; `CellFormats::kAsNeeded` for what it has
    double width = 0; ///< in characters; 0 for as wide as the widest cell
};

/// Cells of one column, for a chart; rows and columns are counted from 0.
struct CellRange
{
    QString sheet;
    std::uint32_t firstRow = 0;
    std::uint32_t lastRow = 0;
    std::uint16_t column = 0;
};

/// The rows of a table in a workbook: cell after cell, row after row.
class RowCells
{
public:
    virtual ~RowCells() = default;
    RowCells(const RowCells&) = delete;
    RowCells& operator=(const RowCells&) = delete;

    // The next cell of the row. Text that is longer than Excel allows is cut.

    RowCells& text(std::string_view utf8);
    RowCells& text(const QString& text);
    RowCells& text(const char* utf8) { return text(std::string_view(utf8)); }
    /// A number that is not finite leaves the cell empty.
    RowCells& number(double value);
    RowCells& integer(std::int64_t value) { return number(static_cast<double>(value)); }
    /// \param milliseconds since 1970 UTC; the cell is a date in the zone in which the program
    ///                     shows times, and empty for a moment that Excel does not know
    RowCells& time(std::int64_t milliseconds);
    /// The same for a moment that is 0 when nobody noted it.
    RowCells& timeOrBlank(std::int64_t milliseconds)
    {
        return milliseconds == 0 ? blank() : time(milliseconds);
    }
    /// A day without its time, counted from 1970/01/01; empty for one that Excel does not know.
    RowCells& day(std::int64_t days);
    RowCells& blank();
    /// The cells that the row has not got are empty.
    void endRow();

protected:
    /// What the cells of a column have shown so far.
    struct Width
    {
        double text = 0; ///< see `textWidth`
        double smallest = 0;
        double largest = 0;
    };

    explicit RowCells(Workbook& book) : m_book(book) {}

    void setColumns(std::vector<SheetColumn> columns);
    /// The headings, as high as they need to be in columns of these widths.
    template <class WidthOf>
    void writeHeadings(WidthOf widthOf)
    {
        int lines = 1;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            lines = std::max(lines, headingLines(i, widthOf(i)));
        writeHeadingRow(lines);
    }
    /// Called before a row that does not fit on the sheet.
    virtual void continueOn() {}

    Workbook& m_book;
    lxw_worksheet* m_sheet = nullptr; ///< null after a fault
    std::vector<SheetColumn> m_columns;
    std::vector<Width> m_widths;
    std::uint32_t m_row = 0;
    std::size_t m_rowCount = 0; ///< of those that ended

private:
    /// Whether a cell can be written.
    bool beginCell();
    [[nodiscard]] int headingLines(std::size_t column, double width) const;
    void writeHeadingRow(int lines);

    std::vector<lxw_format*> m_formats;
    std::uint16_t m_column = 0;
    std::string m_text;
};
