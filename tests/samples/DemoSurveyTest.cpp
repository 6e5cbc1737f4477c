#include "samples/DemoSurvey.h"

#include "basalt_utilities/Dictionary.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "model/CodeTables.h"
#include "model/PointNumber.h"
#include "quality/EmptyPointCheck.h"
#include "quality/QualityCheck.h"
#include "quality/QualityLimits.h"
#include "quality/RepeatPoints.h"
#include "quality/ResurveyCheck.h"
#include "quality/ResurveyResult.h"
#include "samples/DemoFiles.h"
#include "samples/ResultCompleter.h"
#include "samples/Terrain.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace {

using Places = std::set<std::string>; ///< "line/point", numbers as files carry them

constexpr std::uint64_t kSeed = 7;

struct Kind
{
    const char* name;
    std::size_t count; ///< kAny where the terrain decides
    int code;          ///< of the quality check, without its digit of line deviations
};

constexpr std::size_t kAny = 0;
constexpr int kLineDigit = 10000000;
// clang-format off
constexpr Kind kKinds[] = {
    {"missing", kAny, 0},        {"skid", kAny, 1},             {"too far", 12, 1},
    {"hrms", 6, 1000},           {"vrms", 5, 2000},             {"hrms and vrms", 4, 3000},
    {"antenna high", 4, 10000},  {"antenna low", 3, 20000},     {"pdop", 4, 100000},
    {"pdop and vdop", 3, 500000}, {"pdop hdop and vdop", 3, 700000}, {"few satellites", 5, 1000000},
    {"reference too far", 4, 100}, {"resurvey good", kAny, 0},  {"resurvey bad", 6, 0},
    {"resurvey orphan", 4, 0},   {"repeat", 22, 0},           {"repeat bad", 2, 0},
    // of problems that the checks do not find
    {"not fixed", 3, 0},         {"rms", 2, 0},                 {"old corrections", 3, 0},
    {"few epochs", 2, 0},        {"short occupation", 2, 0},    {"height off", 2, 0},
    {"height jump", 2, 0},       {"no design position", 2, 1},  {"wrong name", 3, 1},
    {"exchanged names", 4, 1},   {"unknown name", 2, 0},        {"design spacing", 1, 0},
    {"design spike", 1, 0},      {"design azimuth", 1, 0},      {"design order", 1, 0},
    {"design in one place", 1, 0}, {"design height", 1, 0},     {"design numbers", 1, 0},
    {"design lines", 1, 0},      {"base height", 1, 0},         {"pole height", 1, 0},
    {"few check shots", 1, 0},
};
// clang-format on

/// A survey of the seed in files of its folder, and what is read from them.
struct Files
{
    explicit Files(std::uint64_t seed)
    {
        ICoordTransform& transform = get_project_coord_transform();
        EXPECT_EQ(demo::useSurveySystem(transform), QString());
        EXPECT_EQ(demo::writeDemoFiles(folder.path(), demo::makeDemoSurvey(seed, transform)),
                  QString());
        ProgressReporter nobody(nullptr);
        EXPECT_TRUE(
            readDesignCsv(folder.path("design.csv"), design, nobody, summaries.emplace_back())
                .isDone());
        EXPECT_TRUE(
            readSurveyCsv(folder.path("survey.csv"), survey, nobody, summaries.emplace_back())
                .isDone());
        for (const QByteArray& line : text("faults.csv").trimmed().split('\n').mid(1)) {
            const QList<QByteArray> fields = line.split(',');
            EXPECT_EQ(fields.size(), 4) << line.constData();
            const std::string kind = fields.value(0).toStdString();
            ++counts[kind];
            faults[kind].insert((fields.value(1) + '/' + fields.value(2)).toStdString());
        }
    }
    [[nodiscard]] QByteArray text(const char* name) const
    {
        return TestFolder::read(folder.path(name));
    }

    TestFolder folder;
    DesignPoints design;
    SurveyPoints survey;
    std::map<std::string, Places> faults; ///< by kind
    std::map<std::string, std::size_t> counts;
    std::vector<ImportSummary> summaries;
};

const Files& files()
{
    static const Files kFiles(kSeed);
    return kFiles;
}

const Places& planted(const char* kind)
{
    return files().faults.at(kind);
}

std::string placeOf(const SurveyPoint& point)
{
    return point.lineNumber + '/' + std::string(writtenPointNumber(point.pointNumber));
}

template <class Use>
void forEachResult(Use use)
{
    for (const auto& [number, line] : files().survey) {
        for (const SurveyPoint& point : line) {
            SCOPED_TRACE(point.pointNumber);
            use(point);
        }
    }
}

} // namespace

TEST(DemoSurvey, EveryLineIsReadAndEachKindIsThereAsPlanned)
{
    for (const ImportSummary& summary : files().summaries) {
        EXPECT_EQ(summary.skipped.count, 0U) << summary.toText().toStdString();
        EXPECT_EQ(summary.pointsReplaced, 0U);
        EXPECT_EQ(summary.pointsNew, summary.linesRead - 1) << "all but the captions";
    }
    EXPECT_EQ(files().design.pointCount(), 4000U);
    EXPECT_EQ(files().design.lineCount(), 41U) << "with one between two others";
    for (const Kind& kind : kKinds) {
        const std::size_t count = files().counts.at(kind.name);
        EXPECT_TRUE(kind.count == kAny ? count > 20 : count == kind.count)
            << kind.name << ": " << count;
    }
    EXPECT_EQ(files().counts.size(), std::size(kKinds));
}

TEST(DemoSurvey, QualityCheckFindsWhatIsPlantedAndNothingElse)
{
    basalt::Dictionary parameters;
    ASSERT_TRUE(xml_to_dictionary(QUALITY_PARAMETERS, parameters));
    const QualityLimits limits = QualityLimits::from(parameters);
    std::map<std::string, int> expected;
    for (const Kind& kind : kKinds) {
        for (const std::string& place : planted(kind.name))
            EXPECT_TRUE(kind.code == 0 || expected.emplace(place, kind.code).second)
                << place << " has two faults";
    }
    forEachResult([&](const SurveyPoint& point) {
        const int code = qualityCode(point, limits);
        const auto fault = expected.extract(placeOf(point));
        // A stake that is too far off diagonally may still be within both limits of the line.
        if (fault)
            EXPECT_EQ(fault.mapped() == 1 ? code % kLineDigit : code, fault.mapped());
        else
            EXPECT_EQ(code, 0);
    });
    EXPECT_TRUE(expected.empty()) << expected.begin()->first << " does not exist";
}

TEST(DemoSurvey, EmptyPointCheckFindsWhatIsPlantedAndNothingElse)
{
    DesignPoints design = files().design;
    for (auto& [number, line] : design) {
        for (DesignPoint& point : line)
            point.status = 1 - point.status;
    }
    ProgressReporter nobody(nullptr);
    checkEmptyPoints(design, files().survey, nobody);
    Places found;
    for (const DesignPoint& point : emptyPoints(design))
        found.insert(point.lineNumber + '/' + point.pointNumber);
    EXPECT_EQ(found, planted("missing"));
    for (const auto& [number, line] : files().design) {
        for (const DesignPoint& point : line)
            EXPECT_EQ(design.find(number, point.pointNumber)->status, point.status);
    }
}

TEST(DemoSurvey, SkidsLeaveWhatIsInTheWay)
{
    forEachResult([&](const SurveyPoint& point) {
        const demo::Obstacle inTheWay =
            demo::obstacleAt(demo::toGrid({point.designNorth, point.designEast}));
        const bool isSkid = planted("skid").count(placeOf(point)) != 0;
        EXPECT_EQ(inTheWay != demo::Obstacle::None, isSkid);
        if (!isSkid)
            return;
        const auto tells = [&](const char* direction) {
            return point.remarks.find(direction) != std::string::npos;
        };
        EXPECT_EQ(point.obstacle, obstacleText(static_cast<int>(inTheWay)).toStdString());
        EXPECT_EQ(demo::obstacleAt(demo::toGrid({point.north, point.east})), demo::Obstacle::None);
        EXPECT_EQ(tells("right"), point.transversalDeviation > 1) << point.remarks;
        EXPECT_EQ(tells("forward"), point.longitudinalDeviation > 1) << point.remarks;
    });
}

TEST(DemoSurvey, ResurveyCheckFindsWhatIsPlantedAndNothingElse)
{
    SurveyPoints survey = files().survey;
    ProgressReporter nobody(nullptr);
    checkResurveys(survey, basalt::Dictionary(), nobody);
    Places good;
    Places bad;
    Places orphans;
    for (const auto& [number, line] : survey) {
        for (const SurveyPoint& point : line) {
            if (point.isResurvey == resurvey::kAlone)
                orphans.insert(placeOf(point));
            if (point.isResurvey != resurvey::kAgain)
                continue;
            const SurveyPoint& first = *line.find(point.pairedNumber);
            EXPECT_GT(point.dateTime, first.dateTime);
            (resurveyDigit(first) == 0 ? good : bad).insert(placeOf(point));
        }
    }
    EXPECT_EQ(good, planted("resurvey good"));
    EXPECT_EQ(bad, planted("resurvey bad"));
    EXPECT_EQ(orphans, planted("resurvey orphan"));
    EXPECT_EQ(resurveyRows(survey, basalt::Dictionary()).size(), bad.size() + orphans.size());
}

TEST(DemoSurvey, RepeatPointCheckFindsWhatIsPlantedAndNothingElse)
{
    const RepeatPoints found = findRepeatPoints(files().survey);
    Places good;
    Places bad;
    for (const RepeatRow& row : found.rows) {
        if (!row.difference)
            continue;
        const bool isGood = std::ranges::all_of(
            *row.difference, [](double difference) { return std::fabs(difference) <= 0.03; });
        (isGood ? good : bad)
            .insert(row.lineNumber + '/' + std::string(writtenPointNumber(row.pointNumber)));
    }
    EXPECT_EQ(good, planted("repeat"));
    EXPECT_EQ(bad, planted("repeat bad"));
    EXPECT_EQ(found.repeats, 24U);
    EXPECT_EQ(found.alone, 0U);
    EXPECT_EQ(found.rows.size(), found.repeats + good.size() + bad.size());
}

TEST(DemoSurvey, CrewsMeasureOneAfterTheOtherInWorkingHours)
{
    constexpr std::int64_t kDayMs = 86400000;
    constexpr std::int64_t kLatestMs = 19 * 3600000; // after the points that are measured again
    std::map<std::string, std::map<std::int64_t, std::int64_t>> crews; // ends by starts
    std::set<std::int64_t> days;
    forEachResult([&](const SurveyPoint& point) {
        EXPECT_TRUE(crews[point.surveyor].emplace(point.startTime, point.endTime).second);
        if (planted("few epochs").count(placeOf(point)) == 0 &&
            planted("short occupation").count(placeOf(point)) == 0) {
            EXPECT_EQ(point.endTime - point.startTime, point.epochNumber * 1000);
        }
        EXPECT_LT(point.dateTime % kDayMs, kLatestMs);
        days.insert(point.dateTime / kDayMs);
    });
    for (const auto& [surveyor, times] : crews) {
        std::int64_t end = 0;
        for (const auto& [start, ownEnd] : times) {
            EXPECT_GE(start, end) << surveyor;
            end = ownEnd;
        }
    }
    EXPECT_EQ(crews.size(), 2U);
    EXPECT_EQ(days.size(), 6U);
}

TEST(DemoSurvey, ValuesOfAResultBelongTogether)
{
    ICoordTransform& transform = get_project_coord_transform();
    forEachResult([&](const SurveyPoint& point) {
        EXPECT_NEAR(point.pdop * point.pdop, point.hdop * point.hdop + point.vdop * point.vdop,
                    0.002);
        if (hasDesignPosition(point)) {
            EXPECT_NEAR(std::hypot(point.transversalDeviation, point.longitudinalDeviation),
                        std::hypot(point.north - point.designNorth, point.east - point.designEast),
                        0.0003);
        }
        EXPECT_NEAR(std::hypot(point.referenceNorth - point.north, point.referenceEast - point.east,
                               point.referenceAltitude - point.elevation),
                    point.referenceDistance, 0.001);
        double north = 0;
        double east = 0;
        double height = 0;
        ASSERT_EQ(transform.transform(1, 1, 2, 1, point.latitude, point.longitude, point.altitude,
                                      &north, &east, &height),
                  0);
        EXPECT_NEAR(std::hypot(north - point.north, east - point.east), 0, 0.002);
        EXPECT_NEAR(height, point.elevation, 0.001);
    });
}

TEST(DemoSurvey, FilesFollowFromTheSeedAlone)
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "America/New_York");
    const Files again(kSeed);
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    const Files other(kSeed + 1);
    for (const char* name : {"design.csv", "survey.csv", "faults.csv"}) {
        EXPECT_EQ(files().text(name), again.text(name)) << name;
        EXPECT_NE(files().text(name), other.text(name)) << name;
    }
}
