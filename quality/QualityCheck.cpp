#include "quality/QualityCheck.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/QualityLimits.h"

#include <QCoreApplication>

#include <atomic>
#include <cmath>
#include <future>
#include <utility>

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

/// Results whose position is no number: no comparison finds fault with it, and no map can show it.
class Unplaced
{
public:
    void look(const SurveyPoint& point)
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
    const double north = point.north - point.designNorth;
    const double east = point.east - point.designEast;
    const auto& line = limits.lineDeviation(point.pointMark);
    const int design =
        faults(std::sqrt(north * north + east * east) > limits.designHorizontalM,
               std::fabs(point.elevation - point.designElevation) > limits.designVerticalM);
    const int accuracy = faults(std::fabs(point.horizontalAccuracy) > limits.hrmsM,
                                std::fabs(point.verticalAccuracy) > limits.vrmsM);
    const int dilution =
        faults(isOutside(point.pdop, limits.pdop), isOutside(point.hdop, limits.hdop)) +
        (isOutside(point.vdop, limits.vdop) ? 4 : 0);
    const int deviation = faults(std::fabs(point.transversalDeviation) > line.acrossM,
                                 std::fabs(point.longitudinalDeviation) > line.alongM);
    return design * kDesign + (point.referenceDistance > limits.baseDistanceM ? kReference : 0) +
           accuracy * kAccuracy + antennaFault(point.antennaHeight, limits.antennaM) * kAntenna +
           dilution * kDilution + (limits.satellites > point.satelliteNumber ? kSatellites : 0) +
           deviation * kLine;
}

void checkQuality(SurveyPoints& points, const IDictionary& parameters, ProgressReporter& progress)
{
    const QualityLimits limits = QualityLimits::from(parameters);
    // Judging waits for the memory and reporting for its listeners: each has a core of its own. A
    // line is judged before it is reported.
    std::atomic<std::size_t> linesJudged = 0;
    Unplaced unplaced;
    auto judging = std::async(std::launch::async, [&] {
        for (auto& [number, line] : points) {
            for (SurveyPoint& point : line) {
                const int code = qualityCode(point, limits);
                if (code != point.qualityStandard) // what stays needs no way back to the memory
                    point.qualityStandard = code;
                unplaced.look(point);
            }
            ++linesJudged;
            linesJudged.notify_one();
        }
    });
    const std::string caption =
        QCoreApplication::translate("QualityCheck", "Check Survey Line:").toStdString();
    std::size_t linesReported = 0;
    for (const auto& [number, line] : std::as_const(points)) {
        for (std::size_t judged = linesJudged; judged <= linesReported; judged = linesJudged)
            linesJudged.wait(judged);
        progress.reportEach(caption + number, line.size());
        ++linesReported;
    }
    progress.hide();
    judging.get();
    unplaced.warn();
}
