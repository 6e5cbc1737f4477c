#pragma once

#include <QStringList>
#include <QTableView>

#include <utility>
#include <vector>

class FilterHeader;

/// A table for record models of up to half a million rows. All rows have one height. Captions, rows
/// from all over the table and the longest texts that the model names decide the column widths.
///
/// Clicks and keys select whole rows, and so does a drag within a column; a drag to another column
/// selects the rectangle of cells. Ctrl+C copies what is selected, Ctrl+Shift+C the captions of its
/// columns as well.
class CustomTableWidget : public QTableView
{
    Q_OBJECT

public:
    enum class Captions
    {
        Without,
        With
    };

    /// The role of a heading: texts that its column always has room for (QStringList).
    static constexpr int kLongestTextsRole = Qt::UserRole + 32;

    explicit CustomTableWidget(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    /// The rows of which a cell is selected, in order.
    [[nodiscard]] std::vector<int> selectedRows() const;
    [[nodiscard]] int selectedRowCount() const;

    /// These rows as they are shown, from top to bottom, without header. Tabs separate the visible
    /// columns, from left to right, and a line feed ends each row. Tabs and line breaks inside a
    /// cell become blanks. Empty when nothing is selected.
    [[nodiscard]] QString selectedRowsText(Captions captions = Captions::Without) const;

    /// Copies what is selected to the clipboard: rows as in `selectedRowsText`, or the columns of a
    /// rectangle alone. Without a selection the clipboard stays as it is.
    void copySelection(Captions captions = Captions::Without);

    /// Selects a row and scrolls up or down until it can be seen. Ignores a row that does not
    /// exist.
    void showRow(int row);

    /// Gives a column more room when its texts have become longer than it is wide.
    void widenColumn(int column);

    /// Hides the columns with these captions and shows all others, also after a reset of the model.
    void setHiddenColumns(const QStringList& captions);

    /// A click on a caption asks for another order (`orderRequested`) from now on: first ascending,
    /// then descending, then the model's own. Sorting is the model's task.
    void enableSorting();

    /// Puts a row of filter fields under the captions. The table owns the header; a table that had
    /// a header set up before loses what was set up.
    FilterHeader& addFilterRow();

Q_SIGNALS:
    /// The user wants a context menu on a cell. Its row is selected already.
    void contextMenuRequestedAt(const QModelIndex& index, const QPoint& globalPos);

    /// The same on a caption.
    void headerMenuRequestedAt(int column, const QPoint& globalPos);

    /// The user has gone to a cell of another row by key, or pressed Enter on a cell.
    void reachedByKey(const QModelIndex& index);

    /// The user has selected cells of several rows with the mouse held down.
    void selectedByDrag();

    /// \param column -1 for the model's own order
    void orderRequested(int column, Qt::SortOrder order);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event) const override;

private:
    using Runs = std::vector<std::pair<int, int>>;

    void setUpHeader();
    void fitRowHeight();
    void fitColumnsOnce();
    void hideColumns();
    void requestOrder(int column);
    [[nodiscard]] int wantedWidth(int column) const;
    [[nodiscard]] Runs selectedRuns() const;
    [[nodiscard]] std::vector<int> shownColumns() const;
    [[nodiscard]] std::vector<int> selectedColumns() const;
    [[nodiscard]] QString textOf(const std::vector<int>& columns, Captions captions) const;
    [[nodiscard]] QString cellText(const QModelIndex& index) const;

    QStringList m_hiddenCaptions;
    int m_fittedColumns = 0; ///< the columns that have got their width; it is the user's now
    bool m_isSortable = false;
    int m_orderColumn = -1;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    int m_pressedRow = -1; ///< where a drag began
    int m_pressedColumn = -1;
};
