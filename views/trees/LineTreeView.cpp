#include "views/trees/LineTreeView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSet>

namespace {

void addLines(const QTreeWidgetItem& above, std::vector<LineItem*>& lines)
{
    for (int i = 0; i < above.childCount(); ++i) {
        auto* const item = static_cast<LineItem*>(above.child(i));
        if (item->isLine())
            lines.push_back(item);
        else
            addLines(*item, lines);
    }
}

} // namespace

LineTreeView::LineTreeView(QWidget* parent) : QTreeWidget(parent)
{
    setFrameStyle(QFrame::NoFrame);
    setHeaderHidden(true);
    setUniformRowHeights(true); // else a rebuild asks each item for its height
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    connect(this, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { Q_EMIT chosen(static_cast<LineItem&>(*item)); });
}

LineItem* LineTreeView::root() const
{
    return static_cast<LineItem*>(topLevelItem(0));
}

LineItem* LineTreeView::current() const
{
    return static_cast<LineItem*>(currentItem());
}

LineItem* LineTreeView::firstSelected() const
{
    const QItemSelection selected = selectionModel()->selection();
    return selected.isEmpty() ? nullptr
                              : static_cast<LineItem*>(itemFromIndex(selected.front().topLeft()));
}

std::vector<LineItem*> LineTreeView::lines() const
{
    std::vector<LineItem*> all;
    addLines(*root(), all);
    return all;
}

LineItem* LineTreeView::findLine(const QString& number) const
{
    for (LineItem* item : lines()) {
        if (item->lineNumber() == number)
            return item;
    }
    return nullptr;
}

QStringList LineTreeView::selectedLines() const
{
    QStringList numbers;
    for (const LineItem* item : lines()) {
        if (item->isSelected())
            numbers << item->lineNumber();
    }
    return numbers;
}

void LineTreeView::selectLines(const QStringList& numbers)
{
    const QSet<QString> wanted(numbers.begin(), numbers.end());
    QItemSelection selection;
    for (const LineItem* item : lines()) {
        if (!wanted.contains(item->lineNumber()))
            continue;
        const QModelIndex index = indexFromItem(item);
        const QModelIndex above = index.siblingAtRow(index.row() - 1);
        // Few long ranges: the selection model looks at each of them often.
        if (!selection.isEmpty() && selection.back().bottomRight() == above)
            selection.back() = QItemSelectionRange(selection.back().topLeft(), index);
        else
            selection.append(QItemSelectionRange(index));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void LineTreeView::selectOnly(LineItem& item)
{
    setCurrentItem(&item, 0, QItemSelectionModel::ClearAndSelect);
    scrollToItem(&item);
}

void LineTreeView::deselectBelowRoot()
{
    const int count = root()->childCount();
    if (count > 0)
        selectionModel()->select(
            {indexFromItem(root()->child(0)), indexFromItem(root()->child(count - 1))},
            QItemSelectionModel::Deselect);
}

void LineTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard && currentItem() != nullptr) {
        scrollToItem(currentItem());
        place = viewport()->mapToGlobal(visualItemRect(currentItem()).center());
    }
    Q_EMIT menuRequestedAt(place);
}

void LineTreeView::keyPressEvent(QKeyEvent* event)
{
    LineItem* const before = current();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (before != nullptr)
            Q_EMIT chosen(*before);
        return;
    case Qt::Key_Delete:
        Q_EMIT deleteRequested();
        return;
    default:
        QTreeWidget::keyPressEvent(event);
    }
    if (current() != nullptr && current() != before)
        Q_EMIT reachedByKey(*current());
}
