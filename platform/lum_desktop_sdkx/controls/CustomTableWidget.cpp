#include "lum_desktop_sdkx/controls/CustomTableWidget.h"

#include "lum_sdk/DpiScale.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <vector>

namespace {

constexpr int kSampleRows = 50;
constexpr int kRowPadding = 6;   ///< above and below the text, together
constexpr int kCellPadding = 18; ///< left and right of the text, together
constexpr int kMaxInitialWidth = 320;

/// First and last row of each run of selected rows, in order and without repetition.
std::vector<std::pair<int, int>> selectedRuns(const QItemSelection& selection)
{
    std::vector<std::pair<int, int>> runs;
    for (const QItemSelectionRange& range : selection)
        runs.emplace_back(range.top(), range.bottom());
    std::sort(runs.begin(), runs.end());
    std::vector<std::pair<int, int>> merged;
    for (const auto& [first, last] : runs) {
        if (merged.empty() || first > merged.back().second + 1)
            merged.emplace_back(first, last);
        else
            merged.back().second = std::max(merged.back().second, last);
    }
    return merged;
}

void blankBreaks(QString& text)
{
    for (QChar& c : text) {
        if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            c = QLatin1Char(' ');
    }
}

} // namespace

CustomTableWidget::CustomTableWidget(QWidget* parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* const header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setTextElideMode(Qt::ElideRight);
    header->setHighlightSections(false); // it would look at every selected row
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fitRowHeight();
}

void CustomTableWidget::setModel(QAbstractItemModel* model)
{
    if (QAbstractItemModel* const old = QTableView::model()) {
        disconnect(old, &QAbstractItemModel::modelReset, this, &CustomTableWidget::hideColumns);
        disconnect(old, &QAbstractItemModel::modelReset, this, &CustomTableWidget::fitColumnsOnce);
        disconnect(old, &QAbstractItemModel::rowsInserted, this,
                   &CustomTableWidget::fitColumnsOnce);
    }
    QTableView::setModel(model);
    m_fittedColumns = 0;
    if (model == nullptr)
        return;
    connect(model, &QAbstractItemModel::modelReset, this, &CustomTableWidget::hideColumns);
    connect(model, &QAbstractItemModel::modelReset, this, &CustomTableWidget::fitColumnsOnce);
    connect(model, &QAbstractItemModel::rowsInserted, this, &CustomTableWidget::fitColumnsOnce);
    fitColumnsOnce();
}

QString CustomTableWidget::selectedRowsText() const
{
    QString text;
    if (selectionModel() == nullptr)
        return text;
    const std::vector<int> columns = shownColumns();
    for (const auto& [first, last] : selectedRuns(selectionModel()->selection())) {
        for (int row = first; row <= last; ++row) {
            if (isRowHidden(row))
                continue;
            for (const int column : columns) {
                text += cellText(model()->index(row, column, rootIndex()));
                text += QLatin1Char('\t');
            }
            if (columns.empty())
                continue;
            text.back() = QLatin1Char('\n');
        }
    }
    return text;
}

void CustomTableWidget::copySelection()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString text = selectedRowsText();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
    QGuiApplication::restoreOverrideCursor();
}

void CustomTableWidget::showRow(int row)
{
    if (model() == nullptr || row < 0 || row >= model()->rowCount(rootIndex()))
        return;
    const int left = horizontalScrollBar()->value();
    const QModelIndex index = model()->index(row, 0, rootIndex());
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
    int width = horizontalHeader()->sectionSizeHint(column);
    const QFontMetrics metrics = fontMetrics();
    const int rows = std::min(model()->rowCount(rootIndex()), kSampleRows);
    for (int row = 0; row < rows; ++row) {
        const QString text = cellText(model()->index(row, column, rootIndex()));
        width = std::max(width, metrics.horizontalAdvance(text) + dpi_scaled(kCellPadding));
    }
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
