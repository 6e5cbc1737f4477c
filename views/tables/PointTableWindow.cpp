#include "views/tables/PointTableWindow.h"

#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/ShortenedText.h"
#include "lum_sdk/Text.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "views/tables/PointTableModel.h"
#include "views/tables/ResultMarks.h"
#include "views/tables/RowFilter.h"
#include "views/tables/TableCountLine.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int kLongestName = 40; // of a point, in a sentence

QString shortName(const QString& name)
{
    return lum::shortened(name, kLongestName).toHtmlEscaped();
}

} // namespace

PointTableWindow::PointTableWindow(const char* config, IDesktopHost& host,
                                   std::unique_ptr<PointTableModel> model,
                                   const char* selectedEvent)
    : m_host(host), m_parameters(desktop::componentParameters(config)),
      m_selectedEvent(selectedEvent), m_model(std::move(model)),
      m_table(new CustomTableWidget(this)), m_header(&m_table->addFilterRow()),
      m_counts(new TableCountLine(this, {tr("Points: %1"), tr("Points: %1 of %2")})),
      m_empty(new QLabel(m_table->viewport()))
{
    m_table->enableSorting();
    m_table->setFrameStyle(QFrame::NoFrame);
    m_table->setModel(m_model.get());
    m_header->setHint(rowFilterHelp());
    makeLayout();
    connectParts();
}

PointTableWindow::~PointTableWindow()
{
    m_table->setModel(nullptr); // which ends before it
}

void PointTableWindow::makeLayout()
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_counts);
    setFocusProxy(m_table);

    m_empty->setTextFormat(Qt::RichText);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    auto* const over = new QVBoxLayout(m_table->viewport());
    over->addWidget(m_empty);
    connect(m_empty, &QLabel::linkActivated, this, &PointTableWindow::followLink);
}

void PointTableWindow::connectParts()
{
    connect(m_table, &QAbstractItemView::clicked, this, &PointTableWindow::announceRow);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &PointTableWindow::announceRow);
    connect(m_table, &CustomTableWidget::selectedByDrag, this, &PointTableWindow::announceRow);
    connect(m_table, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& cell) { zoomToRow(cell.row()); });
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, this, &PointTableWindow::showMenu);
    connect(m_table, &CustomTableWidget::orderRequested, this, &PointTableWindow::sort);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PointTableWindow::showCounts);
    connect(m_header, &FilterHeader::filterEdited, this, &PointTableWindow::setFilter);
    connect(m_counts, &TableCountLine::clearFiltersRequested, this,
            &PointTableWindow::clearFilters);
    connect(m_counts, &TableCountLine::noteLinkActivated, this, &PointTableWindow::clearFilters);
}

bool PointTableWindow::selectPoint(const QString& lineNumber, const QString& pointNumber)
{
    const PointName point{lineNumber.toStdString(), pointNumber.toStdString()};
    if (!goTo(point))
        return false;
    announce(point);
    return true;
}

bool PointTableWindow::followPoint(const QString& lineNumber, const QString& pointNumber)
{
    const PointName point{lineNumber.toStdString(), pointNumber.toStdString()};
    if (m_isAnnouncing && point == m_selected) // the answer to the table's own announcement
        return true;
    return goTo(point);
}

void PointTableWindow::deselect()
{
    m_selected = {};
    m_table->clearSelection(); // the keys go on from its row
    showState();
}

void PointTableWindow::showOnly(const QString& what, std::vector<PointName> points)
{
    const QString line = m_model->line();
    showAllLines();
    if (!line.isEmpty())
        m_lineBefore = line;
    m_only = what;
    m_model->setOnly(std::move(points));
    m_table->scrollToTop();
    reselect();
    showState();
}

void PointTableWindow::showOthersAgain()
{
    if (m_only.isEmpty())
        return;
    m_only.clear();
    m_model->setOnly({});
    const QString line = std::exchange(m_lineBefore, {});
    if (!line.isEmpty() && m_model->showsAllLines())
        showLine(line);
    reselect();
    showState();
}

/// Shows the point and selects its row, unless a filter hides it.
bool PointTableWindow::goTo(const PointName& point)
{
    if (!ProjectState::hasData() || !isInProject(point))
        return false;
    const QString line = lum::toQString(point.line);
    if (!m_model->showsAllLines() && m_model->line() != line)
        showLine(line);
    else if (!m_model->holds(point))
        refresh(); // the point is new
    m_selected = point;
    const int row = m_model->rowOf(point);
    if (row >= 0)
        m_table->showRow(row);
    else
        m_table->clearSelection();
    showState();
    return true;
}

void PointTableWindow::announceRow()
{
    const std::vector<int> rows = m_table->selectedRows();
    if (rows.empty())
        return;
    const PointName point = m_model->pointAt(rows.front());
    if (!point.point.empty())
        announce(point);
}

void PointTableWindow::announce(const PointName& point)
{
    m_selected = point;
    showState();
    const QScopedValueRollback<bool> guard(m_isAnnouncing, true);
    publishPoint(m_selectedEvent, point);
}

void PointTableWindow::publishPoint(const char* event, const PointName& point)
{
    const QByteArray payload =
        payload::selectedPoint(lum::toQString(point.point), lum::toQString(point.line));
    m_host.eventManager().publish(event, payload.constData(), 0);
}

void PointTableWindow::showLine(const QString& lineNumber)
{
    if (!m_model->showsAllLines() && m_model->line() == lineNumber) {
        refresh();
        return;
    }
    m_model->showLine(lineNumber);
    m_table->scrollToTop();
    reselect();
    linesChanged();
    showState();
}

void PointTableWindow::showAllLines()
{
    if (m_model->showsAllLines()) {
        refresh();
        return;
    }
    m_model->showAllLines();
    m_table->scrollToTop();
    reselect();
    linesChanged();
    showState();
}

void PointTableWindow::showNothing()
{
    m_model->showNothing();
    m_selected = {};
    linesChanged();
    showState();
}

void PointTableWindow::refresh()
{
    QScrollBar& bar = *m_table->verticalScrollBar();
    const int place = bar.value();
    const QPersistentModelIndex top = m_model->index(m_table->rowAt(0), 0);
    m_model->refresh();
    bar.setValue(top.isValid() ? top.row() : place);
    if (!ProjectState::hasData() || !isInProject(m_selected))
        m_selected = {};
    showState();
}

void PointTableWindow::followProject()
{
    if (!ProjectState::hasData()) {
        clearFilters();
        showNothing();
    }
    followColors();
    showState();
}

void PointTableWindow::followResults()
{
    if (!m_colors.empty())
        refresh();
}

/// Shows the marks of the results in the colours that the user has chosen now.
void PointTableWindow::followColors()
{
    std::string colors = resultMarksState();
    if (colors == m_colors)
        return;
    m_colors = std::move(colors);
    refresh();
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (m_model->columnKey(column) == QLatin1String("point_num"))
            m_table->widenColumn(column);
    }
}

/// Selects the row of the selected point again where a change of the rows took it away.
void PointTableWindow::reselect()
{
    const int row = m_model->rowOf(m_selected);
    if (row < 0)
        return;
    if (!m_table->selectionModel()->hasSelection())
        m_table->showRow(row);
    else if (m_table->selectionModel()->isRowSelected(row, {}))
        m_table->scrollTo(m_model->index(row, m_table->currentIndex().column()));
}

void PointTableWindow::sort(int column, Qt::SortOrder order)
{
    m_model->sortBy(column, order);
    m_table->scrollToTop(); // where the worst values are, which one sorts for
    showState();
}

void PointTableWindow::setFilter(int column, const QString& text)
{
    m_header->setFilter(column, text);
    m_model->setFilter(column, text);
    m_header->setFault(column, m_model->filterFault(column));
    reselect();
    showState();
}

void PointTableWindow::clearFilters()
{
    m_header->clear();
    m_model->clearFilters();
    showOthersAgain();
    reselect();
    showState();
}

std::vector<PointName> PointTableWindow::selectedPoints() const
{
    std::vector<PointName> points;
    for (const int row : m_table->selectedRows()) {
        PointName point = m_model->pointAt(row);
        if (!point.point.empty())
            points.push_back(std::move(point));
    }
    return points;
}

void PointTableWindow::addExportEntry(QMenu& menu)
{
    menu.addAction(tr("export"), this, &PointTableWindow::exportRows);
}

void PointTableWindow::addCopyEntry(QMenu& menu)
{
    menu.addAction(tr("copy"), this, &PointTableWindow::copyRows);
}

void PointTableWindow::showMenu(const QModelIndex& cell, const QPoint& place)
{
    if (m_table->selectedRowCount() == 1 && m_model->pointAt(cell.row()) != m_selected)
        announceRow(); // the right click has selected it
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addEntries(*menu);
    menu->addSeparator();
    QAction* const withCaptions = menu->addAction(tr("Copy with Headers"), m_table, [this] {
        m_table->copySelection(CustomTableWidget::Captions::With);
    });
    withCaptions->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    const QString text = cell.data().toString();
    menu->addAction(tr("Filter by This Value"), this, [this, column = cell.column(), text] {
        setFilter(column, rowFilterFor(text));
    });
    menu->addAction(tr("Show on the Map"), this,
                    [this, at = QPersistentModelIndex(cell)] { zoomToRow(at.row()); });
    menu->addAction(tr("History of This Point"), this, [this, at = QPersistentModelIndex(cell)] {
        publishPoint(events::kShowPointHistory, m_model->pointAt(at.row()));
    });
    if (m_table->selectedRowCount() == 0) {
        for (QAction* const action : menu->actions())
            action->setEnabled(false);
    }
    menu->popup(place);
}

void PointTableWindow::zoomToRow(int row)
{
    const PointName point = m_model->pointAt(row);
    if (ProjectState::hasData() && !point.point.empty())
        zoomTo(point);
}

void PointTableWindow::copyRows()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString text = m_table->selectedRowsText();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
    QGuiApplication::restoreOverrideCursor();
    if (!text.isEmpty())
        LumMessageBox::ask(m_host.dialogParent(), {.title = tr("Success"),
                                                   .text = tr("Copied to Clipboard."),
                                                   .silenceKey = "copied_to_clipboard"});
}

void PointTableWindow::exportRows()
{
    const std::vector<PointName> points = selectedPoints();
    if (points.empty())
        return;
    const QString path = FileDialog::getSaveFileName(m_host.dialogParent(), exportTitle(),
                                                     QStringLiteral("csv file(*.csv)"));
    if (path.isEmpty() || !ProjectState::hasData())
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const Outcome outcome = exportPoints(points, path);
    QGuiApplication::restoreOverrideCursor();
    if (outcome.isDone())
        FileExports::offerToOpen(m_host, path);
    else
        LumMessageBox::error(m_host.dialogParent(), tr("Error"), tr("Export Failed!"),
                             outcome.text());
}

void PointTableWindow::followLink()
{
    if (!ProjectState::hasData())
        return;
    if (m_model->unfilteredCount() > 0)
        clearFilters();
    else
        showSomething();
}

void PointTableWindow::showState()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_empty->setVisible(isEmpty);
    if (isEmpty && !ProjectState::hasData())
        m_empty->setText(tr("No project is open."));
    else if (isEmpty && m_model->unfilteredCount() > 0)
        m_empty->setText(tr("No point passes the filters. <a href=\"#\">Clear all filters</a>"));
    else if (isEmpty)
        m_empty->setText(emptyText());
    m_counts->setNote(noteText());
    showCounts();
}

void PointTableWindow::showCounts()
{
    m_counts->setCounts({.shown = m_model->rowCount(),
                         .all = m_model->unfilteredCount(),
                         .selected = m_table->selectedRowCount(),
                         .isFiltered = m_model->isFiltered()});
}

QString PointTableWindow::noteText() const
{
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const QString fault = m_model->filterFault(column);
        if (!fault.isEmpty())
            return tr("Filter of \"%1\": %2")
                .arg(m_model->headerData(column, Qt::Horizontal).toString().toHtmlEscaped(),
                     fault.toHtmlEscaped());
    }
    const bool isHidden = !m_selected.point.empty() && m_model->isFiltered() &&
                          m_model->rowOf(m_selected) < 0 && m_model->holds(m_selected);
    if (!isHidden && m_only.isEmpty())
        return {};
    if (!isHidden)
        return tr("Only %1. <a href=\"#\">Clear all filters</a>").arg(shortName(m_only));
    return tr("The filters hide the selected point %1. <a href=\"#\">Clear all filters</a>")
        .arg(shortName(lum::toQString(m_selected.point)));
}
