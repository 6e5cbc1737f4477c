#include "quality/colors/Colorings.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/CodeTables.h"
#include "quality/colors/ColorPalette.h"
#include "quality/colors/FrequentValues.h"
#include "quality/QualityCheck.h"
#include "quality/QualityTests.h"
#include "quality/ResurveyCheck.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace {

using Class = ResultColors::Class;
using Classes = std::vector<Class>;

QString translated(const char* text)
{
    return QCoreApplication::translate("ResultColors", text);
}

std::uint8_t toPlace(std::size_t place)
{
    return static_cast<std::uint8_t>(place);
}

// --- verdict ---

enum Verdict : std::uint8_t
{
    OffItsPlace,
    ResurveyFault,
    PoorFix,
    Antenna,
    NoDesign,
    Within
};

Verdict verdictOf(const SurveyPoint& point, const QualityLimits& limits)
{
    const int code = qualityCode(point, limits);
    const bool hasDesign = hasDesignPosition(point);
    const auto fails = [&](const QualityTest& test) { return qualityDigit(code, test.power) != 0; };
    if ((hasDesign && fails(quality_test::kDesignHorizontal)) || fails(quality_test::kAcross))
        return OffItsPlace;
    if (resurveyDigit(point) != 0)
        return ResurveyFault;
    if (fails(quality_test::kBaseDistance) || fails(quality_test::kHrms) ||
        fails(quality_test::kPdop) || fails(quality_test::kSatellites))
        return PoorFix;
    if (fails(quality_test::kAntennaHigh))
        return Antenna;
    return hasDesign ? Within : NoDesign;
}

ResultColors byVerdict(const ColoringInput& input, const QString& title)
{
    const Classes classes{
        {translated(QT_TRANSLATE_NOOP("ResultColors", "off its place")), palette::kRed},
        {translated(QT_TRANSLATE_NOOP("ResultColors", "resurvey at fault")), palette::kViolet},
        {translated(QT_TRANSLATE_NOOP("ResultColors", "poor fix")), palette::kNavy},
        {translated(QT_TRANSLATE_NOOP("ResultColors", "wrong antenna height")), palette::kMaroon},
        {translated(QT_TRANSLATE_NOOP("ResultColors", "no design position")), palette::kUnknown},
        {translated(QT_TRANSLATE_NOOP("ResultColors", "within limits")), palette::kSky}};
    return {title, classes, [limits = input.limits](const SurveyPoint& point) {
                return std::uint8_t(verdictOf(point, limits));
            }};
}

// --- solution type ---

ResultColors bySolution(const ColoringInput& /*input*/, const QString& title)
{
    struct Solution
    {
        int code;
        QRgb color;
    };
    // The worst on top. The last but one stands for all unknown codes.
    static constexpr std::array<Solution, 7> kSolutions{{{0, palette::kMaroon},
                                                         {1, palette::kRed},
                                                         {2, palette::kViolet},
                                                         {5, palette::kGreen},
                                                         {7, palette::kNavy},
                                                         {-1, palette::kUnknown},
                                                         {4, palette::kSky}}};
    constexpr std::size_t kNoKnown = 5;
    Classes classes;
    for (const Solution& each : kSolutions)
        classes.push_back({solutionTypeText(each.code), each.color});
    return {title, classes, [](const SurveyPoint& point) {
                const int code = point.solutionType == 3 ? 2 : point.solutionType; // one name
                const auto* const found =
                    std::find_if(kSolutions.begin(), kSolutions.end(),
                                 [code](const Solution& each) { return each.code == code; });
                return found == kSolutions.end() ? toPlace(kNoKnown)
                                                 : toPlace(std::size_t(found - kSolutions.begin()));
            }};
}

// --- horizontal accuracy ---

/// The upper ends of the classes of accuracy, metres, ascending; the last is the limit. They begin
/// where a twentieth of the results is better.
std::vector<double> accuracyEnds(const SurveyPoints& survey, double limitM)
{
    std::vector<double> values;
    values.reserve(survey.pointCount());
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            const double value = std::fabs(point.horizontalAccuracy);
            if (value > 0 && value <= limitM)
                values.push_back(value);
        }
    }
    std::vector<double> ends;
    if (!values.empty()) {
        const auto good = values.begin() + std::ptrdiff_t(values.size() / 20);
        std::nth_element(values.begin(), good, values.end());
        for (const double end : {0.005, 0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1.0, 2.0, 5.0}) {
            if (end >= *good && end < limitM && ends.size() + 1 < palette::kRising.size())
                ends.push_back(end);
        }
    }
    ends.push_back(limitM);
    return ends;
}

ResultColors byAccuracy(const ColoringInput& input, const QString& title)
{
    const std::vector<double> ends = accuracyEnds(input.survey, input.limits.hrmsM);
    const auto metres = [](double value) {
        return QString::fromStdString(basalt::formatShortest(value));
    };
    Classes classes{{translated(QT_TRANSLATE_NOOP("ResultColors", "over the limit of %1 m"))
                         .arg(metres(ends.back())),
                     palette::kBeyond}};
    for (std::size_t i = ends.size(); i-- > 0;)
        classes.push_back(
            {translated(QT_TRANSLATE_NOOP("ResultColors", "up to %1 m")).arg(metres(ends[i])),
             palette::kRising[i]});
    classes.push_back(
        {translated(QT_TRANSLATE_NOOP("ResultColors", "not told")), palette::kUnknown});
    return {title, classes, [ends, last = classes.size() - 1](const SurveyPoint& point) {
                const double value = std::fabs(point.horizontalAccuracy);
                if (!(value > 0))
                    return toPlace(last);
                const auto end = std::lower_bound(ends.begin(), ends.end(), value);
                return toPlace(std::size_t(ends.end() - end));
            }};
}

// --- crew and day ---

/// Classes of the values, "others", and "not told".
Classes valueClasses(const QStringList& values, const QString& others)
{
    Classes classes;
    for (int i = 0; i < values.size(); ++i)
        classes.push_back({values[i], palette::kDistinct[std::size_t(i)]});
    classes.push_back({others, palette::kOthers});
    classes.push_back(
        {translated(QT_TRANSLATE_NOOP("ResultColors", "not told")), palette::kUnknown});
    return classes;
}

ResultColors byText(const ColoringInput& input, const QString& title,
                    std::string SurveyPoint::*field)
{
    FrequentValues values(input.survey, field, palette::kDistinct.size());
    QStringList texts;
    for (const std::string& value : values.values())
        texts << lum::toQString(value);
    const QString others =
        translated(QT_TRANSLATE_NOOP("ResultColors", "others (%1)")).arg(values.others());
    const Classes classes = valueClasses(texts, others);
    return {title, classes,
            [values = std::move(values), field, last = classes.size() - 1](const SurveyPoint& p) {
                return toPlace((p.*field).empty() ? last : values.placeOf(p.*field));
            }};
}

ResultColors bySurveyor(const ColoringInput& input, const QString& title)
{
    return byText(input, title, &SurveyPoint::surveyor);
}

ResultColors byRover(const ColoringInput& input, const QString& title)
{
    return byText(input, title, &SurveyPoint::instrumentSerialNumber);
}

constexpr std::int64_t kDaySeconds = 86400;

std::int64_t dayOf(const SurveyPoint& point, basalt::LocalTimes& zone)
{
    const std::int64_t clock = zone.clockSeconds(point.dateTime);
    return (clock - (clock % kDaySeconds + kDaySeconds) % kDaySeconds) / kDaySeconds;
}

/// "yyyy/MM/dd"
QString dayText(std::int64_t day)
{
    std::array<char, basalt::LocalTimes::kTextSize> text{};
    const char* const end = basalt::LocalTimes(0).write(text.data(), day * kDaySeconds * 1000);
    return QString::fromLatin1(text.data(), int(end - text.data())).left(10);
}

ResultColors byDay(const ColoringInput& input, const QString& title)
{
    basalt::LocalTimes zone = input.zone;
    std::set<std::int64_t> all;
    std::int64_t last = std::numeric_limits<std::int64_t>::min(); // neighbours mostly have one day
    for (const auto& [number, line] : input.survey) {
        for (const SurveyPoint& point : line) {
            const std::int64_t day = point.dateTime != 0 ? dayOf(point, zone) : last;
            if (day != last)
                all.insert(last = day);
        }
    }
    std::vector<std::int64_t> days; // the newest first
    QStringList texts;
    for (auto day = all.rbegin(); day != all.rend() && days.size() < palette::kDistinct.size();
         ++day) {
        days.push_back(*day);
        texts << dayText(*day);
    }
    const Classes classes =
        valueClasses(texts, translated(QT_TRANSLATE_NOOP("ResultColors", "earlier")));
    return {title, classes, [days, zone](const SurveyPoint& point) mutable {
                if (point.dateTime == 0)
                    return toPlace(days.size() + 1);
                const auto found = std::find(days.begin(), days.end(), dayOf(point, zone));
                return toPlace(std::size_t(found - days.begin()));
            }};
}

constexpr std::array<Coloring, 6> kColorings{{
    {"verdict", QT_TRANSLATE_NOOP("ResultColors", "Verdict"), byVerdict},
    {"solution", QT_TRANSLATE_NOOP("ResultColors", "Solution type"), bySolution},
    {"accuracy", QT_TRANSLATE_NOOP("ResultColors", "Horizontal accuracy"), byAccuracy},
    {"surveyor", QT_TRANSLATE_NOOP("ResultColors", "Surveyor"), bySurveyor},
    {"rover", QT_TRANSLATE_NOOP("ResultColors", "Rover"), byRover},
    {"day", QT_TRANSLATE_NOOP("ResultColors", "Day"), byDay},
}};

} // namespace

std::span<const Coloring> colorings()
{
    return kColorings;
}

const Coloring* findColoring(std::string_view name)
{
    const auto* const found =
        std::find_if(kColorings.begin(), kColorings.end(),
                     [name](const Coloring& each) { return each.name == name; });
    return found == kColorings.end() ? nullptr : found;
}

ResultColors resultColors(const Coloring& coloring, const ColoringInput& input)
{
    return coloring.make(input, translated(coloring.title));
}
