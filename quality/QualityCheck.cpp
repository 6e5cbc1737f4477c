#include "quality/QualityCheck.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/QualityLimits.h"

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

/// Names the results whose position is not a number in the log. A comparison with such a position
/// is always false, so the check finds no fault in them.
class Unplaced
{
public:
    void examine(const SurveyPoint& point)
    {
        if (!std::isnan(point.north) && !std::isnan(point.east) && !std::isnan(point.elevation))
            return;
        if (++m_count <= kNamed)
            m_names += (m_count == 1 ? "" : ", ") + point.lineNumber + '/' + point.pointNumber;
    }
    void warn() const
    {
        if (m_count == 0)
            return;
        basalt::logWarning(
            "Results whose position is no number, and so passes: " + std::to_string(m_count) +
            " (" + m_names + (m_count > kNamed ? ", ...)" : ")"));
    }

private:
    static constexpr std::size_t kNamed = 5;
    std::size_t m_count = 0;
    std::string m_names;
};

} // namespace

int qualityCode(const SurveyPoint& point, const QualityLimits& limits)
{
    const double unitM = limits.planeUnitM;
    const double north = (point.north - point.designNorth) * unitM;
    const double east = (point.east - point.designEast) * unitM;
    const auto& line = limits.lineDeviation(point.pointMark);
    const int design =
        faults(std::sqrt(north * north + east * east) > limits.designHorizontalM,
               std::fabs(point.elevation - point.designElevation) > limits.designVerticalM);
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
    Unplaced unplaced;
    for (auto& [number, line] : points) {
        ProgressSteps steps(progress, caption + number, line.size());
        for (SurveyPoint& point : line) {
            point.qualityStandard = qualityCode(point, limits);
            unplaced.examine(point);
            steps.next();
        }
    }
    progress.hide();
    unplaced.warn();
}
