#include "quality/QualityCheck.h"

#include "lum_sdk/events/ProgressReporter.h"
#include "quality/QualityLimits.h"
#include "quality/UnplacedResults.h"

#include <QCoreApplication>

#include <cmath>

namespace {

constexpr int kDesign = 1;
constexpr int kReference = 100;
constexpr int kAccuracy = 1000;
constexpr int kAntenna = 10000;
constexpr int kDilution = 100000;
constexpr int kSatellites = 1000000;
constexpr int kLine = 10000000;

bool isOutside(double value, const QualityLimits::Range& range)
{
    return value > range.max || value < range.min;
}

int antennaFault(double heightM, const QualityLimits::Range& range)
{
    if (heightM > range.max)
        return 1;
    return heightM < range.min ? 2 : 0;
}

/// One fault of weight 1 and one of weight 2.
int faults(bool first, bool second)
{
    return (first ? 1 : 0) + (second ? 2 : 0);
}

} // namespace

int qualityCode(const SurveyPoint& point, const QualityLimits& limits)
{
    const double unitM = limits.planeUnitM;
    const double north = (point.north - point.designNorth) * unitM;
    const double east = (point.east - point.designEast) * unitM;
    const auto& line = limits.lineDeviation(point.pointMark);
    const int design = faults(
        std::sqrt(north * north + east * east) > limits.designHorizontalM + kRoundingM,
        std::fabs(point.elevation - point.designElevation) > limits.designVerticalM + kRoundingM);
    const int accuracy = faults(std::fabs(point.horizontalAccuracy) > limits.hrmsM,
                                std::fabs(point.verticalAccuracy) > limits.vrmsM);
    const int dilution =
        faults(isOutside(point.pdop, limits.pdop), isOutside(point.hdop, limits.hdop)) +
        (isOutside(point.vdop, limits.vdop) ? 4 : 0);
    const int deviation = faults(std::fabs(point.transversalDeviation * unitM) > line.acrossM,
                                 std::fabs(point.longitudinalDeviation * unitM) > line.alongM);
    return design * kDesign + (point.referenceDistance > limits.baseDistanceM ? kReference : 0) +
           accuracy * kAccuracy + antennaFault(point.antennaHeight, limits.antennaM) * kAntenna +
           dilution * kDilution + (limits.satellites > point.satelliteNumber ? kSatellites : 0) +
           deviation * kLine;
}

void checkQuality(SurveyPoints& points, const IDictionary& parameters, ProgressReporter& progress,
                  double planeUnitM)
{
    QualityLimits limits = QualityLimits::from(parameters);
    limits.planeUnitM = planeUnitM;
    const std::string caption =
        QCoreApplication::translate("QualityCheck", "Check Survey Line:").toStdString();
    UnplacedResults unplaced;
    for (auto& [number, line] : points) {
        ProgressSteps steps(progress, caption + number, line.size());
        for (SurveyPoint& point : line) {
            fetchAhead(point);
            point.qualityStandard = qualityCode(point, limits);
            unplaced.examine(point);
            steps.next();
        }
    }
    progress.hide();
    unplaced.warn();
}
