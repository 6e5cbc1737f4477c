#pragma once

#include <QStringList>
#include <QTableView>

#include <vector>

/// A table for record models of up to half a million rows. All rows have one height, and whole rows
/// are selected. Header and first rows decide the column widths. Ctrl+C copies the selected rows.
class CustomTableWidget : public QTableView
{
    Q_OBJECT

public:
    explicit CustomTableWidget(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    /// The selected rows as they are shown, from top to bottom, without header. Tabs separate the
    /// visible columns, from left to right, and a line feed ends each row. Tabs and line breaks
    /// inside a cell become blanks. Empty when nothing is selected.
    [[nodiscard]] QString selectedRowsText() const;

    /// Copies the selected rows to the clipboard. Without a selection the clipboard stays as it is.
    void copySelection();

    /// Selects a row and scrolls up or down until it can be seen. Ignores a row that does not
    /// exist.
    void showRow(int row);

    /// Hides the columns with these captions and shows all others, also after a reset of the model.
    void setHiddenColumns(const QStringList& captions);

Q_SIGNALS:
    /// The user wants a context menu on a cell. Its row is selected already.
    void contextMenuRequestedAt(const QModelIndex& index, const QPoint& globalPos);

    /// The user has gone to a cell of another row by key, or pressed Enter on a cell.
    void reachedByKey(const QModelIndex& index);

protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fitRowHeight();
    void fitColumnsOnce();
    void hideColumns();
    [[nodiscard]] int wantedWidth(int column) const;
    [[nodiscard]] std::vector<int> shownColumns() const;
    [[nodiscard]] QString cellText(const QModelIndex& index) const;

    QStringList m_hiddenCaptions;
    int m_fittedColumns = 0; ///< the columns that have got their width; it is the user's now
};
