#include "quality/EmptyPointCheck.h"

#include "lum_sdk/events/ProgressReporter.h"

#include <QCoreApplication>

namespace {

/// Walks both lines at once, since both are in the order of their numbers.
/// \param results null when the line has none
void markSurveyed(DesignPoints::Line& design, const SurveyPoints::Line* results)
{
    static const SurveyPoints::Line kNone;
    const SurveyPoints::Line& line = results != nullptr ? *results : kNone;
    auto result = line.begin();
    const auto end = line.end();
    for (DesignPoint& point : design) {
        fetchAhead(point);
        int order = 1;
        while (result != end && (order = result->pointNumber.compare(point.pointNumber)) < 0) {
            fetchAhead(*result);
            ++result;
        }
        point.status = result != end && order == 0 ? 1 : 0;
    }
}

} // namespace

void checkEmptyPoints(DesignPoints& design, const SurveyPoints& survey, ProgressReporter& progress)
{
    const std::string caption =
        QCoreApplication::translate("EmptyPointCheck", "Empty Check").toStdString();
    if (!design.empty()) {
        ProgressSteps steps(progress, caption, design.lineCount());
        for (auto& [number, line] : design) {
            markSurveyed(line, survey.findLine(number));
            steps.next();
        }
    }
    progress.hide();
}

std::vector<DesignPoint> emptyPoints(const DesignPoints& design)
{
    std::vector<DesignPoint> points;
    for (const auto& [number, line] : design) {
        const std::int32_t type = line.begin()->type;
        for (const DesignPoint& point : line) {
            if (point.status == 0)
                points.emplace_back(point).type = type;
        }
    }
    return points;
}
