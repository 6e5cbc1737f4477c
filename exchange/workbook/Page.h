#pragma once

#include "exchange/workbook/Chart.h"
#include "exchange/workbook/RowCells.h"

/// A page of a workbook that is read from top to bottom and printed on one sheet of paper: titles,
/// values with their names, small tables, charts. Everything is written below what is there.
///
/// A page can be added first and written last, when the figures are known.
class Page final : public RowCells
{
public:
    static constexpr int kColumns = 8; ///< a wide one and seven narrow ones

    /// A workbook makes it: `Workbook::addPage`.
    Page(Workbook& book, const QString& name);

    void addTitle(const QString& text);
    /// A heading, with room above it.
    void addChapter(const QString& text);
    void addValue(const QString& label, const QString& value);
    /// Without decimals when it is a count. A value that is not finite is left out.
    void addValue(const QString& label, double value, int decimals = 0);
    /// A sentence over the whole width.
    void addNote(const QString& text);
    /// Begins a table of up to `kColumns` columns: the first is wide. Its rows are the next cells.
    void beginTable(std::vector<SheetColumn> columns);
    /// The cells of a column of the last table, below its heading.
    [[nodiscard]] CellRange cells(std::size_t column) const;
    /// Charts beside each other, over the whole width.
    void addCharts(const std::vector<Chart>& charts);

private:
    void setUp();
    void writeLine(const QString& label, const QString& value);

    QString m_sheetName;
    std::uint32_t m_firstOfTable = 0;
};
