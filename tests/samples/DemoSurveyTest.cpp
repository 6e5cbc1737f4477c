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
#include "quality/QualityCheck.h"
#include "quality/QualityLimits.h"
#include "samples/DemoFiles.h"
#include "samples/ResultCompleter.h"
#include "samples/Terrain.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

namespace {

using demo::PlantedFault;
using Place = std::pair<std::string, std::string>; ///< line and point, as files carry it
using Places = std::set<Place>;

constexpr std::uint64_t kSeed = 7;

struct Kind
{
    const char* name;
    int count; ///< kAny where the ground decides
    int code;  ///< of the quality check, without its digit of line deviations
};

constexpr int kAny = -1;
constexpr int kLineDigit = 10000000;
constexpr Kind kKinds[] = {
    {"missing", kAny, 0},
    {"skid", kAny, 1},
    {"too far", 12, 1},
    {"hrms", 6, 1000},
    {"vrms", 5, 2000},
    {"hrms and vrms", 4, 3000},
    {"antenna high", 4, 10000},
    {"antenna low", 3, 20000},
    {"pdop", 4, 100000},
    {"pdop and vdop", 3, 500000},
    {"pdop hdop and vdop", 3, 700000},
    {"few satellites", 5, 1000000},
    {"reference too far", 4, 100},
    {"resurvey good", 40, 0},
    {"resurvey bad", 6, 0},
    {"resurvey orphan", 4, 0},
    {"repeat", 24, 0},
};

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A survey of the seed in files of its folder, and what is read from them.
struct Files
{
    explicit Files(std::uint64_t seed)
    {
        ICoordTransform& transform = get_project_coord_transform();
        EXPECT_EQ(demo::useSurveySystem(transform), QString());
        EXPECT_EQ(demo::writeDemoFiles(folder.path(), demo::makeDemoSurvey(seed, transform)),
                  QString());
        read();
    }

    void read()
    {
        ProgressReporter nobody(nullptr);
        EXPECT_TRUE(readDesignCsv(path("design.csv"), design, nobody, designSummary).isDone());
        EXPECT_TRUE(readSurveyCsv(path("survey.csv"), survey, nobody, surveySummary).isDone());
        const QList<QByteArray> lines = content(path("faults.csv")).trimmed().split('\n');
        for (const QByteArray& line : lines.mid(1)) {
            const QList<QByteArray> fields = line.split(',');
            ASSERT_EQ(fields.size(), 4) << line.constData();
            faults.push_back({fields[0].toStdString(), fields[1].toStdString(),
                              fields[2].toStdString(), fields[3].toStdString()});
        }
    }

    [[nodiscard]] QString path(const char* name) const
    {
        return folder.filePath(QLatin1String(name));
    }
    [[nodiscard]] Places placesOf(const std::string& kind) const
    {
        Places places;
        for (const PlantedFault& fault : faults) {
            if (fault.kind == kind)
                places.emplace(fault.line, fault.point);
        }
        return places;
    }

    QTemporaryDir folder;
    DesignPoints design;
    SurveyPoints survey;
    std::vector<PlantedFault> faults;
    ImportSummary designSummary;
    ImportSummary surveySummary;
};

const Files& files()
{
    static const Files kFiles(kSeed);
    return kFiles;
}

Place placeOf(const SurveyPoint& point)
{
    return {point.lineNumber, std::string(writtenPointNumber(point.pointNumber))};
}

template <class Use>
void forEachResult(Use use)
{
    for (const auto& [number, line] : files().survey) {
        for (const SurveyPoint& point : line)
            use(point);
    }
}

Places united(std::initializer_list<const char*> kinds)
{
    Places all;
    for (const char* kind : kinds)
        all.merge(files().placesOf(kind));
    return all;
}

/// The larger of the three differences between two results of one stake, metres.
double largestDifference(const SurveyPoint& a, const SurveyPoint& b)
{
    return std::max({std::fabs(a.north - b.north), std::fabs(a.east - b.east),
                     std::fabs(a.elevation - b.elevation)});
}

} // namespace

TEST(DemoSurvey, EveryLineIsReadAndNoPointStandsTwice)
{
    for (const ImportSummary& summary : {files().designSummary, files().surveySummary}) {
        EXPECT_EQ(summary.linesSkipped, 0U) << summary.toText().toStdString();
        EXPECT_EQ(summary.pointsReplaced, 0U);
        EXPECT_EQ(summary.pointsNew, summary.linesRead - 1) << "all but the heading";
    }
    EXPECT_EQ(files().design.pointCount(), 4000U);
    EXPECT_EQ(files().design.lineCount(), 40U);
}

TEST(DemoSurvey, EachKindIsThereAsOftenAsPlanned)
{
    std::map<std::string, int> found;
    for (const PlantedFault& fault : files().faults)
        ++found[fault.kind];
    for (const Kind& kind : kKinds) {
        const int count = found[kind.name];
        EXPECT_TRUE(kind.count == kAny ? count > 20 : count == kind.count)
            << kind.name << ": " << count;
    }
    EXPECT_EQ(found.size(), std::size(kKinds));
}

TEST(DemoSurvey, QualityCheckFindsWhatIsPlantedAndNothingElse)
{
    basalt::Dictionary parameters;
    ASSERT_TRUE(xml_to_dictionary(QUALITY_PARAMETERS, parameters));
    const QualityLimits limits = QualityLimits::from(parameters);
    std::map<Place, int> expected;
    for (const Kind& kind : kKinds) {
        for (const Place& place : files().placesOf(kind.name))
            EXPECT_TRUE(kind.code == 0 || expected.emplace(place, kind.code).second)
                << place.second << " has two faults";
    }
    std::size_t found = 0;
    forEachResult([&](const SurveyPoint& point) {
        const auto fault = expected.find(placeOf(point));
        const int code = qualityCode(point, limits);
        const int planted = fault == expected.end() ? 0 : fault->second;
        // A stake that is off diagonally need not be too far off in one of the two directions.
        EXPECT_EQ(planted == 1 ? code % kLineDigit : code, planted) << point.pointNumber;
        found += planted != 0 ? 1U : 0U;
    });
    EXPECT_EQ(found, expected.size()) << "a fault of a result that does not exist";
}

TEST(DemoSurvey, MissingPointsAreTheDesignPointsWithoutResult)
{
    Places withoutResult;
    Places unsurveyed;
    for (const auto& [number, line] : files().design) {
        for (const DesignPoint& point : line) {
            if (files().survey.find(number, point.pointNumber) == nullptr)
                withoutResult.emplace(number, point.pointNumber);
            if (point.status == 0)
                unsurveyed.emplace(number, point.pointNumber);
        }
    }
    EXPECT_EQ(withoutResult, files().placesOf("missing"));
    EXPECT_EQ(unsurveyed, withoutResult);
}

TEST(DemoSurvey, SkidsLeaveWhatIsInTheWay)
{
    const Places skids = files().placesOf("skid");
    forEachResult([&](const SurveyPoint& point) {
        const demo::Obstacle inTheWay =
            demo::obstacleAt(demo::toGrid({point.designNorth, point.designEast}));
        const bool isSkid = skids.count(placeOf(point)) != 0;
        EXPECT_EQ(inTheWay != demo::Obstacle::None, isSkid) << point.pointNumber;
        if (!isSkid)
            return;
        EXPECT_EQ(point.obstacle, obstacleText(static_cast<int>(inTheWay)).toStdString());
        EXPECT_EQ(demo::obstacleAt(demo::toGrid({point.north, point.east})), demo::Obstacle::None)
            << point.pointNumber;
        EXPECT_EQ(point.remarks.find("right") != std::string::npos, point.transversalDeviation > 1)
            << point.pointNumber << ' ' << point.remarks;
        EXPECT_EQ(point.remarks.find("forward") != std::string::npos,
                  point.longitudinalDeviation > 1)
            << point.pointNumber << ' ' << point.remarks;
    });
}

TEST(DemoSurvey, ResurveysAreNumberedByTheirPoint)
{
    const Places good = files().placesOf("resurvey good");
    const Places bad = files().placesOf("resurvey bad");
    Places orphans;
    Places paired;
    forEachResult([&](const SurveyPoint& point) {
        const std::string& number = point.pointNumber;
        if (number.find('F') == std::string::npos)
            return;
        const SurveyPoint* const first =
            files().survey.find(point.lineNumber, number.substr(0, number.size() - 1));
        if (first == nullptr) {
            orphans.insert(placeOf(point));
            return;
        }
        paired.insert(placeOf(point));
        EXPECT_EQ(largestDifference(point, *first) <= 0.03, good.count(placeOf(point)) == 1)
            << number;
        EXPECT_GT(point.dateTime, first->dateTime) << number;
    });
    EXPECT_EQ(orphans, files().placesOf("resurvey orphan"));
    EXPECT_EQ(paired, united({"resurvey good", "resurvey bad"}));
}

TEST(DemoSurvey, RepeatsAreNumberedByTheirPoint)
{
    Places repeats;
    std::size_t second = 0;
    forEachResult([&](const SurveyPoint& point) {
        if (!isCheckPoint(point.pointNumber))
            return;
        repeats.insert(placeOf(point));
        second += point.pointNumber.substr(9) == "_1" ? 1U : 0U;
        const SurveyPoint* const first =
            files().survey.find(point.lineNumber, point.pointNumber.substr(1, 8));
        ASSERT_NE(first, nullptr) << point.pointNumber;
        EXPECT_LE(largestDifference(point, *first), 0.03) << point.pointNumber;
    });
    EXPECT_EQ(repeats, files().placesOf("repeat"));
    EXPECT_EQ(second, 4U);
}

TEST(DemoSurvey, CrewsMeasureOneAfterTheOtherInWorkingHours)
{
    constexpr std::int64_t kDayMs = 86400000;
    std::map<std::string, std::map<std::int64_t, std::int64_t>> crews; // ends by starts
    std::set<std::int64_t> days;
    forEachResult([&](const SurveyPoint& point) {
        EXPECT_TRUE(crews[point.surveyor].emplace(point.startTime, point.endTime).second);
        EXPECT_EQ(point.endTime - point.startTime, point.epochNumber * 1000) << point.pointNumber;
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
        const auto square = [](double value) { return value * value; };
        EXPECT_NEAR(square(point.pdop), square(point.hdop) + square(point.vdop), 0.002);
        EXPECT_NEAR(std::hypot(point.transversalDeviation, point.longitudinalDeviation),
                    std::hypot(point.north - point.designNorth, point.east - point.designEast),
                    0.0003);
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
        const QByteArray first = content(files().path(name));
        EXPECT_FALSE(first.isEmpty()) << name;
        EXPECT_EQ(first, content(again.path(name))) << name;
        EXPECT_NE(first, content(other.path(name))) << name;
    }
}
