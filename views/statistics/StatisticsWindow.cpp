#include "views/statistics/StatisticsWindow.h"

#include "basalt_utilities/ILogger.h"
#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "quality/ResultCsv.h"
#include "reports/StatisticsFigures.h"
#include "views/statistics/GroupNames.h"
#include "views/statistics/StatisticsPlots.h"
#include "views/statistics/StatisticsTableModel.h"
#include "views/statistics/StatisticsWidths.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPolygonF>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstring>
#include <tuple>

namespace {

using statistics::GroupKey;
using statistics::ResultKind;

constexpr int kMargin = 4;
constexpr std::size_t kNamed = 3; // groups that are named, not counted

struct ChoiceOfKey
{
    const char* name; ///< in settings
    StatisticsTableModel::Key key;
};

constexpr std::array kKeys{
    ChoiceOfKey{"line", GroupKey::Line},   ChoiceOfKey{"day", GroupKey::Day},
    ChoiceOfKey{"rover", GroupKey::Rover}, ChoiceOfKey{"surveyor", GroupKey::Surveyor},
    ChoiceOfKey{"base", GroupKey::Base},   ChoiceOfKey{"kind", GroupKey::PointKind},
    ChoiceOfKey{"all", std::nullopt},
};

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

QString openProject()
{
    return ProjectState::hasData() ? ProjectState::place().folder : QString();
}

int chosenKey()
{
    const auto name = get_system_ini_parameter().dictionary().text(settings::kStatisticsGroups);
    const auto found =
        std::ranges::find_if(kKeys, [&](const ChoiceOfKey& key) { return name == key.name; });
    return found == kKeys.end() ? 0 : static_cast<int>(found - kKeys.begin());
}

/// Calls `run` with each table of points that there is.
template <class Run>
void withList(IDesktopHost& host, const char* name, Run run)
{
    if (auto* const list = host.windows().findAs<IPointList>(QLatin1String(name)))
        run(*list);
}

constexpr const char* kResults = "Survey Data List";
constexpr const char* kDesign = "Design Data List";

} // namespace

StatisticsWindow::StatisticsWindow(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config)),
      m_model(new StatisticsTableModel(this)), m_table(new CustomTableWidget(this)),
      m_plots(new StatisticsPlots(*host, this)), m_keys(new QComboBox(this)),
      m_empty(new QLabel(this)),
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
    addKeys();
    bar->addWidget(m_keys);
    m_showAll = addButton(*bar, "showAll", "edit-clear-all", tr("Show &All"),
                          tr("Show all points again in the tables and in the plot"));
    connect(m_showAll, &QToolButton::clicked, this, &StatisticsWindow::showAll);
    bar->addStretch(1);
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

void StatisticsWindow::addKeys()
{
    m_keys->setObjectName(QStringLiteral("keys"));
    for (const ChoiceOfKey& choice : kKeys)
        m_keys->addItem(choice.key ? statisticsKeyName(*choice.key) : tr("All Together"));
    m_keys->setCurrentIndex(chosenKey());
}

void StatisticsWindow::connectParts()
{
    connect(&m_renewal, &QTimer::timeout, this, &StatisticsWindow::renew);
    connect(m_keys, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &StatisticsWindow::setKey);
    connect(m_table, &QAbstractItemView::clicked, this, &StatisticsWindow::goFrom);
    connect(m_names, &GroupNames::chosen, this, &StatisticsWindow::chooseRows);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &StatisticsWindow::chooseRows);
    connect(m_table, &CustomTableWidget::selectedByDrag, this, &StatisticsWindow::chooseRows);
    connect(m_table, &CustomTableWidget::orderRequested, m_model, &StatisticsTableModel::sortBy);
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, this,
            [this](const QModelIndex& /*cell*/, const QPoint& at) { showMenu(at); });
    connect(m_plots, &StatisticsPlots::selected, this, &StatisticsWindow::selectInPlot);
    connect(m_plots, &StatisticsPlots::activated, this, &StatisticsWindow::zoomTo);
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
    renewSoon();
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
    const bool isWanted = isVisible() || !m_chosen.empty();
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

void StatisticsWindow::setKey(int place)
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(settings::kStatisticsGroups,
                              kKeys[static_cast<std::size_t>(place)].name);
    settings.save(); // logs a failure; the choice is then kept for this session only
    takeChoiceBack();
    if (m_data.isCurrent())
        showGroups();
}

/// Groups anew. What was chosen stays.
void StatisticsWindow::showGroups()
{
    m_model->setGroups(m_data.sample(),
                       kKeys[static_cast<std::size_t>(m_keys->currentIndex())].key);
    m_widths->fit();
    m_names->follow();
    std::erase_if(m_chosen, [this](const auto& value) { return m_model->rowOf(value) < 0; });
    for (const statistics::KeyValue& value : m_chosen)
        m_table->selectionModel()->select(m_model->index(m_model->rowOf(value), 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    if (!m_chosen.empty() && !m_isSelection)
        applyChoice();
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
    m_showAll->setEnabled(!m_chosen.empty() || m_isSelection);
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
    Places places;
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
        goTo(*worst);
}

void StatisticsWindow::chooseRows()
{
    if (!m_data.isCurrent())
        return;
    std::vector<statistics::KeyValue> chosen;
    bool isAll = false;
    for (const int row : m_table->selectedRows()) {
        if (const auto group = m_model->groupAt(row))
            chosen.push_back(m_model->value(*group));
        else
            isAll = true;
    }
    if (isAll || chosen.empty()) { // the row stays selected, to be copied
        takeChoiceBack();
        showPlot();
        return showState();
    }
    if (chosen == m_chosen && !m_isSelection)
        return;
    m_chosen = std::move(chosen);
    m_isSelection = false;
    applyChoice();
    mark(placesOf(chosenGroups()));
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

/// The tables show all points again, and the map marks none.
void StatisticsWindow::takeChoiceBack()
{
    if (m_chosen.empty() && !m_isSelection)
        return;
    m_chosen.clear();
    m_isSelection = false;
    withList(m_host, kResults, [](IPointList& list) { list.showOthersAgain(); });
    withList(m_host, kDesign, [](IPointList& list) { list.showOthersAgain(); });
    PointHighlight::clear(m_host);
}

void StatisticsWindow::applyChoice()
{
    const std::vector<std::size_t> groups = chosenGroups();
    const Places places = placesOf(groups);
    showOnly(nameOf(groups), places, designOf(groups, places));
}

void StatisticsWindow::showPlot()
{
    PlotData shown = m_data.all();
    const std::vector<std::size_t> groups = chosenGroups();
    if (!groups.empty()) {
        shown.places = placesOf(groups);
        shown.subject = nameOf(groups);
    }
    const GroupKey key = m_model->key().value_or(GroupKey::Rover);
    if (!groups.empty() && (key == GroupKey::Line || key == GroupKey::PointKind)) {
        shown.design = {};
        for (const std::size_t group : groups) {
            shown.design.designed += m_model->design(group).designed;
            shown.design.left += m_model->design(group).left;
        }
    }
    m_plots->setData(std::move(shown));
}

std::vector<std::size_t> StatisticsWindow::chosenGroups() const
{
    std::vector<std::size_t> groups;
    groups.reserve(m_chosen.size());
    for (const statistics::KeyValue& value : m_chosen) {
        if (const auto group = m_model->groupAt(m_model->rowOf(value)))
            groups.push_back(*group);
    }
    return groups;
}

StatisticsWindow::Places StatisticsWindow::placesOf(std::span<const std::size_t> groups) const
{
    Places places;
    for (const std::size_t group : groups) {
        const auto members = m_model->members(group);
        places.insert(places.end(), members.begin(), members.end());
    }
    std::ranges::sort(places);
    return places;
}

QString StatisticsWindow::nameOf(std::span<const std::size_t> groups) const
{
    if (groups.size() > kNamed)
        return tr("%1 groups").arg(lum::groupedNumber(groups.size()));
    QStringList names;
    for (const std::size_t group : groups)
        names << m_model->name(group);
    return names.join(QLatin1String(", "));
}

/// The design of lines and kinds, with what is left of it; of other groups what they have staked.
std::vector<PointName> StatisticsWindow::designOf(std::span<const std::size_t> groups,
                                                  const Places& places) const
{
    const GroupKey key = m_model->key().value_or(GroupKey::Rover);
    if (key != GroupKey::Line && key != GroupKey::PointKind)
        return namesOf(places, true);
    const auto isChosen = [&](const auto& judge) {
        return std::ranges::any_of(groups,
                                   [&](std::size_t group) { return judge(m_model->value(group)); });
    };
    std::vector<PointName> names;
    for (const auto& [number, line] : manager().designPoints()) {
        if (key == GroupKey::Line &&
            !isChosen([&](const statistics::KeyValue& value) { return value.text == number; }))
            continue;
        for (const DesignPoint& point : line) {
            const std::int64_t kind = point.type == 0 ? 0 : 1;
            if (key == GroupKey::Line ||
                isChosen([&](const statistics::KeyValue& value) { return value.number == kind; }))
                names.push_back({point.lineNumber, point.pointNumber});
        }
    }
    return names;
}

// --- the other windows ---

void StatisticsWindow::selectInPlot(const Places& places)
{
    if (!m_data.isCurrent())
        return;
    if (places.size() == 1)
        return goTo(places.front());
    if (!places.empty()) {
        m_isSelection = true;
        showOnly(tr("%1 results of the plot").arg(lum::groupedNumber(places.size())), places,
                 namesOf(places, true));
        mark(places);
    } else if (m_isSelection && !m_chosen.empty()) {
        m_isSelection = false;
        applyChoice();
        mark(placesOf(chosenGroups()));
    } else if (m_isSelection) {
        takeChoiceBack();
    }
    showState();
}

void StatisticsWindow::showOnly(const QString& what, const Places& places,
                                std::vector<PointName> design)
{
    withList(m_host, kResults,
             [&](IPointList& list) { list.showOnly(what, namesOf(places, false)); });
    withList(m_host, kDesign, [&](IPointList& list) { list.showOnly(what, std::move(design)); });
}

std::vector<PointName> StatisticsWindow::namesOf(const Places& places, bool isOfStaked) const
{
    std::vector<PointName> names;
    names.reserve(places.size());
    for (const std::uint32_t place : places) {
        const statistics::Observation& result = m_data.all().result(place);
        if (!isOfStaked || result.kind == ResultKind::Staked)
            names.push_back({result.point->lineNumber, result.point->pointNumber});
    }
    return names;
}

void StatisticsWindow::mark(const Places& places)
{
    const ICoordTransformHelper& helper = m_host.coordTransformHelper();
    QPolygonF positions;
    positions.reserve(static_cast<int>(places.size()));
    for (const std::uint32_t place : places) {
        const SurveyPoint& point = *m_data.all().result(place).point;
        positions << helper.projectToMap(point.north, point.east);
    }
    PointHighlight::markGroup(m_host, positions);
}

void StatisticsWindow::goTo(std::uint32_t place)
{
    const SurveyPoint& result = *m_data.all().result(place).point;
    const QString line = lum::toQString(result.lineNumber);
    const QString point = lum::toQString(result.pointNumber);
    auto* const list = m_host.windows().findAs<IPointList>(QLatin1String(kResults));
    if (list != nullptr)
        list->selectPoint(line, point);
    else
        m_host.eventManager().publish(events::kSurveyPointSelected,
                                      payload::selectedPoint(point, line).constData(), 0);
}

void StatisticsWindow::zoomTo(std::uint32_t place)
{
    if (!m_data.isCurrent())
        return;
    goTo(place);
    PointHighlight::zoomTo(m_host, *m_data.all().result(place).point);
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
