#include "lum_desktop_sdkx/controls/PropertyGridView.h"

#include "lum_desktop_sdkx/controls/PropertyGridDelegate.h"
#include "lum_desktop_sdkx/controls/PropertyGridModel.h"
#include "lum_sdk/DpiScale.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int kIndent = 14;
constexpr int kFewRows = 3;

bool isGroup(const QModelIndex& index)
{
    return index.isValid() && !index.parent().isValid();
}

/// The value of a row; that of a check box as it is stored.
QString copiedText(const QModelIndex& row)
{
    const QModelIndex value = row.siblingAtColumn(PropertyGridModel::Value);
    const bool isFlag = value.data(Qt::CheckStateRole).isValid();
    return value.data(isFlag ? Qt::EditRole : Qt::DisplayRole).toString();
}

bool isEnterable(const QModelIndex& index)
{
    return (index.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)) != 0;
}

QColor blend(const QColor& base, const QColor& ink, double share)
{
    const auto mix = [share](int from, int to) { return from + qRound((to - from) * share); };
    return {mix(base.red(), ink.red()), mix(base.green(), ink.green()),
            mix(base.blue(), ink.blue())};
}

} // namespace

PropertyGridView::PropertyGridView(QWidget* parent) : QTreeView(parent)
{
    setAlternatingRowColors(true);
    setRootIsDecorated(false);
    setIndentation(dpi_scaled(kIndent));
    setExpandsOnDoubleClick(false);
    setVerticalScrollMode(ScrollPerPixel); // so that the last row can be seen whole
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    header()->setSectionsMovable(false);
    header()->setHighlightSections(false);
    connect(this, &QTreeView::clicked, this, &PropertyGridView::handleClick);
    connect(header(), &QHeaderView::sectionResized, this, [this] { scheduleDelayedItemsLayout(); });
}

void PropertyGridView::commitEditor()
{
    auto* const delegate = qobject_cast<QStyledItemDelegate*>(itemDelegate());
    QWidget* const editor = indexWidget(currentIndex());
    if (delegate != nullptr && editor != nullptr)
        Q_EMIT delegate->commitData(editor);
}

void PropertyGridView::copyValue()
{
    if (currentIndex().isValid() && !isGroup(currentIndex()))
        QGuiApplication::clipboard()->setText(copiedText(currentIndex()));
}

void PropertyGridView::copyAll()
{
    QString text;
    for (int g = 0; g < model()->rowCount(); ++g) {
        const QModelIndex group = model()->index(g, 0);
        for (int r = 0; r < model()->rowCount(group); ++r) {
            const QModelIndex caption = model()->index(r, PropertyGridModel::Caption, group);
            if (!isRowHidden(r, group))
                text += caption.data().toString() + QLatin1Char('\t') +
                        copiedText(caption).simplified() + QLatin1Char('\n');
        }
    }
    QGuiApplication::clipboard()->setText(text);
}

void PropertyGridView::spanGroups()
{
    for (int i = 0; i < model()->rowCount(); ++i)
        setFirstColumnSpanned(i, {}, true);
    expandAll();
}

QSize PropertyGridView::sizeHint() const
{
    const int row = std::max(sizeHintForRow(0), fontMetrics().height());
    return {QTreeView::sizeHint().width(), kFewRows * row + 2 * frameWidth()};
}

void PropertyGridView::handleClick(const QModelIndex& index)
{
    if (isGroup(index)) {
        setExpanded(index, !isExpanded(index));
        return;
    }
    const QModelIndex value = index.siblingAtColumn(PropertyGridModel::Value);
    if (currentIndex() != value)
        setCurrentIndex(value);
    scrollTo(value); // the base class does not scroll while a mouse button is down
    if (value.flags().testFlag(Qt::ItemIsEditable))
        edit(value);
}

void PropertyGridView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    if (isGroup(index)) {
        drawGroup(painter, option, index);
        return;
    }
    const QRect& rect = option.rect;
    const auto* const delegate = qobject_cast<const PropertyGridDelegate*>(itemDelegate());
    const int noteHeight = delegate != nullptr ? delegate->noteHeight(*this, index) : 0;
    QStyleOptionViewItem upper(option);
    upper.rect.setHeight(rect.height() - noteHeight);
    QTreeView::drawRow(painter, upper, index);
    painter->save();
    if (noteHeight > 0) {
        painter->setPen(palette().color(QPalette::Text));
        delegate->drawNote(*painter, *this, rect.adjusted(0, upper.rect.height(), 0, 0), index);
    }
    painter->setPen(blend(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.14));
    const int middle = columnViewportPosition(PropertyGridModel::Value) - 1;
    painter->drawLine(middle, rect.top(), middle, upper.rect.bottom());
    painter->drawLine(rect.left(), rect.bottom(), rect.right(), rect.bottom());
    painter->restore();
}

void PropertyGridView::drawGroup(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const
{
    const QColor base = palette().color(QPalette::Base);
    const QColor ink = palette().color(QPalette::Text);
    painter->save();
    painter->fillRect(option.rect, blend(base, ink, 0.11));

    QStyleOptionViewItem arrow(option);
    arrow.rect = QRect(option.rect.left() + dpi_scaled(3), option.rect.top(), dpi_scaled(kIndent),
                       option.rect.height());
    const bool isOpen = isExpanded(index);
    style()->drawPrimitive(isOpen ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight,
                           &arrow, painter, this);

    QFont font = option.font;
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(ink);
    const QRect place = option.rect.adjusted(dpi_scaled(kIndent) + dpi_scaled(8), 0, 0, 0);
    const QString text =
        QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, place.width());
    painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft, text);
    if (index == currentIndex() && hasFocus()) {
        painter->setPen(palette().color(QPalette::Highlight));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

/// Paints nothing: the indent is enough, and styles would paint dotted lines.
void PropertyGridView::drawBranches(QPainter* painter, const QRect& rect,
                                    const QModelIndex& index) const
{
    if (selectionModel()->isSelected(index))
        painter->fillRect(rect, palette().brush(QPalette::Highlight));
}

QModelIndex PropertyGridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveNext || action == MovePrevious) // Tab and Shift+Tab in an editor
        return neighbourValue(action == MoveNext);
    const QModelIndex target = QTreeView::moveCursor(action, modifiers);
    return isGroup(target) ? target : target.siblingAtColumn(PropertyGridModel::Value);
}

QModelIndex PropertyGridView::neighbourValue(bool next) const
{
    QModelIndex at = currentIndex();
    if (!at.isValid() && next)
        at = model()->index(0, 0);
    while (at.isValid()) {
        at = next ? indexBelow(at) : indexAbove(at);
        const QModelIndex value = at.siblingAtColumn(PropertyGridModel::Value);
        if (!isGroup(at) && isEnterable(value))
            return value;
    }
    return {};
}

bool PropertyGridView::focusNextPrevChild(bool next)
{
    const QModelIndex target = neighbourValue(next);
    if (!target.isValid())
        return QTreeView::focusNextPrevChild(next);
    setCurrentIndex(target);
    if (target.flags().testFlag(Qt::ItemIsEditable))
        edit(target);
    return true;
}
