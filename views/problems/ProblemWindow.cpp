#include "views/problems/ProblemWindow.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "views/problems/ProblemActions.h"
#include "views/problems/ProblemKindBar.h"
#include "views/problems/ProblemTableModel.h"
#include "views/problems/ProblemWidths.h"
#include "views/problems/ShowProblem.h"
#include "views/tables/RowFilter.h"
#include "views/tables/TableCountLine.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace {

constexpr int kTypingMs = 200;
constexpr int kSearchWidth = 180;
constexpr int kMargin = 4;
constexpr int kKind = static_cast<int>(ProblemField::Kind);
const QLatin1String kFindLink("find");
const QLatin1String kFindCommand("Find Problems");

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

QString openProject()
{
    return ProjectState::hasData() ? ProjectState::place().folder : QString();
}

bool areSame(const IDictionary& a, const IDictionary& b)
{
    bool areSame = a.size() == b.size();
    for (std::size_t i = 0; areSame && i < a.size(); ++i)
        areSame = b.find(a.keyAt(i)) == a.valueAt(i);
    return areSame;
}

} // namespace

ProblemWindow::ProblemWindow(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config)),
      m_model(new ProblemTableModel(this)), m_table(new CustomTableWidget(this)),
      m_header(&m_table->addFilterRow()), m_kinds(new ProblemKindBar(this)),
      m_actions(new ProblemActions(*host, *m_model, *m_table)),
      m_selected(*host, *m_model, *m_table), m_find(new QToolButton(this)),
      m_search(new QLineEdit(this)), m_typing(new QTimer(this)), m_old(new QLabel(this)),
      m_empty(new QLabel(m_table->viewport())),
      m_counts(new TableCountLine(this, {tr("Problems: %1"), tr("Problems: %1 of %2")})),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kProjectModified,
                                      events::kRefreshDesignLayer, events::kRefreshSurveyLayer,
                                      events::kRefreshDesignTable, events::kRefreshSurveyTable,
                                      events::kAcceptancesChanged}),
                     host->eventManager())
{
    m_actions->setParent(this);
    m_table->enableSorting();
    m_table->setFrameStyle(QFrame::NoFrame);
    m_table->setModel(m_model);
    m_table->setAccessibleName(tr("Problems"));
    m_header->setHint(rowFilterHelp());
    makeLayout();
    connectParts();
    setFocusProxy(m_table);
    forget();
}

ProblemWindow::~ProblemWindow()
{
    m_kinds->disconnect(this); // the parts end after this, and would still tell what they show
    m_table->setModel(nullptr);
}

void ProblemWindow::makeLayout()
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    addBar(*rows);
    m_old->setTextFormat(Qt::RichText);
    m_old->setText(tr("Points or limits have changed since these problems were found. "
                      "<a href=\"find\">Find them again</a> (Ctrl+F9)"));
    m_old->setWordWrap(true);
    m_old->setAutoFillBackground(true);
    m_old->setMargin(dpi_scaled(kMargin));
    QPalette colours = m_old->palette();
    colours.setColor(QPalette::Window, warningBackground());
    m_old->setPalette(colours);
    rows->addWidget(m_old);
    auto* const areas = new QSplitter(Qt::Horizontal, this);
    areas->addWidget(m_kinds);
    areas->addWidget(m_table);
    areas->setStretchFactor(1, 1);
    areas->setChildrenCollapsible(false);
    m_widths = new ProblemWidths(*areas, *m_table);
    rows->addWidget(areas, 1);
    rows->addWidget(m_counts);

    m_empty->setTextFormat(Qt::RichText);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    auto* const over = new QVBoxLayout(m_table->viewport());
    over->addWidget(m_empty);
    setKeyOrder();
}

/// The tab key goes as one reads.
void ProblemWindow::setKeyOrder()
{
    const auto buttons = findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    std::vector<QWidget*> order(buttons.begin(), buttons.end());
    order.insert(order.end(), {m_search, m_kinds, m_table});
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void ProblemWindow::addBar(QBoxLayout& rows)
{
    auto* const bar = new QHBoxLayout;
    bar->setContentsMargins(dpi_scaled(kMargin), dpi_scaled(kMargin), dpi_scaled(kMargin),
                            dpi_scaled(kMargin));
    bar->setSpacing(dpi_scaled(kMargin));
    m_find->setObjectName(QStringLiteral("find"));
    m_find->setText(tr("&Find Problems"));
    m_find->setToolTip(tr("Run everything that is on and list what is wrong (Ctrl+F9)"));
    m_find->setIcon(QIcon::fromTheme(QStringLiteral("view-refresh")));
    m_find->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_find->setAutoRaise(true);
    connect(m_find, &QToolButton::clicked, this,
            [this] { m_host.commands().execute(kFindCommand); });
    bar->addWidget(m_find);
    m_actions->addButtons(*bar, this);
    bar->addStretch(1);
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setToolTip(tr("Shows the problems with this line, point, rover, surveyor or kind. "
                            "A line and a point together: 1001/10015001"));
    m_search->setAccessibleName(tr("Search the problems"));
    m_search->setClearButtonEnabled(true);
    m_search->addAction(QIcon::fromTheme(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    m_search->setMinimumWidth(dpi_scaled(kSearchWidth));
    bar->addWidget(m_search);
    rows.addLayout(bar);
}

void ProblemWindow::connectParts()
{
    const auto go = [this](const QModelIndex& cell) { m_selected.announce(cell.row()); };
    connect(m_table, &QAbstractItemView::clicked, this, go);
    connect(m_table, &CustomTableWidget::reachedByKey, this, go);
    connect(m_table, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& cell) {
        zoomToProblem(m_host, m_model->problem(cell.row()));
    });
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, this, &ProblemWindow::showMenu);
    connect(m_table, &CustomTableWidget::orderRequested, this,
            [this](int column, Qt::SortOrder order) {
                m_model->sortBy(column, order);
                m_table->scrollToTop();
            });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ProblemWindow::showSelected);
    connect(m_header, &FilterHeader::filterEdited, this, &ProblemWindow::setFilter);
    connect(m_kinds, &ProblemKindBar::chosen, this, &ProblemWindow::choose);
    connect(m_counts, &TableCountLine::clearFiltersRequested, this, &ProblemWindow::clearFilters);
    connect(m_empty, &QLabel::linkActivated, this, &ProblemWindow::followLink);
    connect(m_old, &QLabel::linkActivated, this, &ProblemWindow::followLink);
    connect(m_actions, &ProblemActions::pointsChanged, this, &ProblemWindow::find);
    connect(m_actions, &ProblemActions::acceptedChanged, this, &ProblemWindow::followAccepted);
    m_typing->setSingleShot(true);
    m_typing->setInterval(kTypingMs);
    connect(m_search, &QLineEdit::textChanged, m_typing, qOverload<>(&QTimer::start));
    connect(m_typing, &QTimer::timeout, this, [this] {
        m_model->setSearch(m_search->text());
        showState();
    });
}

// --- the list ---

void ProblemWindow::find()
{
    if (!ProjectState::hasData())
        return;
    const int before = m_table->currentIndex().row();
    const bool wasSelected = m_table->selectedRowCount() > 0;
    ProblemList found = manager().findProblems();
    const int same = m_model->setProblems(std::move(found), before);
    m_project = openProject();
    m_hasFound = true;
    m_limits.clear();
    dictionary_copy(manager().qualityParameters(), m_limits);
    for (const char* const event :
         {events::kRefreshDesignTable, events::kRefreshSurveyTable, events::kResurveysChecked})
        m_host.eventManager().publish(event, nullptr, 0);
    showKinds();
    if (wasSelected && same >= 0)
        m_table->showRow(same);
    else
        m_selected.goOnAt(same >= 0 ? same : before);
    tellFound();
}

/// Says in numbers what was found, in the status bar and the log.
void ProblemWindow::tellFound() const
{
    std::array<int, 3> open{};
    for (const ProblemKindCount& kind : m_model->kinds())
        open[static_cast<std::size_t>(kind.kind->severity)] += kind.open;
    const auto [notes, warnings, errors] = open;
    const QString text = tr("Problems: %1 (errors: %2, warnings: %3, notes: %4). Accepted: %5")
                             .arg(lum::groupedNumber(errors + warnings + notes),
                                  lum::groupedNumber(errors), lum::groupedNumber(warnings),
                                  lum::groupedNumber(notes), lum::groupedNumber(acceptedCount()));
    basalt::logInfo(text.toStdString());
    m_host.tell(text);
}

void ProblemWindow::forget()
{
    m_hasFound = false;
    m_project = openProject();
    m_model->setProblems({});
    clearFilters();
    showKinds();
}

void ProblemWindow::handleEvent(const char* eventName, const char* /*payload*/, int /*reserved*/)
{
    if (openProject() != m_project)
        forget();
    else if (std::strcmp(eventName, events::kAcceptancesChanged) == 0)
        followAccepted();
    else if (std::strcmp(eventName, events::kRefreshSurveyTable) == 0)
        m_model->refresh(); // the time zone may be another
    showState();
}

/// Whether points or limits are others than those that the list was found in.
bool ProblemWindow::isOld() const
{
    const ProblemList& problems = m_model->problems();
    return m_hasFound && ProjectState::hasData() &&
           (problems.designRevision != manager().designPoints().revision() ||
            problems.surveyRevision != manager().surveyPoints().revision() ||
            !areSame(m_limits, manager().qualityParameters()));
}

/// Moves problems between the open and the accepted ones. The keys go on where they were.
void ProblemWindow::followAccepted()
{
    if (!ProjectState::hasData())
        return;
    const std::vector<int> selected = m_table->selectedRows();
    const int row = selected.empty() ? m_table->currentIndex().row() : selected.front();
    m_model->changeAccepted([](ProblemList& problems) { manager().markAccepted(problems); });
    showKinds();
    if (!m_table->currentIndex().isValid())
        m_selected.goOnAt(row);
}

void ProblemWindow::showKinds()
{
    m_kinds->setKinds(m_model->kinds());
    showChoice();
}

void ProblemWindow::showChoice()
{
    m_model->setChoice(m_kinds->choice());
    showState();
    m_selected.keepInView();
}

/// Where the columns become others, the sentences are brought into view.
void ProblemWindow::choose()
{
    const bool wasHidden = m_table->isColumnHidden(kKind);
    showChoice();
    if (m_table->isColumnHidden(kKind) == wasHidden)
        return;
    const int row = std::max(m_table->currentIndex().row(), 0);
    m_table->horizontalScrollBar()->setValue(0);
    m_table->scrollTo(m_model->index(row, static_cast<int>(ProblemField::What)));
}

/// A single chosen kind stands in the bar; the sentences get the room of its column.
void ProblemWindow::hideChosenKind()
{
    const bool isPlain = m_model->choice().kinds.size() == 1 && m_header->filter(kKind).isEmpty();
    m_table->setHiddenColumns(
        isPlain
            ? QStringList(m_model->headerData(kKind, Qt::Horizontal, Qt::DisplayRole).toString())
            : QStringList());
}

void ProblemWindow::setFilter(int column, const QString& text)
{
    m_header->setFilter(column, text);
    m_model->setFilter(column, text);
    m_header->setFault(column, m_model->filterFault(column));
    showState();
    m_selected.keepInView();
}

void ProblemWindow::clearFilters()
{
    m_header->clear();
    m_search->clear();
    m_typing->stop();
    m_model->clearFilters();
    showState();
    m_selected.keepInView();
}

// --- what is said ---

void ProblemWindow::showState()
{
    m_find->setEnabled(ProjectState::hasData());
    m_kinds->setVisible(m_hasFound);
    m_counts->setVisible(m_hasFound);
    m_old->setVisible(isOld());
    m_empty->setVisible(m_model->rowCount() == 0);
    if (m_model->rowCount() == 0)
        m_empty->setText(emptyText());
    showSelected();
    hideChosenKind();
    m_widths->fit();
}

void ProblemWindow::showSelected()
{
    m_actions->follow(isOld());
    const QString fault = faultText();
    m_counts->setNote(fault.isEmpty() ? acceptanceText() : fault, !fault.isEmpty());
    m_counts->setCounts({.shown = m_model->rowCount(),
                         .all = m_model->unfilteredCount(),
                         .selected = m_table->selectedRowCount(),
                         .isFiltered = m_model->isFiltered()});
}

QString ProblemWindow::emptyText() const
{
    if (!ProjectState::hasData())
        return tr("No project is open.");
    const std::size_t results = manager().surveyPoints().pointCount();
    const std::size_t designed = manager().designPoints().pointCount();
    if (results + designed == 0)
        return tr("There is nothing to look at yet: import a design or results.");
    if (!m_hasFound)
        return tr("What must the crew do tomorrow? <a href=\"find\">Find the problems</a> of the "
                  "design and of all results (Ctrl+F9).");
    if (m_model->unfilteredCount() > 0)
        return tr("No problem passes the filters. <a href=\"#\">Clear all filters</a>");
    return tr("No open problem was found. Accepted: %1. Results: %2, design points: %3")
        .arg(lum::groupedNumber(acceptedCount()), lum::groupedNumber(results),
             lum::groupedNumber(designed));
}

int ProblemWindow::acceptedCount() const
{
    int count = 0;
    for (const ProblemKindCount& kind : m_model->kinds())
        count += kind.accepted;
    return count;
}

/// Why a filter does not count.
QString ProblemWindow::faultText() const
{
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const QString fault = m_model->filterFault(column);
        if (!fault.isEmpty())
            return tr("Filter of \"%1\": %2")
                .arg(m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole)
                         .toString()
                         .toHtmlEscaped(),
                     fault.toHtmlEscaped());
    }
    return {};
}

/// Why the selected problem is accepted.
QString ProblemWindow::acceptanceText() const
{
    const std::vector<int> rows = m_table->selectedRows();
    return rows.size() == 1
               ? ProblemActions::acceptanceText(m_model->problem(rows.front())).toHtmlEscaped()
               : QString();
}

void ProblemWindow::followLink(const QString& link)
{
    if (link == kFindLink)
        m_host.commands().execute(kFindCommand);
    else
        clearFilters();
}

void ProblemWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_widths->fit();
}

// --- from problem to problem ---

void ProblemWindow::step(bool isForward)
{
    if (!ProjectState::hasData())
        return;
    if (!m_hasFound)
        find();
    m_selected.step(isForward);
}

bool ProblemWindow::followPoint(bool isDesign, const PointName& point)
{
    const bool isInFront = isVisible();
    const bool hasFound = !m_hasFound || m_selected.follow(isDesign, point);
    return isInFront && hasFound;
}

void ProblemWindow::showMenu(const QModelIndex& cell, const QPoint& place)
{
    if (m_table->selectedRowCount() == 1)
        m_selected.announce(cell.row()); // the right click has selected it
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_actions->addEntries(*menu);
    menu->addSeparator();
    const QPersistentModelIndex at(cell);
    const auto add = [&](const QString& text, bool isEnabled, auto run) {
        const auto choose = [at, run] {
            if (at.isValid()) // the list may have changed below the menu
                run(at);
        };
        menu->addAction(text, this, choose)->setEnabled(isEnabled);
    };
    add(tr("&Filter by This Value"), !m_model->filterFor(cell).isEmpty(),
        [this](const QModelIndex& clicked) {
            setFilter(clicked.column(), m_model->filterFor(clicked));
        });
    const bool isPoint = !m_model->problem(cell.row()).point.empty();
    add(tr("Show on the &Map"), true, [this](const QModelIndex& clicked) {
        zoomToProblem(m_host, m_model->problem(clicked.row()));
    });
    add(tr("&History of This Point"), isPoint, [this](const QModelIndex& clicked) {
        showHistoryOf(m_host, m_model->problem(clicked.row()));
    });
    menu->popup(place);
}
