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

namespace {

constexpr std::uint64_t kSeed = 7;

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
    }
    [[nodiscard]] QByteArray text(const char* name) const
    {
        return TestFolder::read(folder.path(name));
    }

    TestFolder folder;
    DesignPoints design;
    SurveyPoints survey;
    std::vector<ImportSummary> summaries;
};

const Files& files()
{
    static const Files kFiles(kSeed);
    return kFiles;
}

} // namespace

TEST(DemoSurvey, EveryLineIsRead)
{
    for (const ImportSummary& summary : files().summaries) {
        EXPECT_EQ(summary.skipped.count, 0U) << summary.toText().toStdString();
        EXPECT_EQ(summary.pointsReplaced, 0U);
        EXPECT_EQ(summary.pointsNew, summary.linesRead - 1) << "all but the captions";
    }
    EXPECT_EQ(files().design.pointCount(), 4000U);
    EXPECT_EQ(files().design.lineCount(), 41U) << "with one between two others";
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
