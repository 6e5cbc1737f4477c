#include "quality/QualityTests.h"

#include "basalt_utilities/Numbers.h"
#include "quality/QualityLimits.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Point = SurveyPoint;
using Limits = QualityLimits;

constexpr const char* kMetre = "m";

using Verdict = JudgedValue::Verdict;

JudgedValue atMost(double value, double limit)
{
    return {value, limit, value > limit ? Verdict::IsOver : Verdict::Passes};
}

JudgedValue atMostFromDesign(double value, double limit)
{
    return {value, limit, value > limit + kRoundingM ? Verdict::IsOver : Verdict::Passes};
}

JudgedValue atMostEitherWay(double value, double limit)
{
    return {value, limit, std::fabs(value) > limit ? Verdict::IsOver : Verdict::Passes};
}

JudgedValue atLeast(double value, double limit)
{
    return {value, limit, value < limit ? Verdict::IsUnder : Verdict::Passes};
}

JudgedValue within(double value, const QualityLimits::Range& range)
{
    const bool isUnder = value < range.min && !(value > range.max);
    return isUnder ? atLeast(value, range.min) : atMost(value, range.max);
}

} // namespace

namespace quality_test {

constexpr QualityTest kDesignHorizontal{
    0,
    1,
    [](const Point& point, const Limits& limits) {
        const double north = (point.north - point.designNorth) * limits.planeUnitM;
        const double east = (point.east - point.designEast) * limits.planeUnitM;
        return atMostFromDesign(std::sqrt(north * north + east * east), limits.designHorizontalM);
    },
    {&Point::north, &Point::east},
    QT_TRANSLATE_NOOP("QualityTests", "Horizontal distance from the design"),
    kMetre};

constexpr QualityTest kDesignVertical{
    0,
    2,
    [](const Point& point, const Limits& limits) {
        return atMostFromDesign(std::fabs(point.elevation - point.designElevation),
                                limits.designVerticalM);
    },
    {&Point::elevation, &Point::elevation},
    QT_TRANSLATE_NOOP("QualityTests", "Difference in height from the design"),
    kMetre};

constexpr QualityTest kBaseDistance{
    2,
    1,
    [](const Point& point, const Limits& limits) {
        return atMost(point.referenceDistance, limits.baseDistanceM);
    },
    {&Point::referenceDistance, &Point::referenceDistance},
    QT_TRANSLATE_NOOP("QualityTests", "Distance from the base station"),
    kMetre};

constexpr QualityTest kHrms{3,
                            1,
                            [](const Point& point, const Limits& limits) {
                                return atMostEitherWay(point.horizontalAccuracy, limits.hrmsM);
                            },
                            {&Point::horizontalAccuracy, &Point::horizontalAccuracy},
                            "HRMS",
                            kMetre};

constexpr QualityTest kVrms{3,
                            2,
                            [](const Point& point, const Limits& limits) {
                                return atMostEitherWay(point.verticalAccuracy, limits.vrmsM);
                            },
                            {&Point::verticalAccuracy, &Point::verticalAccuracy},
                            "VRMS",
                            kMetre};

constexpr QualityTest kAntennaHigh{4,
                                   1,
                                   [](const Point& point, const Limits& limits) {
                                       return atMost(point.antennaHeight, limits.antennaM.max);
                                   },
                                   {&Point::antennaHeight, &Point::antennaHeight},
                                   QT_TRANSLATE_NOOP("QualityTests", "Antenna height"),
                                   kMetre};

constexpr QualityTest kAntennaLow{4,
                                  2,
                                  [](const Point& point, const Limits& limits) {
                                      return atLeast(point.antennaHeight, limits.antennaM.min);
                                  },
                                  kAntennaHigh.fields,
                                  kAntennaHigh.name,
                                  kMetre};

constexpr QualityTest kPdop{
    5,
    1,
    [](const Point& point, const Limits& limits) { return within(point.pdop, limits.pdop); },
    {&Point::pdop, &Point::pdop},
    "PDOP"};

constexpr QualityTest kHdop{
    5,
    2,
    [](const Point& point, const Limits& limits) { return within(point.hdop, limits.hdop); },
    {&Point::hdop, &Point::hdop},
    "HDOP"};

constexpr QualityTest kVdop{
    5,
    4,
    [](const Point& point, const Limits& limits) { return within(point.vdop, limits.vdop); },
    {&Point::vdop, &Point::vdop},
    "VDOP"};

constexpr QualityTest kSatellites{6,
                                  1,
                                  [](const Point& point, const Limits& limits) {
                                      return atLeast(point.satelliteNumber, limits.satellites);
                                  },
                                  {&Point::satelliteNumber, &Point::satelliteNumber},
                                  QT_TRANSLATE_NOOP("QualityTests", "Number of satellites")};

constexpr QualityTest kAcross{7,
                              1,
                              [](const Point& point, const Limits& limits) {
                                  return atMostEitherWay(
                                      point.transversalDeviation * limits.planeUnitM,
                                      limits.receivers.acrossM); // sources have the same limit
                              },
                              {&Point::transversalDeviation, &Point::transversalDeviation},
                              QT_TRANSLATE_NOOP("QualityTests", "Transversal deviation"),
                              kMetre};

constexpr QualityTest kAlong{7,
                             2,
                             [](const Point& point, const Limits& limits) {
                                 return atMostEitherWay(point.longitudinalDeviation *
                                                            limits.planeUnitM,
                                                        limits.receivers.alongM);
                             },
                             {&Point::longitudinalDeviation, &Point::longitudinalDeviation},
                             QT_TRANSLATE_NOOP("QualityTests", "Longitudinal deviation"),
                             kMetre};

} // namespace quality_test

namespace {

using namespace quality_test;

constexpr std::array<const QualityTest*, 13> kAll{
    &kDesignHorizontal, &kDesignVertical, &kBaseDistance, &kHrms, &kVrms,
    &kAntennaHigh,      &kAntennaLow,     &kPdop,         &kHdop, &kVdop,
    &kSatellites,       &kAcross,         &kAlong};

QString translated(const char* text)
{
    return QCoreApplication::translate("QualityTests", text);
}

/// Value and limit with as many decimals as tell them apart; none when both are whole.
std::pair<QString, QString> textsOf(const JudgedValue& judged)
{
    constexpr int kFewest = 2;
    constexpr int kMost = 9;
    const bool areWhole =
        std::trunc(judged.value) == judged.value && std::trunc(judged.limit) == judged.limit;
    std::string value;
    std::string limit;
    for (int decimals = areWhole ? 0 : kFewest; decimals <= kMost; ++decimals) {
        value = basalt::formatFixed(judged.value, decimals);
        limit = basalt::formatFixed(judged.limit, decimals);
        if (value != limit)
            break;
    }
    return {QString::fromStdString(value), QString::fromStdString(limit)};
}

} // namespace

std::span<const QualityTest* const> qualityTests()
{
    return kAll;
}

int qualityDigit(int code, int power)
{
    static constexpr std::array<int, 8> kPowers{1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
    return std::max(code, 0) / kPowers[static_cast<std::size_t>(power)] % 10;
}

const QualityTest* failedTest(const SurveyPoint& point, const SurveyColumn::Member& field)
{
    if (point.qualityStandard == 0)
        return nullptr;
    const auto* const found = std::find_if(kAll.begin(), kAll.end(), [&](const QualityTest* test) {
        const bool isOfField = test->fields[0] == field || test->fields[1] == field;
        return isOfField && (qualityDigit(point.qualityStandard, test->power) & test->weight) != 0;
    });
    return found == kAll.end() ? nullptr : *found;
}

QString failureText(const QualityTest& test, const SurveyPoint& point, const QualityLimits& limits)
{
    return failureText(test, test.judge(point, limits));
}

QString failureText(const QualityTest& test, JudgedValue judged)
{
    const char* sentence = QT_TRANSLATE_NOOP(
        "QualityTests", "%1 %2 was out of range in the last check. Its limit is now %3.");
    if (judged.verdict == Verdict::IsOver) {
        judged.value = std::fabs(judged.value);
        sentence = QT_TRANSLATE_NOOP("QualityTests", "%1 %2 is over its limit %3.");
    } else if (judged.verdict == Verdict::IsUnder) {
        sentence = QT_TRANSLATE_NOOP("QualityTests", "%1 %2 is under its limit %3.");
    }
    auto [value, limit] = textsOf(judged);
    if (*test.unit != 0) {
        const QString unit = QLatin1Char(' ') + QLatin1String(test.unit);
        value += unit;
        limit += unit;
    }
    return translated(sentence).arg(translated(test.name), value, limit);
}
