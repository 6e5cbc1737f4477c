#include "lum_desktop_sdkx/controls/CustomTableWidget.h"

#include "lum_desktop_sdkx/controls/CellDelegate.h"
#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "lum_sdk/DpiScale.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int kSampleRows = 50;
constexpr int kRowPadding = 6;   ///< above and below the text, together
constexpr int kCellPadding = 18; ///< left and right of the text, together
constexpr int kMarkGap = 14;     ///< between a mark and its text
constexpr int kArrowRoom = 14;   ///< of the sign for the order, beside a caption
constexpr int kMaxInitialWidth = 320;
constexpr int kMinColumnWidth = 36;

void blankBreaks(QString& text)
{
    const auto isBreak = [](QChar c) {
        return c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    };
    if (std::any_of(text.cbegin(), text.cend(), isBreak)) // else the text stays shared
        std::replace_if(text.begin(), text.end(), isBreak, QLatin1Char(' '));
}

} // namespace

CustomTableWidget::CustomTableWidget(QWidget* parent) : QTableView(parent)
{
    setSelectionBehavior(SelectItems); // of whole rows, but for rectangles: see selectionCommand
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new CellDelegate(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setUpHeader();
    fitRowHeight();
}

void CustomTableWidget::setUpHeader()
{
    QHeaderView* const header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setMinimumSectionSize(dpi_scaled(kMinColumnWidth));
    header->setTextElideMode(Qt::ElideRight);
    header->setHighlightSections(false); // it would look at every selected row
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint& pos) {
        const int column = header->logicalIndexAt(pos);
        if (column >= 0)
            Q_EMIT headerMenuRequestedAt(column, header->mapToGlobal(pos));
    });
    // The base class selects a column when its caption is pressed.
    disconnect(header, SIGNAL(sectionPressed(int)), this, SLOT(selectColumn(int)));
    disconnect(header, SIGNAL(sectionEntered(int)), this, SLOT(_q_selectColumn(int)));
    connect(header, &QHeaderView::sectionClicked, this, &CustomTableWidget::requestOrder);
    if (m_isSortable)
        enableSorting();
}

void CustomTableWidget::enableSorting()
{
    m_isSortable = true;
    QHeaderView* const header = horizontalHeader();
    header->setSectionsClickable(true);
    header->setSortIndicator(m_orderColumn, m_order);
    header->setSortIndicatorShown(true);
}

FilterHeader& CustomTableWidget::addFilterRow()
{
    auto* const header = new FilterHeader(this);
    setHorizontalHeader(header);
    setUpHeader();
    header->show();
    updateGeometries();
    return *header;
}

void CustomTableWidget::requestOrder(int column)
{
    if (!m_isSortable)
        return;
    if (column != m_orderColumn) {
        m_orderColumn = column;
        m_order = Qt::AscendingOrder;
    } else if (m_order == Qt::AscendingOrder) {
        m_order = Qt::DescendingOrder;
    } else {
        m_orderColumn = -1;
        m_order = Qt::AscendingOrder;
    }
    horizontalHeader()->setSortIndicator(m_orderColumn, m_order); // the click has changed it
    Q_EMIT orderRequested(m_orderColumn, m_order);
}

void CustomTableWidget::setModel(QAbstractItemModel* model)
{
    if (QAbstractItemModel* const old = QTableView::model()) {
        disconnect(old, &QAbstractItemModel::modelReset, this, &CustomTableWidget::hideColumns);
        disconnect(old, &QAbstractItemModel::modelReset, this, &CustomTableWidget::fitColumnsOnce);
        disconnect(old, &QAbstractItemModel::layoutChanged, this,
                   &CustomTableWidget::fitColumnsOnce);
        disconnect(old, &QAbstractItemModel::rowsInserted, this,
                   &CustomTableWidget::fitColumnsOnce);
        disconnect(old, &QAbstractItemModel::layoutAboutToBeChanged, this,
                   &CustomTableWidget::halveFullSelection);
    }
    if (model != nullptr) // before the selection model hears of it
        connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this,
                &CustomTableWidget::halveFullSelection);
    QTableView::setModel(model);
    m_fittedColumns = 0;
    if (model == nullptr)
        return;
    connect(model, &QAbstractItemModel::modelReset, this, &CustomTableWidget::hideColumns);
    connect(model, &QAbstractItemModel::modelReset, this, &CustomTableWidget::fitColumnsOnce);
    connect(model, &QAbstractItemModel::layoutChanged, this, &CustomTableWidget::fitColumnsOnce);
    connect(model, &QAbstractItemModel::rowsInserted, this, &CustomTableWidget::fitColumnsOnce);
    fitColumnsOnce();
}

CustomTableWidget::Runs CustomTableWidget::selectedRuns() const
{
    Runs runs;
    if (selectionModel() == nullptr)
        return runs;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        runs.emplace_back(range.top(), range.bottom());
    std::sort(runs.begin(), runs.end());
    Runs merged;
    for (const auto& [first, last] : runs) {
        if (merged.empty() || first > merged.back().second + 1)
            merged.emplace_back(first, last);
        else
            merged.back().second = std::max(merged.back().second, last);
    }
    return merged;
}

std::vector<int> CustomTableWidget::selectedRows() const
{
    std::vector<int> rows;
    for (const auto& [first, last] : selectedRuns()) {
        for (int row = first; row <= last; ++row)
            rows.push_back(row);
    }
    return rows;
}

int CustomTableWidget::selectedRowCount() const
{
    int count = 0;
    for (const auto& [first, last] : selectedRuns())
        count += last - first + 1;
    return count;
}

QString CustomTableWidget::selectedRowsText(Captions captions) const
{
    return textOf(shownColumns(), captions);
}

void CustomTableWidget::copySelection(Captions captions)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString text = textOf(selectedColumns(), captions);
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
    QGuiApplication::restoreOverrideCursor();
}

QString CustomTableWidget::textOf(const std::vector<int>& columns, Captions captions) const
{
    QString text;
    const Runs runs = selectedRuns();
    if (runs.empty() || columns.empty())
        return text;
    if (captions == Captions::With) {
        for (const int column : columns) {
            text += model()->headerData(column, Qt::Horizontal).toString();
            text += QLatin1Char('\t');
        }
        text.back() = QLatin1Char('\n');
    }
    for (const auto& [first, last] : runs) {
        for (int row = first; row <= last; ++row) {
            if (isRowHidden(row))
                continue;
            for (const int column : columns) {
                text += cellText(model()->index(row, column, rootIndex()));
                text += QLatin1Char('\t');
            }
            text.back() = QLatin1Char('\n');
        }
    }
    return text;
}

void CustomTableWidget::showRow(int row)
{
    if (model() == nullptr || row < 0 || row >= model()->rowCount(rootIndex()))
        return;
    const int left = horizontalScrollBar()->value();
    int column = currentIndex().column();
    if (column < 0 || isColumnHidden(column)) {
        const std::vector<int> columns = shownColumns();
        column = columns.empty() ? 0 : columns.front();
    }
    const QModelIndex index = model()->index(row, column, rootIndex());
    selectionModel()->setCurrentIndex( // selectRow() would add rows while a modifier key is held
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
    horizontalScrollBar()->setValue(left); // keep the columns that the user looks at
}

void CustomTableWidget::setHiddenColumns(const QStringList& captions)
{
    m_hiddenCaptions = captions;
    hideColumns();
}

void CustomTableWidget::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitRowHeight();
}

void CustomTableWidget::contextMenuEvent(QContextMenuEvent* event)
{
    QModelIndex index = indexAt(event->pos());
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        index = currentIndex();
        scrollTo(index);
        place = viewport()->mapToGlobal(visualRect(index).center());
    }
    if (index.isValid())
        Q_EMIT contextMenuRequestedAt(index, place);
}

void CustomTableWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copySelection(); // the base class copies one cell only
        return;
    }
    if (event->key() == Qt::Key_C &&
        event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)) {
        copySelection(Captions::With);
        return;
    }
    const int before = currentIndex().row();
    const bool isArrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isFirst = isArrow && currentIndex().isValid() && !selectionModel()->hasSelection();
    if (isFirst)
        selectRow(before); // the base class would go past it
    else
        QTableView::keyPressEvent(event);
    if (currentIndex().isValid() && (isFirst || isEnter || currentIndex().row() != before))
        Q_EMIT reachedByKey(currentIndex());
}

void CustomTableWidget::mousePressEvent(QMouseEvent* event)
{
    m_pressedRow = rowAt(event->pos().y());
    m_pressedColumn = columnAt(event->pos().x());
    QTableView::mousePressEvent(event);
}

void CustomTableWidget::mouseReleaseEvent(QMouseEvent* event)
{
    QTableView::mouseReleaseEvent(event);
    const bool isElsewhere =
        rowAt(event->pos().y()) != m_pressedRow || columnAt(event->pos().x()) != m_pressedColumn;
    if (event->button() == Qt::LeftButton && m_pressedRow >= 0 && isElsewhere)
        Q_EMIT selectedByDrag(); // no click for the base class
}

QItemSelectionModel::SelectionFlags CustomTableWidget::selectionCommand(const QModelIndex& index,
                                                                        const QEvent* event) const
{
    const QItemSelectionModel::SelectionFlags command = QTableView::selectionCommand(index, event);
    const bool isDrag = event != nullptr && event->type() == QEvent::MouseMove;
    const bool isRectangle = isDrag && index.isValid() && index.column() != m_pressedColumn;
    if (command == QItemSelectionModel::NoUpdate || isRectangle)
        return command;
    return command | QItemSelectionModel::Rows;
}

void CustomTableWidget::fitRowHeight()
{
    const int height = fontMetrics().height() + dpi_scaled(kRowPadding);
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void CustomTableWidget::fitColumnsOnce()
{
    const int columns = model()->columnCount(rootIndex());
    if (columns == m_fittedColumns)
        return;
    hideColumns();
    for (int column = 0; column < columns; ++column)
        setColumnWidth(column, wantedWidth(column));
    m_fittedColumns = model()->rowCount(rootIndex()) > 0 ? columns : 0;
}

/// A selection of all rows in one range follows a new layout by its corners alone: when a filter
/// goes, it would take in every row between them. Two ranges are followed row by row.
void CustomTableWidget::halveFullSelection()
{
    const QItemSelection all = selectionModel()->selection();
    if (all.size() != 1 || all.front().height() != model()->rowCount(rootIndex()) ||
        all.front().height() < 2)
        return;
    const QItemSelectionRange& range = all.front();
    const int middle = range.top() + range.height() / 2;
    const QModelIndex end = range.bottomRight().sibling(middle - 1, range.right());
    const QModelIndex start = range.topLeft().sibling(middle, range.left());
    QItemSelection halves(range.topLeft(), end);
    halves.append(QItemSelectionRange(start, range.bottomRight()));
    selectionModel()->select(halves, QItemSelectionModel::ClearAndSelect);
}

void CustomTableWidget::widenColumn(int column)
{
    if (m_fittedColumns > 0 && !isColumnHidden(column))
        setColumnWidth(column, std::max(columnWidth(column), wantedWidth(column)));
}

void CustomTableWidget::hideColumns()
{
    if (model() == nullptr)
        return;
    for (int column = 0; column < model()->columnCount(rootIndex()); ++column) {
        const QString caption = model()->headerData(column, Qt::Horizontal).toString();
        setColumnHidden(column, m_hiddenCaptions.contains(caption));
    }
}

int CustomTableWidget::wantedWidth(int column) const
{
    const QAbstractItemModel& cells = *model();
    const QFontMetrics metrics = fontMetrics();
    int width =
        horizontalHeader()->sectionSizeHint(column) + (m_isSortable ? dpi_scaled(kArrowRoom) : 0);
    const auto widen = [&](const QString& text) {
        width = std::max(width, metrics.horizontalAdvance(text) + dpi_scaled(kCellPadding));
    };
    widen(cells.headerData(column, Qt::Horizontal).toString()); // the hint is short for Chinese
    for (const QString& text :
         cells.headerData(column, Qt::Horizontal, kLongestTextsRole).toStringList())
        widen(text);
    const QModelIndex first = cells.index(0, column, rootIndex());
    const bool hasMark = first.data(Qt::DecorationRole).isValid();
    const bool isNumber = (first.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0;
    const QString more = isNumber ? QStringLiteral("-0") : QString(); // the worst are longer
    const int rows = cells.rowCount(rootIndex());
    const int samples = std::min(rows, kSampleRows);
    for (int i = 0; i < samples; ++i) {
        const auto row = static_cast<int>(static_cast<qint64>(rows) * i / samples);
        widen(cellText(cells.index(row, column, rootIndex())) + more);
    }
    if (hasMark)
        width +=
            style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) + dpi_scaled(kMarkGap);
    return std::min(width, dpi_scaled(kMaxInitialWidth));
}

std::vector<int> CustomTableWidget::shownColumns() const
{
    std::vector<int> columns;
    const QHeaderView* const header = horizontalHeader();
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        if (!header->isSectionHidden(column))
            columns.push_back(column);
    }
    return columns;
}

/// The shown columns, from left to right, in which a cell is selected.
std::vector<int> CustomTableWidget::selectedColumns() const
{
    std::vector<int> columns = shownColumns();
    if (selectionModel() == nullptr)
        return {};
    const QItemSelection selection = selectionModel()->selection();
    const auto isSelected = [&](int column) {
        return std::any_of(selection.begin(), selection.end(), [column](const auto& range) {
            return range.left() <= column && column <= range.right();
        });
    };
    columns.erase(std::remove_if(columns.begin(), columns.end(),
                                 [&](int column) { return !isSelected(column); }),
                  columns.end());
    return columns;
}

QString CustomTableWidget::cellText(const QModelIndex& index) const
{
    const QVariant value = index.data(Qt::DisplayRole);
    QString text;
    if (value.userType() == QMetaType::QString)
        text = value.toString();
    else if (const auto* const delegate = qobject_cast<QStyledItemDelegate*>(itemDelegate(index)))
        text = delegate->displayText(value, locale()); // the text that is painted
    blankBreaks(text);
    return text;
}
