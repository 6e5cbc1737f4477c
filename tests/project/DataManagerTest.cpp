#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "protocol/Events.h"
#include "quality/problems/ProblemFinders.h"
#include "tests/project/SavedProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>

namespace {

class DataManager : public testing::Test
{
protected:
    DataManager() { manager.surveyPoints().set(surveyPoint("L", "P")).latitude = 30.5; }

    TestFolder folder;
    Host host;
    DataProcessDataManager manager{&host};
    Outcome outcome = Outcome::done();
};

} // namespace

TEST_F(DataManager, AMissingGeoidIsLoggedOncePerOperation)
{
    for (int i = 0; i < 3000; ++i)
        manager.surveyPoints().set(surveyPoint("L", std::to_string(i)));
    basalt::Dictionary system;
    csa_to_dictionary(system, "ellipsoid_a=6378137,ellipsoid_f=298.257,project_type=1,org_lon=117,"
                              "geoid_valid=1,geoid_file=/gone/网格.gtx");
    const LogCapture log;
    manager.setCoordSystem(system);
    ASSERT_EQ(log.lines(ILogger::Level::Warning).size(), 1U) << log.text();
    for (const char* part : {"3001 of 3001.", "/gone/网格.gtx"})
        EXPECT_TRUE(log.holds(part)) << log.text();
    EXPECT_FALSE(manager.seaHeightNotice().isEmpty());
    system.set("geoid_valid", "0");
    manager.setCoordSystem(system);
    EXPECT_TRUE(manager.seaHeightNotice().isEmpty());
}

TEST_F(DataManager, AVerdictIsNotSavedEither)
{
    const EventLog changes(host.eventManager(), events::kProjectModified);
    for (const auto& check : {std::function<void()>([&] { manager.checkQuality(); }),
                              {[&] { manager.checkEmptyPoints(); }},
                              {[&] { manager.checkResurveys(); }}}) {
        manager.clear();
        manager.surveyPoints().set(surveyPoint("L", "PF"));
        manager.designPoints().set(designPoint("L", "PF"));
        check();
        EXPECT_TRUE(manager.isChanged());
    }
    EXPECT_EQ(changes.names().size(), 3U);
    manager.checkResurveys();
    manager.markChanged();
    EXPECT_EQ(changes.names().size(), 3U) << "told once";
}

TEST_F(DataManager, NoExportReplacesAFileOfTheOpenProject)
{
    const ProjectPlace place = ProjectPlace::in(folder.path(), "测区"_q);
    makeProject(place);
    expectDone(manager.openProject(place));
    const QByteArray before = TestFolder::read(place.database());
    const QString link = folder.path("link.db");
    ASSERT_TRUE(QFile::link(place.database(), link));
    const QString spelled =
        folder.path("../") + QFileInfo(folder.path()).fileName() + "/./测区.db"_q;
    for (const QString& path : {place.database(), link, spelled, place.file}) {
        EXPECT_EQ(manager.exportDesignDatabase({}, path, false, &outcome), 0);
        expectFailure(outcome, "belongs to the open project");
        EXPECT_EQ(manager.exportSurveyKml({}, path), 0);
        EXPECT_EQ(manager.exportDesignCsv({}, path, false), 0);
        EXPECT_EQ(manager.importSurveyDatabase(path), 0);
    }
    EXPECT_EQ(TestFolder::read(place.database()), before);
    QFile::remove(place.database());
    EXPECT_EQ(manager.exportDesignDatabase({}, link, false), 0) << "also where it is missing";
    manager.clear();
    EXPECT_EQ(manager.exportDesignDatabase({}, link, false), 1);
}

/// The quality check clears what the resurvey check writes, so it must come first.
TEST_F(DataManager, FindsProblemsBehindTheVerdictsOfAllChecks)
{
    manager.clear();
    manager.designPoints().set(designPoint("L", "P"));
    manager.surveyPoints().set(surveyPoint("L", "P"));
    manager.surveyPoints().set(surveyPoint("L", "PF")).elevation = 1;
    const EventLog progress(host.eventManager(), events::kProgress);

    const ProblemList problems = manager.findProblems();

    const SurveyPoint& first = *manager.surveyPoints().find("L", "P");
    EXPECT_EQ(first.qualityStandard, 1720010) << "antenna, dilutions, satellites and resurvey";
    EXPECT_EQ(manager.designPoints().find("L", "P")->status, 1);
    EXPECT_TRUE(manager.isChanged());
    EXPECT_EQ(std::ranges::count(progress.payloads(), "show=0"), 4) << "checks and search";
    const auto countOf = [&](const char* name) {
        return std::ranges::count(problems, findProblemKind(name),
                                  [](const Problem& problem) { return problem.kind; });
    };
    EXPECT_EQ(countOf("resurvey_off"), 1);
    EXPECT_EQ(countOf("satellites"), 2);
    EXPECT_EQ(countOf("missing"), 0);
    EXPECT_EQ(problems.surveyRevision, manager.surveyPoints().revision());
}
