#include "reports/daily/DailyMap.h"

#include "map/MarkExtent.h"
#include "map/PictureFrame.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/SheetLayout.h"
#include "quality/colors/ColorPalette.h"
#include "quality/colors/ResultColors.h"
#include "reports/daily/DailyFigures.h"
#include "reports/ReportInput.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DailyReport)
};

constexpr double kInchMm = 25.4;
constexpr double kSheetMarginMm = 10; // that a sheet leaves free around itself
constexpr QRgb kMissing = 0xffe08000;
constexpr double kMissingSize = 2.5; // pixels
constexpr double kLeastReach = 500;  // from the design, in the unit of the grid

enum ResultClass : std::uint8_t
{
    Failed,
    NotJudged,
    Again, ///< a resurvey or a repeat, whatever its verdict
    WithinLimits,
    Other
};

ResultClass classOf(const statistics::Observation& result)
{
    if (!result.isFirst())
        return Again;
    if (result.verdict == statistics::Verdict::Failed)
        return Failed;
    return result.verdict == statistics::Verdict::NotJudged ? NotJudged : WithinLimits;
}

/// In the order of `ResultClass`.
ResultColors colorsOf(const DailyFigures& figures)
{
    const QString day = figures.dayText();
    std::unordered_map<const SurveyPoint*, ResultClass> ofDay;
    for (const statistics::Observation& result : figures.ofDay().sample.results)
        ofDay.emplace(result.point, classOf(result));
    return {Texts::tr("Results"),
            {{Texts::tr("%1: over limit").arg(day), palette::kRed},
             {Texts::tr("%1: not judged").arg(day), palette::kMauve},
             {Texts::tr("%1: measured again").arg(day), palette::kSky},
             {Texts::tr("%1: within limits").arg(day), palette::kNavy},
             {Texts::tr("other results"), palette::kOthers}},
            [ofDay = std::move(ofDay)](const SurveyPoint& point) {
                const auto found = ofDay.find(&point);
                return std::uint8_t(found == ofDay.end() ? Other : found->second);
            }};
}

template <class Point>
bool hasPlace(const Point& point)
{
    return std::isfinite(point.north) && std::isfinite(point.east);
}

/// Around the design and the results near it, on the grid: a result in a wrong place, or a base
/// station, would make the map small. Around all results when there is no design.
Bounds gridAreaOf(const DesignPoints& design, const SurveyPoints& survey)
{
    Bounds area;
    for (const auto& [number, line] : design) {
        for (const DesignPoint& point : line) {
            if (hasPlace(point))
                area.add(point.north, point.east);
        }
    }
    const bool isAll = area.isEmpty();
    const double reach =
        std::max({(area.maxX - area.minX) / 4, (area.maxY - area.minY) / 4, kLeastReach});
    const QRectF near = QRectF(QPointF(area.minX, area.minY), QPointF(area.maxX, area.maxY))
                            .adjusted(-reach, -reach, reach, reach);
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            if (hasPlace(point) && (isAll || near.contains(point.north, point.east)))
                area.add(point.north, point.east);
        }
    }
    return area;
}

/// The places of the design points that nobody has staked, map coordinates.
std::vector<QPointF> missingOf(const ReportInput& input, const SurveyPoints& survey,
                               const ToMap& toMap)
{
    std::vector<QPointF> missing;
    for (const auto& [number, line] : input.design) {
        const auto* const staked = survey.findLine(number);
        for (const DesignPoint& point : line) {
            const bool isStaked = staked != nullptr && staked->find(point.pointNumber) != nullptr;
            if (!isStaked && hasPlace(point))
                missing.push_back(toMap(point.north, point.east));
        }
    }
    return missing;
}

void paintMissing(const std::vector<QPointF>& places, const PictureFrame& frame, QPainter& painter)
{
    const QColor color = QColor::fromRgb(kMissing);
    for (const QPointF& place : places) {
        const QPointF at = frame.transform.SurveyToScreen(place);
        if (frame.drawingArea.contains(at))
            painter.fillRect(QRectF(at.x() - kMissingSize / 2, at.y() - kMissingSize / 2,
                                    kMissingSize, kMissingSize),
                             color);
    }
}

/// Puts the missing points under the results.
void add(std::vector<QPointF> missing, MapDrawing& drawing)
{
    if (missing.empty())
        return;
    drawing.legend.entries.push_back(
        {QColor::fromRgb(kMissing), Texts::tr("not staked yet"), missing.size()});
    drawing.paint = [places = std::move(missing),
                     paintResults = drawing.paint](const PictureFrame& frame, QPainter& painter) {
        paintMissing(places, frame, painter);
        paintResults(frame, painter);
    };
}

} // namespace

MapSheet dailyMap(const ReportInput& input, const DailyFigures& figures)
{
    const ToMap toMap = toMapOf(input.coordParameters);
    SurveyPictureOptions options;
    options.showsBaseTies = false;
    options.showsOffsets = false;
    options.names = SurveyPictureOptions::Names::None;
    MapSheet sheet;
    sheet.ground = std::make_shared<MapGround>(input.coordParameters);
    sheet.drawing = drawingOf(figures.survey(), colorsOf(figures), toMap, options);
    add(missingOf(input, figures.survey(), toMap), sheet.drawing);
    const Bounds area = gridAreaOf(input.design, figures.survey());
    sheet.drawing.extent = area.isEmpty() ? QRectF() : markExtent(area, toMap);
    nameSheet(sheet, input.projectName, input.coordParameters);
    sheet.setup.title.clear(); // the page has one
    if (figures.day().isValid())
        sheet.setup.date = figures.day();
    return sheet;
}

bool paintDailyMap(QPainter& painter, const QRectF& place, MapSheet sheet, double dpi)
{
    const double margin = kSheetMarginMm / kInchMm * dpi;
    const QRectF paper = place.adjusted(-margin, -margin, margin, margin);
    sheet.setup.dpi = dpi;
    sheet.setup.paper = {"", paper.width() / dpi * kInchMm, paper.height() / dpi * kInchMm};
    const SheetLayout layout(sheet.setup);
    SheetWatch watch;
    painter.save();
    painter.translate(paper.topLeft());
    const bool isPainted = paintSheet(painter, sheet, layout, watch);
    painter.restore();
    return isPainted;
}
