#include "reports/QualityTestNames.h"

#include "quality/QualityTests.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using namespace quality_test;

constexpr std::array<std::pair<const QualityTest*, const char*>, 13> kNames{{
    {&kDesignHorizontal, QT_TRANSLATE_NOOP("QualityReport", "Distance from design")},
    {&kDesignVertical, QT_TRANSLATE_NOOP("QualityReport", "Height from design")},
    {&kBaseDistance, QT_TRANSLATE_NOOP("QualityReport", "Distance from base")},
    {&kHrms, QT_TRANSLATE_NOOP("QualityReport", "Horizontal accuracy")},
    {&kVrms, QT_TRANSLATE_NOOP("QualityReport", "Vertical accuracy")},
    {&kAntennaHigh, QT_TRANSLATE_NOOP("QualityReport", "Antenna too high")},
    {&kAntennaLow, QT_TRANSLATE_NOOP("QualityReport", "Antenna too low")},
    {&kPdop, "PDOP"},
    {&kHdop, "HDOP"},
    {&kVdop, "VDOP"},
    {&kSatellites, QT_TRANSLATE_NOOP("QualityReport", "Satellites")},
    {&kAcross, QT_TRANSLATE_NOOP("QualityReport", "Across the line")},
    {&kAlong, QT_TRANSLATE_NOOP("QualityReport", "Along the line")},
}};

} // namespace

QString qualityTestName(const QualityTest& test)
{
    const auto* const found = std::find_if(kNames.begin(), kNames.end(),
                                           [&](const auto& name) { return name.first == &test; });
    Q_ASSERT(found != kNames.end());
    return QCoreApplication::translate("QualityReport", found->second);
}

QString qualityTestNameWithUnit(const QualityTest& test)
{
    const QString name = qualityTestName(test);
    return *test.unit == 0 ? name : QStringLiteral("%1 (%2)").arg(name, QLatin1String(test.unit));
}

QString failedTestNames(int code)
{
    QStringList names;
    for (const QualityTest* const test : qualityTests()) {
        if ((qualityDigit(code, test->power) & test->weight) != 0)
            names << qualityTestName(*test);
    }
    return names.join(QLatin1String("; "));
}
