#pragma once

#include "exchange/workbook/RowCells.h"

#include <QStringList>

/// A caption above those of some neighbouring columns.
struct SheetGroup
{
    QString caption;
    int columns = 1;
};

/// What is not the same for all sheets.
struct SheetLook
{
    QString title = {};                  ///< above the whole table; none when it is empty
    std::vector<SheetGroup> groups = {}; ///< from the left; none when it is empty
    int frozenColumns = 0; ///< how many columns stay in view when the user scrolls to the right
    bool hasFilter = true;
};

/// A table in a workbook: headings, which stay in view and are repeated on every printed page, and
/// rows. Columns get as wide as what they hold.
///
/// Excel ends a sheet at 1,048,576 rows: the table then goes on in another one, "NAME (2)".
class Sheet final : public RowCells
{
public:
    using Colour = CellFormats::Colour;

    /// A workbook makes it: `Workbook::addSheet`.
    Sheet(Workbook& book, const QString& name, std::vector<SheetColumn> columns,
          const SheetLook& look);

    /// Rows below the headings, of all sheets of this table.
    [[nodiscard]] std::size_t rowCount() const { return m_rowCount; }

    // Rules for all cells of a column; sheets of this table that are full already do not get them.
    // Texts and empty cells are no numbers.

    /// Colours numbers whose size, without their sign, is above the limit.
    void colourAbove(std::size_t column, double limit, Colour colour = Colour::Fault);
    /// Colours numbers below the limit.
    void colourBelow(std::size_t column, double limit, Colour colour = Colour::Fault);
    void colourText(std::size_t column, const QString& text, Colour colour = Colour::Fault);
    /// Colours all cells that hold anything.
    void colourFilled(std::size_t column, Colour colour = Colour::Fault);
    /// Lets the user choose from these texts, 255 characters in all.
    void addPickList(std::size_t column, const QStringList& choices);

    /// Ends the table, whose rules are given by then, and leaves a row free: the next rows have its
    /// columns, but are not filtered, coloured or in `cells`.
    void endTable();

    /// The cells below the heading of a column, on the last sheet of this table.
    [[nodiscard]] CellRange cells(std::size_t column) const;

    /// Gives the sheet all that depends on its rows; the workbook calls it.
    void finish();

private:
    struct Rule
    {
        std::size_t column = 0;
        QString condition; ///< a formula, in which %1 is the cell
        Colour colour = Colour::Fault;
    };
    struct PickList
    {
        std::size_t column = 0;
        QStringList choices;
    };

    void begin(const QString& name);
    void continueOn() override;
    void writeTitle();
    void writeGroups();
    /// Writes a caption over some columns of the row.
    void writeAcross(std::size_t first, std::size_t count, const QString& caption,
                     lxw_format* format);
    /// Of the rows below the headings.
    [[nodiscard]] std::uint32_t firstRow() const;
    /// Behind the last row of the table, which has one at least.
    [[nodiscard]] std::uint32_t tableEnd() const;
    void finishTable();
    void setUpPrinting();
    void setWidths();
    void applyRules();
    void applyPickLists();
    /// Of what the column has shown so far, in characters.
    [[nodiscard]] double widthOf(std::size_t column) const;
    /// What a column needs so that the caption above it and its neighbours is whole.
    [[nodiscard]] double widthOfGroup(std::size_t column) const;

    QString m_name; ///< as it was asked for
    QString m_sheetName;
    SheetLook m_look;
    std::vector<Rule> m_rules;
    std::vector<PickList> m_pickLists;
    std::uint32_t m_endOfTable = 0; ///< 0 while rows are added to it
    int m_part = 1;
};
