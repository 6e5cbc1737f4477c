#include "quality/QualityDescription.h"

#include "quality/QualityLimits.h"
#include "quality/QualityTests.h"

#include <QCoreApplication>

#include <cmath>

namespace {

constexpr JudgedValue kSeveral{-1, -1}; // of a row about several dilutions

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
        return qualityDigit(m_point.qualityStandard, power);
    }
    [[nodiscard]] JudgedValue judged(const QualityTest& test) const
    {
        return test.judge(m_point, m_limits);
    }

    void add(const char* description, const JudgedValue& judged, const char* explanation = "")
    {
        m_rows.push_back({m_point.pointNumber, m_point.lineNumber, description, judged.value,
                          judged.limit, explanation});
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

/// The row of two values that failed together.
JudgedValue both(const JudgedValue& first, const JudgedValue& second)
{
    const auto length = [](double a, double b) { return std::sqrt(a * a + b * b); };
    return {length(first.value, second.value), length(first.limit, second.limit)};
}

void Description::describeDesign()
{
    const JudgedValue horizontal = judged(quality_test::kDesignHorizontal);
    const JudgedValue vertical = judged(quality_test::kDesignVertical);
    switch (digit(0)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Design-Measure Horizontal Coord Out-range."),
            horizontal);
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Design-Measure Vertical Coord Out-range."),
            vertical);
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck",
                              "Design-Measure Horizontal AND Vertical Coord Out-range."),
            both(horizontal, vertical));
        break;
    default:
        break;
    }
}

void Description::describeReference()
{
    if (digit(2) == 1)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Reference Station Dist Out-range."),
            judged(quality_test::kBaseDistance));
}

void Description::describeAccuracy()
{
    const JudgedValue hrms = judged(quality_test::kHrms);
    const JudgedValue vrms = judged(quality_test::kVrms);
    switch (digit(3)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HRMS Out-range."), hrms);
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "VRMS Accuracy Out-range."), vrms);
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HRMS AND VRMS Accuracy Out-range."),
            both(hrms, vrms));
        break;
    default:
        break;
    }
}

void Description::describeAntenna()
{
    if (digit(4) == 1)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Antenna Too High."),
            judged(quality_test::kAntennaHigh));
    else if (digit(4) == 2)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Antenna Too Low."),
            judged(quality_test::kAntennaLow));
}

void Description::describeDilution()
{
    switch (digit(5)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP Out-range."), judged(quality_test::kPdop));
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HDOP Out-range."), judged(quality_test::kHdop));
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP AND HDOP Out-range."), kSeveral);
        break;
    case 4:
        add(QT_TRANSLATE_NOOP("QualityCheck", "VDOP Out-range."), judged(quality_test::kVdop));
        break;
    case 5:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP AND VDOP Out-range."), kSeveral);
        break;
    case 6:
        add(QT_TRANSLATE_NOOP("QualityCheck", "HDOP AND VDOP Out-range."), kSeveral);
        break;
    case 7:
        add(QT_TRANSLATE_NOOP("QualityCheck", "PDOP, HDOP AND VDOP Out-range."), kSeveral);
        break;
    default:
        break;
    }
}

void Description::describeSatellites()
{
    if (digit(6) == 1)
        add(QT_TRANSLATE_NOOP("QualityCheck", "Satellite Number Insufficient."),
            judged(quality_test::kSatellites));
}

void Description::describeLine()
{
    const JudgedValue across = judged(quality_test::kAcross);
    const JudgedValue along = judged(quality_test::kAlong);
    switch (digit(7)) {
    case 1:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Horizontal Accuracy Out-range."), across,
            QT_TRANSLATE_NOOP(
                "QualityCheck",
                "The transversal deviation: how far the point lies beside its line."));
        break;
    case 2:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Vertical Accuracy Out-range."), along,
            QT_TRANSLATE_NOOP("QualityCheck", "The longitudinal deviation: how far the point lies "
                                              "from its place, measured along its line."));
        break;
    case 3:
        add(QT_TRANSLATE_NOOP("QualityCheck", "Horizontal AND Vertical Accuracy Out-range."),
            both(across, along),
            QT_TRANSLATE_NOOP("QualityCheck", "The transversal and the longitudinal deviation: how "
                                              "far the point lies from its place, measured across "
                                              "and along its line."));
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

QString QualityRow::explanationText() const
{
    return *explanation == 0 ? QString() : QCoreApplication::translate("QualityCheck", explanation);
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
