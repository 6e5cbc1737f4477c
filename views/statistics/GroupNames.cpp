#include "views/statistics/GroupNames.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>

GroupNames::GroupNames(CustomTableWidget& table) : QTableView(&table), m_table(table)
{
    setModel(table.model());
    QItemSelectionModel* const own = selectionModel();
    setSelectionModel(table.selectionModel());
    delete own;
    setObjectName(QStringLiteral("groupNames"));
    setFrameStyle(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(table.alternatingRowColors());
    setShowGrid(table.showGrid());
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle); // the beginning or the end tells a name from others
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(table.verticalScrollMode());
    connect(horizontalHeader(), &QHeaderView::sectionPressed, &table,
            [this] { m_table.horizontalScrollBar()->setValue(0); }); // to the one that sorts
    connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, &GroupNames::place);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(table.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, table.verticalScrollBar(),
            &QScrollBar::setValue);
    connect(table.horizontalHeader(), &QHeaderView::sectionResized, this, &GroupNames::place);
    table.viewport()->installEventFilter(this);
    follow();
}

void GroupNames::follow()
{
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnHidden(column, column > 0);
    place();
}

void GroupNames::place()
{
    QHeaderView& rows = *verticalHeader();
    const int height = m_table.verticalHeader()->defaultSectionSize();
    rows.setMinimumSectionSize(height);
    rows.setDefaultSectionSize(height);
    const QRect area = m_table.viewport()->geometry();
    const int width = m_table.columnWidth(0);
    setColumnWidth(0, width);
    // While it is not scrolled, the table's own heading is seen, which sorts and is dragged.
    const bool isScrolled = m_table.horizontalScrollBar()->value() > 0;
    const int heading = isScrolled ? m_table.horizontalHeader()->height() : 0;
    horizontalHeader()->setVisible(isScrolled);
    horizontalHeader()->setFixedHeight(m_table.horizontalHeader()->height());
    horizontalHeader()->setSectionsClickable(true);
    setGeometry(area.x(), area.y() - heading, qMin(width, area.width()), area.height() + heading);
    verticalScrollBar()->setValue(m_table.verticalScrollBar()->value());
}

int GroupNames::firstSeenColumn() const
{
    int column = 1;
    while (column + 1 < model()->columnCount() && m_table.columnViewportPosition(column) < width())
        ++column;
    return column;
}

bool GroupNames::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOther = event->type() == QEvent::Resize || event->type() == QEvent::Move ||
                         event->type() == QEvent::Show;
    if (watched == m_table.viewport() && isOther)
        place();
    return QTableView::eventFilter(watched, event);
}

/// The names are seen wherever the table is scrolled to: it stays there.
void GroupNames::mousePressEvent(QMouseEvent* event)
{
    m_table.setAutoScroll(false);
    QTableView::mousePressEvent(event);
}

void GroupNames::mouseReleaseEvent(QMouseEvent* event)
{
    QTableView::mouseReleaseEvent(event);
    // The keys go on from a figure that is seen.
    selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(firstSeenColumn()),
                                      QItemSelectionModel::NoUpdate);
    m_table.setAutoScroll(true);
    m_table.setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::LeftButton)
        Q_EMIT chosen();
}

void GroupNames::contextMenuEvent(QContextMenuEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid())
        Q_EMIT m_table.contextMenuRequestedAt(index, event->globalPos());
}

/// A table wider than its window is scrolled to the side from here, too.
void GroupNames::wheelEvent(QWheelEvent* event)
{
    QApplication::sendEvent(m_table.viewport(), event);
}
