#include "quality/QualityDescription.h"

#include "quality/QualityLimits.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace {

constexpr double kNone = -1; // value and limit of a row about several values

/// Adds the rows of one point.
class Description
{
public:
    Description(const SurveyPoint& point, const QualityLimits& limits,
                std::vector<QualityRow>& rows)
        : m_point(point), m_limits(limits), m_rows(rows)
    {
    }

    void describe()
    {
        describeDesign();
        describeReference();
        describeAccuracy();
        describeAntenna();
        describeDilution();
        describeSatellites();
        describeLine();
    }

private:
    [[nodiscard]] int digit(int power) const
    {
        static constexpr std::array<int, 8> kPowers{1,     10,     100,     1000,
                                                    10000, 100000, 1000000, 10000000};
        return m_point.qualityStandard / kPowers[static_cast<std::size_t>(power)] % 10;
    }

    void add(const char* description, double value, double limit)
    {
        m_rows.push_back({m_point.pointNumber, m_point.lineNumber, description, value, limit});
    }

    void describeDesign();
    void describeReference();
    void describeAccuracy();
    void describeAntenna();
    void describeDilution();
    void describeSatellites();
    void describeLine();

    const SurveyPoint& m_point;
    const QualityLimits& m_limits;
    std::vector<QualityRow>& m_rows;
};

double length(double first, double second)
{
    return std::sqrt(first * first + second * second);
}

double exceeded(double value, const QualityLimits::Range& range)
{
    return value > range.max ? range.max : range.min;
}

void Description::describeDesign()
{
    const double horizontal = length((m_point.north - m_point.designNorth) * m_limits.planeUnitM,
                                     (m_point.east - m_point.designEast) * m_limits.planeUnitM);
    const double vertical = std::fabs(m_point.elevation - m_point.designElevation);
    const double horizontalLimit = m_limits.designHorizontalM;
    const double verticalLimit = m_limits.designVerticalM;
    switch (digit(0)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Design-Measure Horizontal Coord Out-range."),
            horizontal, horizontalLimit);
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Design-Measure Vertical Coord Out-range."), vertical,
            verticalLimit);
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck",
                              "Design-Measure Horizontal AND Vertical Coord Out-range."),
            length(horizontal, vertical), length(horizontalLimit, verticalLimit));
        break;
    default:
        break;
    }
}

void Description::describeReference()
{
    if (digit(2) == 1)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Reference Station Dist Out-range."),
            m_point.referenceDistance, m_limits.baseDistanceM);
}

void Description::describeAccuracy()
{
    const double hrms = m_point.horizontalAccuracy;
    const double vrms = m_point.verticalAccuracy;
    switch (digit(3)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HRMS Out-range."), hrms, m_limits.hrmsM);
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "VRMS Accuracy Out-range."), vrms, m_limits.vrmsM);
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HRMS AND VRMS Accuracy Out-range."),
            length(hrms, vrms), length(m_limits.hrmsM, m_limits.vrmsM));
        break;
    default:
        break;
    }
}

void Description::describeAntenna()
{
    if (digit(4) == 1)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Antenna Too High."), m_point.antennaHeight,
            m_limits.antennaM.max);
    else if (digit(4) == 2)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Antenna Too Low."), m_point.antennaHeight,
            m_limits.antennaM.min);
}

void Description::describeDilution()
{
    switch (digit(5)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP Out-range."), m_point.pdop,
            exceeded(m_point.pdop, m_limits.pdop));
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HDOP Out-range."), m_point.hdop,
            exceeded(m_point.hdop, m_limits.hdop));
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP AND HDOP Out-range."), kNone, kNone);
        break;
    case 4:
        add(QT_TRANSLATE_NOOP("QualityCheck", "VDOP Out-range."), m_point.vdop,
            exceeded(m_point.vdop, m_limits.vdop));
        break;
    case 5:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP AND VDOP Out-range."), kNone, kNone);
        break;
    case 6:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HDOP AND VDOP Out-range."), kNone, kNone);
        break;
    case 7:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP, HDOP AND VDOP Out-range."), kNone, kNone);
        break;
    default:
        break;
    }
}

void Description::describeSatellites()
{
    if (digit(6) == 1)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Satellite Number Insufficient."),
            m_point.satelliteNumber, m_limits.satellites);
}

void Description::describeLine()
{
    const double across = m_point.transversalDeviation * m_limits.planeUnitM;
    const double along = m_point.longitudinalDeviation * m_limits.planeUnitM;
    const QualityLimits::LineDeviation& limits = m_limits.receivers; // also of source points
    switch (digit(7)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Horizontal Accuracy Out-range."), across,
            limits.acrossM);
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Vertical Accuracy Out-range."), along,
            limits.alongM);
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Horizontal AND Vertical Accuracy Out-range."),
            length(across, along), length(limits.acrossM, limits.alongM));
        break;
    default:
        break;
    }
}

} // namespace

QString QualityRow::text() const
{
    return QCoreApplication::translate("QualityCheck", description);
}

void describeQuality(const SurveyPoint& point, const QualityLimits& limits,
                     std::vector<QualityRow>& rows)
{
    Description(point, limits, rows).describe();
}

std::vector<QualityRow> describeQuality(const SurveyPoints& points, const IDictionary& parameters,
                                        double planeUnitM)
{
    QualityLimits limits = QualityLimits::from(parameters);
    limits.planeUnitM = planeUnitM;
    std::vector<QualityRow> rows;
    for (const auto& [number, line] : points) {
        for (const SurveyPoint& point : line)
            describeQuality(point, limits, rows);
    }
    return rows;
}
