#pragma once

#include "exchange/workbook/CellFormats.h"

#include <QString>
#include <QStringList>

#include <cstdint>
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
    int decimals = 0; ///< of a number or percentage
    double width = 0; ///< in characters; 0 for as wide as the widest cell
};

/// What is not the same for all tables.
struct SheetLook
{
    int frozenColumns = 0; ///< how many columns stay in view when the user scrolls to the right
    bool hasFilter = true;
};

/// Cells of one column, for a chart or a pick list; rows and columns are counted from 0.
struct CellRange
{
    QString sheet;
    std::uint32_t firstRow = 0;
    std::uint32_t lastRow = 0;
    std::uint16_t column = 0;
};

/// A table in a workbook: headings, which stay in view and are repeated on every printed page, and
/// rows, which are written one after the other. Columns get as wide as what they hold.
///
/// Excel ends a sheet at 1,048,576 rows: the table then goes on in another one, "NAME (2)".
class Sheet
{
public:
    using Colour = CellFormats::Colour;

    Sheet(Workbook& book, const QString& name, std::vector<SheetColumn> columns,
          const SheetLook& look);

    // The next cell of the row. Text that is longer than Excel allows is cut.

    Sheet& text(std::string_view utf8);
    Sheet& text(const QString& text);
    /// A number that is not finite leaves the cell empty.
    Sheet& number(double value);
    Sheet& integer(std::int64_t value) { return number(static_cast<double>(value)); }
    /// \param milliseconds since 1970 UTC; the cell is a date in the zone in which the program
    ///                     shows times
    Sheet& time(std::int64_t milliseconds);
    Sheet& blank();
    /// The cells that the row has not got are empty.
    void endRow();

    /// Rows below the headings, of all sheets of this table.
    [[nodiscard]] std::size_t rowCount() const { return m_rowCount; }

    // Rules for all cells of a column, to be given at any time. Empty cells and texts never count
    // as numbers.

    /// Colours numbers whose size, without their sign, is above the limit.
    void colourAbove(std::size_t column, double limit, Colour colour = Colour::Fault);
    /// Colours numbers below the limit.
    void colourBelow(std::size_t column, double limit, Colour colour = Colour::Fault);
    void colourText(std::size_t column, const QString& text, Colour colour = Colour::Fault);
    /// Lets the user choose from these texts, 255 characters in all.
    void addPickList(std::size_t column, const QStringList& choices);

    /// The cells below the heading of a column, of the last sheet of this table.
    [[nodiscard]] CellRange cells(std::size_t column) const;

    /// Gives the sheet all that depends on its rows; the workbook calls it.
    void finish();

private:
    struct Width
    {
        double text = 0; ///< in characters
        double smallest = 0;
        double largest = 0;
    };
    struct Rule
    {
        std::size_t column;
        QString condition; ///< a formula, in which %1 is the cell
        Colour colour;
    };
    struct PickList
    {
        std::size_t column;
        QStringList choices;
    };

    void begin(const QString& name);
    void writeHeadings();
    void setUpPrinting();
    void setWidths();
    void applyRules();
    void applyPickLists();
    [[nodiscard]] double widthOf(std::size_t column) const;
    /// Whether a cell can be written; begins the next sheet when this one is full.
    bool beginCell();

    Workbook& m_book;
    QString m_name; ///< as it was asked for
    QString m_sheetName;
    std::vector<SheetColumn> m_columns;
    SheetLook m_look;
    std::vector<lxw_format*> m_formats;
    std::vector<Width> m_widths;
    std::vector<Rule> m_rules;
    std::vector<PickList> m_pickLists;
    lxw_worksheet* m_sheet = nullptr; ///< null after a fault
    int m_part = 1;
    std::uint32_t m_row = 0;
    std::uint16_t m_column = 0;
    std::size_t m_rowCount = 0;
    std::string m_text;
};
