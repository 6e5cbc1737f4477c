#pragma once

#include <QTableView>

class CustomTableWidget;

/// The first column of a table, laid over it: the names of the rows stay when figures are scrolled.
/// It shares model and selection, and scrolls up and down with the table.
class GroupNames final : public QTableView
{
    Q_OBJECT

public:
    /// \param table has its model; owns this
    explicit GroupNames(CustomTableWidget& table);

    /// To be called when there are other columns.
    void follow();

Q_SIGNALS:
    /// The user has selected rows here with the mouse.
    void chosen();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    /// Of the figures, beside the names.
    [[nodiscard]] int firstSeenColumn() const;

    CustomTableWidget& m_table;
};
