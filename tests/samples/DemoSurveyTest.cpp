#include "samples/DemoSurvey.h"

#include "exchange/DesignCsvReader.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "samples/DemoFiles.h"
#include "samples/ResultCompleter.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace {

constexpr std::uint64_t kSeed = 7;

struct Kind
{
    const char* name;
    std::size_t count; ///< kAny where the terrain decides
};

constexpr std::size_t kAny = 0;
// clang-format off
constexpr Kind kKinds[] = {
    {"missing", kAny}, {"skid", kAny}, {"too far", 12}, {"hrms", 6}, {"vrms", 5},
    {"hrms and vrms", 4}, {"antenna high", 4}, {"antenna low", 3}, {"pdop", 4},
    {"pdop and vdop", 3}, {"pdop hdop and vdop", 3}, {"few satellites", 5},
    {"reference too far", 4}, {"resurvey good", kAny}, {"resurvey bad", 6},
    {"resurvey orphan", 4}, {"repeat", 22}, {"repeat bad", 2}, {"not fixed", 3}, {"rms", 2},
    {"old corrections", 3}, {"few epochs", 2}, {"short occupation", 2}, {"height off", 2},
    {"height jump", 2}, {"no design position", 2}, {"wrong name", 3}, {"exchanged names", 4},
    {"unknown name", 2}, {"design spacing", 1}, {"design spike", 1}, {"design azimuth", 1},
    {"design order", 1}, {"design in one place", 1}, {"design height", 1}, {"design numbers", 1},
    {"design lines", 1}, {"base height", 1}, {"pole height", 1}, {"few check shots", 1},
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
            ++counts[fields.value(0).toStdString()];
        }
    }
    [[nodiscard]] QByteArray text(const char* name) const
    {
        return TestFolder::read(folder.path(name));
    }

    TestFolder folder;
    DesignPoints design;
    SurveyPoints survey;
    std::map<std::string, std::size_t> counts; ///< of faults, by kind
    std::vector<ImportSummary> summaries;
};

const Files& files()
{
    static const Files kFiles(kSeed);
    return kFiles;
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

TEST(DemoSurvey, ValuesOfAResultBelongTogether)
{
    ICoordTransform& transform = get_project_coord_transform();
    for (const auto& [number, line] : files().survey) {
        for (const SurveyPoint& point : line) {
            SCOPED_TRACE(point.pointNumber);
            EXPECT_NEAR(point.pdop * point.pdop, point.hdop * point.hdop + point.vdop * point.vdop,
                        0.002);
            if (hasDesignPosition(point)) {
                EXPECT_NEAR(
                    std::hypot(point.transversalDeviation, point.longitudinalDeviation),
                    std::hypot(point.north - point.designNorth, point.east - point.designEast),
                    0.0003);
            }
            EXPECT_NEAR(std::hypot(point.referenceNorth - point.north,
                                   point.referenceEast - point.east,
                                   point.referenceAltitude - point.elevation),
                        point.referenceDistance, 0.001);
            double north = 0;
            double east = 0;
            double height = 0;
            ASSERT_EQ(transform.transform(1, 1, 2, 1, point.latitude, point.longitude,
                                          point.altitude, &north, &east, &height),
                      0);
            EXPECT_NEAR(std::hypot(north - point.north, east - point.east), 0, 0.002);
            EXPECT_NEAR(height, point.elevation, 0.001);
        }
    }
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
