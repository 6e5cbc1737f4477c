#include "views/statistics/StatisticsWindow.h"

#include "basalt_utilities/ILogger.h"
#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/ShortenedText.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "quality/ResultCsv.h"
#include "views/statistics/GroupKeyBox.h"
#include "views/statistics/GroupNames.h"
#include "views/statistics/StatisticsPlots.h"
#include "views/statistics/StatisticsTableModel.h"
#include "views/statistics/StatisticsWidths.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cstring>
#include <tuple>
#include <utility>

namespace {

constexpr int kMargin = 4;
constexpr int kLongestName = 40; // of what is shown alone

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

QString openProject()
{
    return ProjectState::hasData() ? ProjectState::place().folder : QString();
}

} // namespace

StatisticsWindow::StatisticsWindow(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config)),
      m_model(new StatisticsTableModel(this)), m_table(new CustomTableWidget(this)),
      m_plots(new StatisticsPlots(*host, this)), m_keys(new GroupKeyBox(this)),
      m_only(new QLabel(this)), m_empty(new QLabel(this)), m_chosen(*m_model),
      m_links(*host, m_data),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kProjectModified,
                                      events::kRefreshDesignLayer, events::kRefreshSurveyLayer,
                                      events::kRefreshDesignTable, events::kRefreshSurveyTable,
                                      events::kSurveyPointSelected}),
                     host->eventManager())
{
    m_table->enableSorting();
    m_table->setFrameStyle(QFrame::NoFrame);
    m_table->setModel(m_model);
    m_table->setAccessibleName(tr("Groups"));
    m_names = new GroupNames(*m_table);
    m_renewal.setSingleShot(true);
    m_renewal.setInterval(0);
    makeLayout();
    connectParts();
    setFocusProxy(m_table);
    m_project = openProject();
    showState();
}

StatisticsWindow::~StatisticsWindow()
{
    delete m_names;
    m_table->setModel(nullptr); // which ends before it
}

void StatisticsWindow::makeLayout()
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto* const areas = new QSplitter(Qt::Horizontal, this);
    auto* const left = new QWidget(areas);
    auto* const leftRows = new QVBoxLayout(left);
    leftRows->setContentsMargins(0, 0, 0, 0);
    leftRows->setSpacing(0);
    addBar(*leftRows);
    leftRows->addWidget(m_table, 1);
    areas->addWidget(left);
    areas->addWidget(m_plots);
    areas->setChildrenCollapsible(false);
    m_widths = new StatisticsWidths(*areas, *m_table);
    m_areas = areas;
    rows->addWidget(areas, 1);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    rows->addWidget(m_empty, 1);
}

void StatisticsWindow::addBar(QBoxLayout& rows)
{
    auto* const bar = new QHBoxLayout;
    const int margin = dpi_scaled(kMargin);
    bar->setContentsMargins(margin, margin, margin, margin);
    bar->setSpacing(margin);
    auto* const caption = new QLabel(tr("&Group by"), this);
    caption->setBuddy(m_keys);
    bar->addWidget(caption);
    bar->addWidget(m_keys);
    m_showAll = addButton(*bar, "showAll", "edit-clear-all", tr("Show &All"),
                          tr("Show all points again in the tables and in the plot (Esc)"));
    connect(m_showAll, &QToolButton::clicked, this, &StatisticsWindow::showAll);
    m_only->setObjectName(QStringLiteral("only"));
    m_only->setTextFormat(Qt::PlainText);
    m_only->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a narrow window cuts it
    bar->addWidget(m_only, 1);
    m_save = addButton(*bar, "save", "document-export", tr("&Save as CSV..."),
                       tr("Write the rows as they are shown"));
    connect(m_save, &QToolButton::clicked, this, &StatisticsWindow::save);
    rows.addLayout(bar);
}

QToolButton* StatisticsWindow::addButton(QBoxLayout& bar, const char* name, const char* icon,
                                         const QString& text, const QString& tip)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setIcon(QIcon::fromTheme(QLatin1String(icon)));
    button->setToolTip(tip);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    bar.addWidget(button);
    return button;
}

void StatisticsWindow::connectParts()
{
    connect(&m_renewal, &QTimer::timeout, this, &StatisticsWindow::renew);
    connect(m_keys, &GroupKeyBox::keyChanged, this, &StatisticsWindow::followKey);
    connect(m_table, &QAbstractItemView::clicked, this, &StatisticsWindow::goFrom);
    connect(m_names, &GroupNames::chosen, this, &StatisticsWindow::chooseRows);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &StatisticsWindow::chooseRows);
    connect(m_table, &CustomTableWidget::selectedByDrag, this, &StatisticsWindow::chooseRows);
    connect(m_table, &CustomTableWidget::orderRequested, m_model, &StatisticsTableModel::sortBy);
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, this,
            [this](const QModelIndex& /*cell*/, const QPoint& at) { showMenu(at); });
    connect(m_plots, &StatisticsPlots::selected, this, &StatisticsWindow::selectInPlot);
    connect(m_plots, &StatisticsPlots::activated, this, [this](std::uint32_t place) {
        if (m_data.isCurrent())
            m_links.zoomTo(place);
    });
    auto* const copies = new QAction(this);
    copies->setShortcut(QKeySequence::Copy);
    copies->setShortcutContext(Qt::WidgetShortcut);
    connect(copies, &QAction::triggered, this, &StatisticsWindow::copy);
    m_table->addAction(copies);
}

// --- what is shown ---

void StatisticsWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showState(); // a table may show all points again
    renewSoon();
}

void StatisticsWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_showAll->isEnabled())
        return showAll();
    QWidget::keyPressEvent(event);
}

void StatisticsWindow::handleEvent(const char* eventName, const char* payload, int /*reserved*/)
{
    if (std::strcmp(eventName, events::kSurveyPointSelected) == 0) {
        basalt::Dictionary names;
        payload::read(payload, names);
        followPoint({std::string(names.text("lineName")), std::string(names.text("pointName"))});
        return;
    }
    followProject();
}

/// The plot must not outlive what it points to.
void StatisticsWindow::followProject()
{
    if (openProject() != m_project) {
        m_project = openProject();
        takeChoiceBack();
    }
    if (ProjectState::hasData() && m_data.isCurrent())
        return;
    m_plots->setData({});
    m_data.clear();
    if (!ProjectState::hasData())
        m_model->setGroups(nullptr, {});
    showState();
    renewSoon();
}

/// A choice is followed up behind other windows, too: the tables show it.
void StatisticsWindow::renewSoon()
{
    const bool isWanted = isVisible() || !m_chosen.isEmpty();
    if (isWanted && ProjectState::hasData() && !m_data.isCurrent())
        m_renewal.start();
}

void StatisticsWindow::renew()
{
    if (!ProjectState::hasData() || m_data.isCurrent())
        return;
    m_data.read();
    showGroups();
}

void StatisticsWindow::followKey()
{
    takeChoiceBack();
    if (m_data.isCurrent())
        showGroups();
}

/// Groups anew. What was chosen stays.
void StatisticsWindow::showGroups()
{
    m_model->setGroups(m_data.sample(), m_keys->key());
    m_widths->fit();
    m_names->follow();
    const bool wasChosen = !m_chosen.isEmpty();
    m_chosen.follow();
    for (const int row : m_chosen.rows())
        m_table->selectionModel()->select(m_model->index(row, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    if (!m_chosen.isEmpty() && !m_isSelection)
        m_links.renew(choice());
    else if (wasChosen && !m_isSelection)
        takeChoiceBack();
    showPlot();
    showState();
}

void StatisticsWindow::showState()
{
    const bool hasPoints = ProjectState::hasData() && (manager().surveyPoints().pointCount() > 0 ||
                                                       manager().designPoints().pointCount() > 0);
    m_areas->setVisible(hasPoints);
    m_empty->setVisible(!hasPoints);
    m_empty->setText(ProjectState::hasData()
                         ? tr("There is nothing to count yet. Import a design and survey results: "
                              "drop their files here, or use the menu Exchange.")
                         : tr("No project is open. Open one to see how good its results are."));
    m_showAll->setEnabled(!m_chosen.isEmpty() || m_isSelection);
    const QString only = m_links.shown();
    m_only->setText(only.isEmpty() ? QString()
                                   : tr("Only %1").arg(lum::shortened(only, kLongestName)));
    m_only->setToolTip(Qt::convertFromPlainText(only, Qt::WhiteSpaceNormal));
    m_save->setEnabled(m_model->rowCount() > 0);
}

void StatisticsWindow::followPoint(const PointName& point)
{
    if (!m_data.isCurrent())
        return;
    const auto& results = m_data.sample()->results;
    const auto found = std::ranges::partition_point(results, [&](const auto& result) {
        return std::tie(result.point->lineNumber, result.point->pointNumber) <
               std::tie(point.line, point.point);
    });
    std::vector<std::uint32_t> places;
    if (found != results.end() && found->point->lineNumber == point.line &&
        found->point->pointNumber == point.point)
        places.push_back(static_cast<std::uint32_t>(found - results.begin()));
    m_plots->setSelected(std::move(places));
}

// --- the chosen groups ---

void StatisticsWindow::goFrom(const QModelIndex& cell)
{
    if (!m_data.isCurrent())
        return;
    const auto worst = m_model->worstAt(cell);
    chooseRows();
    if (worst)
        m_links.goTo(*worst);
}

/// Where all results are chosen, their row stays selected, to be copied.
void StatisticsWindow::chooseRows()
{
    if (!m_data.isCurrent())
        return;
    m_chosen.choose(m_table->selectedRows());
    m_isSelection = false;
    if (m_chosen.isEmpty())
        m_links.showAllAgain();
    else
        m_links.showOnly(choice());
    showPlot();
    showState();
}

void StatisticsWindow::showAll()
{
    m_table->clearSelection();
    takeChoiceBack();
    if (m_data.isCurrent())
        showPlot();
    showState();
}

void StatisticsWindow::takeChoiceBack()
{
    m_chosen.clear();
    m_isSelection = false;
    m_links.showAllAgain();
}

StatisticsLinks::Shown StatisticsWindow::choice() const
{
    return {m_chosen.name(), m_chosen.places(), m_chosen.designNames(manager().designPoints())};
}

void StatisticsWindow::showPlot()
{
    PlotData shown = m_data.all();
    if (!m_chosen.isEmpty()) {
        shown.places = m_chosen.places();
        shown.subject = m_chosen.name();
        shown.design = m_chosen.designCount().value_or(statistics::DesignCount());
    }
    m_plots->setData(std::move(shown));
}

void StatisticsWindow::selectInPlot(const std::vector<std::uint32_t>& places)
{
    if (!m_data.isCurrent())
        return;
    if (places.size() == 1)
        return m_links.goTo(places.front());
    const bool wasSelection = std::exchange(m_isSelection, !places.empty());
    if (m_isSelection)
        m_links.showOnly(
            {tr("%1 results of the plot").arg(lum::groupedNumber(places.size())), places, {}});
    else if (wasSelection && !m_chosen.isEmpty())
        m_links.showOnly(choice());
    else if (wasSelection)
        m_links.showAllAgain();
    showState();
}

// --- handing over ---

void StatisticsWindow::showMenu(const QPoint& at)
{
    chooseRows(); // the right click has selected them
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("&Copy"), this, &StatisticsWindow::copy)->setShortcut(QKeySequence::Copy);
    menu->addAction(tr("&Save as CSV..."), this, &StatisticsWindow::save);
    menu->addSeparator();
    menu->addAction(tr("Show &All"), this, &StatisticsWindow::showAll)
        ->setEnabled(m_showAll->isEnabled());
    menu->popup(at);
}

/// A figure tells nothing without its caption.
void StatisticsWindow::copy()
{
    m_table->copySelection(CustomTableWidget::Captions::With);
}

void StatisticsWindow::save()
{
    if (m_model->rowCount() == 0)
        return;
    const QString title = tr("Save Statistics");
    const QString file = FileDialog::getSaveFileName(m_host.dialogParent(), title,
                                                     QStringLiteral("csv file(*.csv)"));
    if (file.isEmpty() || !ProjectState::hasData())
        return;
    Outcome outcome = checkNotOwn(ProjectState::place(), file);
    if (outcome.isDone())
        outcome = writeResultCsv(file, *m_model, ResultCsv::AsShown);
    if (outcome.isDone())
        return FileExports::offerToOpen(
            m_host, file, tr("Rows: %1").arg(lum::groupedNumber(m_model->rowCount())));
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), title, outcome.text());
}
