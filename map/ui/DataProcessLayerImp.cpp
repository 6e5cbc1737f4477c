#include "map/ui/DataProcessLayerImp.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "map/DesignPicture.h"
#include "map/DesignSpacing.h"
#include "map/MarkExtent.h"
#include "map/SurveyPicture.h"
#include "map/ui/LayerTexts.h"
#include "map/ui/SurveyLook.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/ChosenColors.h"
#include "quality/QualityLimits.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace {

constexpr double kPickPixels = 10;
constexpr int kSurveyView = 0;
constexpr int kDesignView = 1;

constexpr const char* kRebuildEvents[] = {events::kPaintingLayerUpdate,
                                          events::kSettingViewFinished, events::kRefreshSurveyLayer,
                                          events::kRefreshDesignLayer};

std::string subscribedEvents()
{
    std::string names = events::kUpdateSystemStatus;
    for (const char* name : kRebuildEvents)
        names.append(",").append(name);
    return names;
}

/// The cache of the moment. The caller keeps it even when another one takes its place.
template <class Marks>
std::shared_ptr<const Marks> currentOf(const std::shared_ptr<const Marks>& cache, std::mutex& mutex)
{
    const std::lock_guard lock(mutex);
    return cache;
}

int viewOf(const IDictionary& status)
{
    return status.integer(status::kViewShowWhich, kDesignView);
}

// The points of the open project. The map is made before the data manager and outlives it.

const DesignPoints& designPoints()
{
    static const DesignPoints kNone;
    return DataProcessDataManager::hasInstance() ? DataProcessDataManager::instance().designPoints()
                                                 : kNone;
}

const SurveyPoints& surveyPoints()
{
    static const SurveyPoints kNone;
    return DataProcessDataManager::hasInstance() ? DataProcessDataManager::instance().surveyPoints()
                                                 : kNone;
}

} // namespace

DataProcessLayerImp::DataProcessLayerImp(const char* config, IDesktopHost* host)
    : m_properties(desktop::componentParameters(config)), m_host(*host),
      m_helper(*get_instance_ICoordTransformHelper(host)), m_look(surveyLook()),
      m_choice(surveyChoice()), m_subscription(*this, subscribedEvents(), host->eventManager()),
      m_verdicts(*this, lum::eventNames({events::kRefreshSurveyTable, events::kResurveysChecked}),
                 host->eventManager())
{
    m_verdictsTimer.setSingleShot(true);
    QObject::connect(&m_verdictsTimer, &QTimer::timeout, &m_verdictsTimer, [this] {
        m_look.clear();
        followLook();
    });
}

DataProcessLayerImp::~DataProcessLayerImp() = default;

std::string DataProcessLayerImp::GetName() const
{
    return "DataProcessLayer";
}

bool DataProcessLayerImp::IsVisible() const
{
    return m_properties.integer("visible", 1) != 0;
}

// --- caches ---

void DataProcessLayerImp::handleEvent(const char* eventName, const char* /*payload*/,
                                      int /*reserved*/)
{
    const auto is = [&](const char* name) { return std::strcmp(name, eventName) == 0; };
    if (is(events::kUpdateSystemStatus)) {
        clearOldHighlights();
        followLook();
        return;
    }
    if (is(events::kRefreshSurveyTable) || is(events::kResurveysChecked)) {
        if (!m_colors.isNone())
            m_verdictsTimer.start(0); // one run of the checks tells of several at once
        return;
    }
    if (std::any_of(std::begin(kRebuildEvents), std::end(kRebuildEvents), is))
        rebuild();
    handOverExtent();
}

void DataProcessLayerImp::rebuild()
{
    const int view = viewOf(get_system_status_dictionary());
    if (view == kSurveyView)
        rebuildSurvey();
    else if (view == kDesignView)
        rebuildDesign();
}

void DataProcessLayerImp::rebuildDesign()
{
    const auto place = [this](double north, double east) { return toMap(north, east); };
    auto marks = std::make_shared<const DesignMarks>(designPoints(), place);
    m_extent = markExtent(marks->table().gridBounds(), place);
    const std::lock_guard lock(m_designMutex);
    m_design = std::move(marks);
}

void DataProcessLayerImp::rebuildSurvey()
{
    m_verdictsTimer.stop();
    const auto place = [this](double north, double east) { return toMap(north, east); };
    m_colors = DataProcessDataManager::hasInstance()
                   ? colorsOf(chosenColoring(), surveyPoints(),
                              DataProcessDataManager::instance().qualityLimits())
                   : ResultColors();
    auto marks = std::make_shared<const SurveyMarks>(
        surveyPoints(), place, MarkColors{m_colors.colors(), m_colors.classOf()});
    m_look = surveyLook();
    m_legend = m_colors.legend(marks->classCounts());
    m_extent = markExtent(marks->gridBounds(), place);
    const std::lock_guard lock(m_surveyMutex);
    m_survey = std::move(marks);
}

/// Draws the survey anew when the user wants another look of it, or other limits judge it. Says
/// where to see it when another view is on the map.
void DataProcessLayerImp::followLook()
{
    std::string choice = surveyChoice();
    const bool isChosen = choice != m_choice;
    m_choice = std::move(choice);
    const bool isInView = viewOf(get_system_status_dictionary()) == kSurveyView;
    if (isChosen && !isInView && m_host.hasDocument())
        m_host.tell(LayerTexts::seenInSurveyView());
    if (!isInView || surveyLook() == m_look)
        return;
    rebuildSurvey();
    if (auto* const map = m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap")))
        map->redraw();
}

void DataProcessLayerImp::handOverExtent()
{
    auto* const map = m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return;
    // Only the top is rounded down. QRectF::toAlignedRect would do it, but its numbers end at 2^31.
    map->setExtent(m_extent.left(), std::floor(m_extent.top()), m_extent.right(),
                   m_extent.bottom());
}

/// Clears the overlays when the project whose points they highlight is no longer open.
void DataProcessLayerImp::clearOldHighlights()
{
    const std::string_view project = get_system_status_dictionary().text(status::kProjectPath);
    if (project == m_project)
        return;
    m_project = project;
    auto* const map = m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    if (map == nullptr)
        return;
    for (const int number : {0, 1})
        map->overlay(number).clear();
    map->refreshOverlay();
}

// --- painting ---

void DataProcessLayerImp::preparePaint()
{
    std::optional<double> spacing;
    if (DataProcessDataManager::hasInstance())
        spacing = smallestSpacing(DataProcessDataManager::instance().designParameters());
    const SurveyPictureOptions options = chosenSurveyOptions(!m_colors.isNone());
    const std::lock_guard lock(m_optionsMutex);
    m_spacing = spacing;
    m_surveyOptions = options;
}

void DataProcessLayerImp::Paint(const PaintTarget& target, const QRectF& /*view*/,
                                QPainter& painter)
{
    const int view = viewOf(target.status);
    if (view == kSurveyView)
        paintSurveyPicture(target, painter);
    else if (view == kDesignView)
        paintDesignPicture(target, painter);
}

void DataProcessLayerImp::paintDesignPicture(const PaintTarget& target, QPainter& painter)
{
    std::optional<double> spacing;
    {
        const std::lock_guard lock(m_optionsMutex);
        spacing = m_spacing;
    }
    if (!spacing)
        return;
    DesignPictureOptions options;
    options.spacing = *spacing;
    options.showsReceiverLines = target.status.integer(status::kShowReceiverLines, 1) != 0;
    options.showsSourceLines = target.status.integer(status::kShowSourceLines, 1) != 0;
    const auto marks = currentOf(m_design, m_designMutex);
    paintDesign(*marks, frameOf(target, LayerTexts::drawDesign()), options, painter);
    m_host.eventManager().publish(events::kProgress, payload::kProgressEnd, 0);
}

void DataProcessLayerImp::paintSurveyPicture(const PaintTarget& target, QPainter& painter)
{
    SurveyPictureOptions options;
    {
        const std::lock_guard lock(m_optionsMutex);
        options = m_surveyOptions;
    }
    const auto marks = currentOf(m_survey, m_surveyMutex);
    paintSurvey(*marks, frameOf(target, LayerTexts::drawSurvey()), LayerTexts::baseLabel(), painter,
                options);
    m_host.eventManager().publish(events::kProgress, payload::kProgressEnd, 0);
}

PictureFrame DataProcessLayerImp::frameOf(const PaintTarget& target, const QString& caption) const
{
    PictureFrame frame;
    frame.transform = target.transform;
    frame.drawingArea = frame.screenArea(0); // wherever the window stands
    frame.isStopped = [&target] { return target.isCancelled(); };
    frame.lineDone = [this, text = caption.toStdString()](double percent) {
        m_host.eventManager().publish(events::kProgress, payload::progress(text, percent).c_str(),
                                      0);
    };
    return frame;
}

// --- questions ---

QPointF DataProcessLayerImp::toMap(double north, double east) const
{
    return m_helper.projectToMap(north, east);
}

double DataProcessLayerImp::reach() const
{
    return m_transform != nullptr ? kPickPixels * m_transform->GetScale() : 0;
}

GridPlace DataProcessLayerImp::gridAt(const QPointF& map) const
{
    GridPlace grid;
    m_helper.mapToProject(map, grid.north, grid.east);
    return grid;
}

DataProcessLayerImp::SurveyPick DataProcessLayerImp::pickSurvey(const QPointF& map) const
{
    const GridPlace grid = gridAt(map);
    SurveyPick pick;
    pick.mark = m_survey->table().nearest(grid, reach());
    pick.base = m_survey->nearestBase(grid, pick.mark ? pick.mark->distance : reach());
    return pick;
}

QString DataProcessLayerImp::PickSurveyPoint(double x, double y) const
{
    const SurveyPick pick = pickSurvey({x, y});
    if (pick.base)
        return LayerTexts::basePick() + QLatin1Char('-') + QString::number(*pick.base);
    return pick.mark ? lum::toQString(m_survey->table().name(pick.mark->mark)) : QString();
}

bool DataProcessLayerImp::GetSurveyPoint(const QString& name, QString& line, QPointF& measured,
                                         QPointF& design) const
{
    const MarkTable& marks = m_survey->table();
    const auto mark = marks.find(name.toStdString());
    if (!mark)
        return false;
    line = lum::toQString(marks.lineOf(*mark).number);
    measured = marks.place(*mark);
    design = m_survey->ties(*mark).design;
    return true;
}

std::optional<MarkTable::Nearest> DataProcessLayerImp::pickDesign(const QPointF& map) const
{
    return m_design->table().nearest(gridAt(map), reach());
}

QString DataProcessLayerImp::PickDesignPoint(double x, double y) const
{
    const auto pick = pickDesign({x, y});
    return pick ? lum::toQString(m_design->table().name(pick->mark)) : QString();
}

bool DataProcessLayerImp::GetDesignPoint(const QString& name, QString& line,
                                         QPointF& position) const
{
    const MarkTable& marks = m_design->table();
    const auto mark = marks.find(name.toStdString());
    if (!mark)
        return false;
    line = lum::toQString(marks.lineOf(*mark).number);
    position = marks.place(*mark);
    return true;
}

bool DataProcessLayerImp::GetBasePosition(int index, QPointF& position) const
{
    BaseStation record;
    if (!GetBaseRecord(index, record))
        return false;
    position = toMap(record.north, record.east);
    return true;
}

bool DataProcessLayerImp::GetBaseRecord(int index, BaseStation& record) const
{
    const auto& bases = m_survey->bases();
    if (index < 0 || static_cast<std::size_t>(index) >= bases.size())
        return false;
    record = bases[static_cast<std::size_t>(index)];
    return true;
}

bool DataProcessLayerImp::hasMarkIn(const QRectF& map) const
{
    const int view = viewOf(get_system_status_dictionary());
    if (view == kDesignView)
        return m_design->table().hasMarkIn(map);
    return view == kSurveyView && m_survey->hasMarkIn(map);
}

std::optional<DrawnPoint> DataProcessLayerImp::pointAt(const QPointF& map) const
{
    const auto pointOf = [](const MarkTable& marks, MarkTable::Index mark) {
        return DrawnPoint{lum::toQString(marks.name(mark)), marks.grid(mark)};
    };
    const int view = viewOf(get_system_status_dictionary());
    if (view == kDesignView) {
        if (const auto pick = pickDesign(map))
            return pointOf(m_design->table(), pick->mark);
    } else if (view == kSurveyView) {
        const SurveyPick pick = pickSurvey(map);
        if (pick.base) {
            const BaseStation& base = m_survey->bases()[*pick.base];
            return DrawnPoint{LayerTexts::baseName(*pick.base), {base.north, base.east}};
        }
        if (pick.mark)
            return pointOf(m_survey->table(), pick.mark->mark);
    }
    return {};
}

QString DataProcessLayerImp::tipAt(const QPointF& map) const
{
    const int view = viewOf(get_system_status_dictionary());
    if (view == kDesignView)
        return designTip(map);
    return view == kSurveyView ? surveyTip(map) : QString();
}

QString DataProcessLayerImp::designTip(const QPointF& map) const
{
    const auto pick = pickDesign(map);
    if (!pick)
        return {};
    const MarkTable& marks = m_design->table();
    const MarkTable::Line& line = marks.lineOf(pick->mark);
    const int type = m_design->typeOf(static_cast<std::size_t>(&line - marks.lines().data()));
    return LayerTexts::designTip(type, lum::toQString(line.number),
                                 lum::toQString(marks.name(pick->mark)), marks.grid(pick->mark));
}

QString DataProcessLayerImp::surveyTip(const QPointF& map) const
{
    const SurveyPick pick = pickSurvey(map);
    if (pick.base) {
        const BaseStation& base = m_survey->bases()[*pick.base];
        return LayerTexts::baseTip(*pick.base, {base.north, base.east});
    }
    if (!pick.mark)
        return {};
    const MarkTable& marks = m_survey->table();
    const MarkTable::Index mark = pick.mark->mark;
    const QString tip = LayerTexts::surveyTip(lum::toQString(marks.lineOf(mark).number),
                                              lum::toQString(marks.name(mark)), marks.grid(mark));
    return m_survey->colors().empty()
               ? tip
               : tip + QLatin1Char('\n') + m_colors.text(m_survey->classOf(mark));
}

lum::Legend DataProcessLayerImp::legend() const
{
    return viewOf(get_system_status_dictionary()) == kSurveyView ? m_legend : lum::Legend();
}
