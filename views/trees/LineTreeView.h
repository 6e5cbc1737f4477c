#pragma once

#include "views/trees/LineItem.h"

#include <QTreeWidget>

#include <vector>

/// The tree in a window of lines, one root item at its top. All items are `LineItem`. Several can
/// be selected.
class LineTreeView final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit LineTreeView(QWidget* parent);

    [[nodiscard]] LineItem* root() const;
    /// Null when there is none.
    [[nodiscard]] LineItem* current() const;
    /// The first one selected, which decides on the menu; null without a selection.
    [[nodiscard]] LineItem* firstSelected() const;
    /// All lines, from top to bottom.
    [[nodiscard]] std::vector<LineItem*> lines() const;
    /// Null when no line has this number.
    [[nodiscard]] LineItem* findLine(const QString& number) const;
    /// The numbers of the selected lines, from top to bottom.
    [[nodiscard]] QStringList selectedLines() const;

    // What the user does has signals; these have none.

    /// Selects these lines and nothing else; lines that are not there are passed over.
    void selectLines(const QStringList& numbers);
    /// Makes the item current, and scrolls until it can be seen.
    void selectOnly(LineItem& item);
    void deselectBelowRoot(); ///< the root's own items, not what is below them

Q_SIGNALS:
    /// The user has clicked an item, or pressed Enter on it.
    void chosen(const LineItem& item);
    /// The user has gone to another item by key.
    void reachedByKey(const LineItem& item);
    /// The user wants a menu for what is selected.
    void menuRequestedAt(const QPoint& globalPos);
    void deleteRequested();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
