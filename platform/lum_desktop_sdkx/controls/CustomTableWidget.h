#pragma once

#include <QStringList>
#include <QTableView>

#include <vector>

/// The table of a record model, for half a million rows: one row height, whole rows selected,
/// columns as wide as header and first rows ask for, Ctrl+C copies the selected rows.
class CustomTableWidget : public QTableView
{
    Q_OBJECT

public:
    explicit CustomTableWidget(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    /// The selected rows as they are shown, top to bottom: visible columns from left to right
    /// separated by tab, each row ended by a line feed, no header. Tabs and line breaks inside a
    /// cell are given as blanks. Empty when nothing is selected.
    [[nodiscard]] QString selectedRowsText() const;

    /// Puts that text on the clipboard; without a selection the clipboard stays as it is.
    void copySelection();

    /// Selects the row and scrolls up or down until it can be seen; passes over a row that is not
    /// there.
    void showRow(int row);

    /// Hides the columns with these captions and shows all others, also after the model was reset.
    void setHiddenColumns(const QStringList& captions);

Q_SIGNALS:
    /// The user asks for a menu on a cell; its row is selected by then.
    void contextMenuRequestedAt(const QModelIndex& index, const QPoint& globalPos);

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
    int m_fittedColumns = 0; ///< how many columns got their width from rows; then it is the user's
};
