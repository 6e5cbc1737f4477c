#include "map/sheet/MapDrawing.h"

#include "lum_sdk/coords/CoordProjections.h"
#include "map/DesignMarks.h"
#include "map/DesignSpacing.h"
#include "map/MarkExtent.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "quality/colors/ResultColors.h"

#include <QCoreApplication>

#include <array>
#include <memory>

namespace {

/// The colours of the lines that are shown, with their points.
lum::Legend legendOf(const DesignMarks& marks, const DesignPictureOptions& options)
{
    std::array<std::size_t, 2> counts{}; // by type
    const MarkTable& table = marks.table();
    for (std::size_t i = 0; i < table.lines().size(); ++i) {
        const MarkTable::Line& line = table.lines()[i];
        counts[marks.typeOf(i) == 0 ? 0 : 1] += table.endOf(line) - table.firstOf(line);
    }
    lum::Legend legend{QCoreApplication::translate("MapSheet", "Design points"), {}};
    if (options.showsReceiverLines && counts[1] > 0)
        legend.entries.push_back(
            {designColor(1), QCoreApplication::translate("MapSheet", "receivers"), counts[1]});
    if (options.showsSourceLines && counts[0] > 0)
        legend.entries.push_back(
            {designColor(0), QCoreApplication::translate("MapSheet", "sources"), counts[0]});
    return legend;
}

} // namespace

ToMap toMapOf(const IDictionary& system)
{
    const lum::PlaneAxes axes = lum::planeAxes(system);
    return [axes](double north, double east) {
        return QPointF(axes.eastSign() * east, axes.northSign() * north);
    };
}

MapDrawing drawingOf(const DesignPoints& points, const IDictionary& parameters, const ToMap& toMap,
                     DesignPictureOptions options)
{
    const auto marks = std::make_shared<const DesignMarks>(points, toMap);
    options.spacing = smallestSpacing(parameters).value_or(options.spacing);
    MapDrawing drawing;
    drawing.paint = [marks, options](const PictureFrame& frame, QPainter& painter) {
        paintDesign(*marks, frame, options, painter);
    };
    if (marks->table().size() > 0)
        drawing.extent = markExtent(marks->table().gridBounds(), toMap);
    drawing.legend = legendOf(*marks, options);
    return drawing;
}

MapDrawing drawingOf(const SurveyPoints& points, const ResultColors& colors, const ToMap& toMap,
                     SurveyPictureOptions options)
{
    options.hasFineBaseTies = true;
    const auto marks = std::make_shared<const SurveyMarks>(
        points, toMap, MarkColors{colors.colors(), colors.classOf()});
    const QString base = QCoreApplication::translate("DataProcessLayerImp", "Base");
    MapDrawing drawing;
    drawing.paint = [marks, base, options](const PictureFrame& frame, QPainter& painter) {
        paintSurvey(*marks, frame, base, painter, options);
    };
    if (marks->table().size() > 0)
        drawing.extent = markExtent(marks->gridBounds(), toMap);
    drawing.legend = colors.legend(marks->classCounts());
    drawing.isSurvey = true;
    return drawing;
}
