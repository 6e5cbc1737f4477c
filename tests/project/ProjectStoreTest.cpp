#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/EventManager.h"
#include "model/PointNumber.h"
#include "protocol/Events.h"
#include "tests/project/ExpectOutcome.h"
#include "tests/project/TestProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

namespace {

class ProjectStore : public testing::Test
{
protected:
    ProjectStore() { EXPECT_TRUE(makeDatabase(path)); }

    void execute(const std::string& sql) const
    {
        DBAdapter database;
        ASSERT_TRUE(database.open(lum::databaseConnection(path).c_str()));
        ASSERT_TRUE(database.execute(sql.c_str(), 0)) << database.lastError();
    }
    /// Every row of the three tables, and the schema.
    [[nodiscard]] std::string content() const
    {
        DBAdapter database;
        EXPECT_TRUE(database.open(lum::databaseConnection(path).c_str())) << database.lastError();
        std::string all;
        for (const char* table :
             {"SurveyLineItem", "ExplorationResultItem", "CoordinateSystemItem", "sqlite_master"}) {
            database.forEachRow((std::string("select * from ") + table).c_str(),
                                [&](const IDictionary& row) {
                                    for (std::size_t i = 0; i < row.size(); ++i)
                                        all += std::string(row.valueAt(i)) + '|';
                                    all += '\n';
                                    return true;
                                });
        }
        return all;
    }
    [[nodiscard]] bool hasCopy() const { return QFile::exists(file + QStringLiteral(".saved")); }

    TestFolder folder;
    QString file = folder.path("p.db");
    std::string path = file.toStdString();
};

} // namespace

TEST_F(ProjectStore, BringsBackWhatWasSaved)
{
    TestProject project = TestProject::made(7, 300, "first, \"测\"");
    SurveyPointFiler filer(project.survey);
    for (int i = 0; i < 13; ++i) // measurements of one check point keep their order
        filer.file(surveyPoint("1", "C12345678", std::to_string(i)));
    expectDone(project.save(path));
    const std::string before = content();
    TestProject loaded = TestProject::made(2, 2, "replaced");
    loaded.coordParameters.set("stale", "1");
    expectDone(loaded.load(path));
    EXPECT_EQ(loaded.design.pointCount(), 2100U);
    EXPECT_EQ(loaded.survey.pointCount(), 433U);
    EXPECT_EQ(loaded.design.find("1006", "10065299")->azimuth, 6.299123);
    EXPECT_EQ(loaded.survey.find("1003", "10035005")->remarks, "first, \"测\"");
    EXPECT_EQ(loaded.survey.find("1", "C12345678_12")->remarks, "12");
    EXPECT_EQ(loaded.coordParameters.text("ellipsoid_a"), "6378137");
    EXPECT_FALSE(loaded.coordParameters.contains("stale"));
    expectDone(loaded.save(path));
    EXPECT_EQ(content(), before);
    EXPECT_FALSE(hasCopy());
}

TEST_F(ProjectStore, ReportsLoadedRowsByHundredthsAndFiftiethsAndSavedLines)
{
    expectDone(TestProject::made(2, 125, "").save(path)); // 250 design rows, 50 results
    EventManager manager;
    const EventLog loading(manager, events::kProgress);
    expectDone(TestProject().load(path, &manager));
    const std::vector<std::string> loaded = loading.payloads();
    ASSERT_EQ(loaded.size(), 1U + 125 + 50 + 1);
    EXPECT_EQ(loaded[0], "text=Loading Database,value=0");
    EXPECT_EQ(loaded[1], "text=Import Design Data,value=0.8,is_exec=0");
    EXPECT_EQ(loaded[125], "text=Import Design Data,value=100,is_exec=0");
    EXPECT_EQ(loaded[127], "text=Import Survey Data,value=4,is_exec=0");
    EXPECT_EQ(loaded.back(), "show=0");

    const auto saved = [&](const TestProject& project) {
        const EventLog saving(manager, events::kProgress);
        expectDone(project.save(path, &manager));
        return saving.payloads();
    };
    EXPECT_EQ(saved(TestProject::made(2, 5, "")),
              (std::vector<std::string>{"text=Save Design Data,value=50,is_exec=0",
                                        "text=Save Design Data,value=100,is_exec=0",
                                        "text=Save Survey Data,value=50,is_exec=0",
                                        "text=Save Survey Data,value=100,is_exec=0", "show=0"}));
    EXPECT_EQ(saved({}), std::vector<std::string>{"show=0"});
}

// Rows of the same point, of no line, of check points, and texts in another code page.
TEST_F(ProjectStore, ReadsWhatOtherProgramsWrote)
{
    execute("insert into SurveyLineItem (line_num, point_num, north) values"
            " ('1','7','1.5'), ('1','8','2'), ('1','7','abc'), ('1','8','3.25m');"
            "insert into ExplorationResultItem (line_num, point_num, solution_type, remarks) values"
            " ('','5',4,'old'), ('','5','x','new'), (null,'6',1,''), ('','C12345678',1,'a'),"
            " ('1234','C12345678',1,'b'), ('1234','9',1,''),"
            " (cast(x'B2E2CFDF' as text), '7', 1, cast(x'41FF' as text));"
            "insert into CoordinateSystemItem (ellipsoid_a, lon1) values ('1','7'), ('2',null)");
    TestProject project;
    expectDone(project.load(path));
    EXPECT_EQ(project.design.pointCount(), 2U);
    EXPECT_EQ(project.design.find("1", "7")->north, 0);
    EXPECT_EQ(project.design.find("1", "8")->north, 3.25);
    EXPECT_EQ(project.survey.find(kEmptyLine, "5")->remarks, "new");
    EXPECT_EQ(project.survey.find(kEmptyLine, "5")->solutionType, 0);
    EXPECT_NE(project.survey.find(kEmptyLine, "6"), nullptr);
    EXPECT_EQ(project.survey.find(kEmptyLine, "C12345678_0")->remarks, "a");
    EXPECT_EQ(project.survey.find("1234", "C12345678_0")->remarks, "b");
    ASSERT_NE(project.survey.find("测线", "7"), nullptr);
    EXPECT_EQ(project.survey.find("测线", "7")->remarks, "Aÿ");
    EXPECT_EQ(project.coordParameters.text("ellipsoid_a"), "2");
    EXPECT_FALSE(project.coordParameters.contains("lon1")) << "a NULL is no value";
}

TEST_F(ProjectStore, AnOlderDatabaseGainsItsColumns)
{
    execute("alter table ExplorationResultItem drop column start_time;"
            "alter table ExplorationResultItem drop column raw_offset;"
            "alter table ExplorationResultItem drop column sat_detail;"
            "insert into ExplorationResultItem (line_num, point_num) values ('1','2')");
    TestProject project;
    expectDone(project.load(path));
    SurveyPoint& point = *project.survey.find("1", "2");
    EXPECT_EQ(point.startTime, 0);
    point.startTime = 1700000000123;
    point.rawOffset = -8;
    point.satDetail = "G12";
    expectDone(project.save(path));
    EXPECT_NE(content().find("sat_detail TEXT, start_time REAL, raw_offset REAL)"),
              std::string::npos);
    TestProject again;
    expectDone(again.load(path));
    EXPECT_EQ(again.survey.find("1", "2")->startTime, 1700000000123);
    EXPECT_EQ(again.survey.find("1", "2")->rawOffset, -8);
    EXPECT_EQ(again.survey.find("1", "2")->satDetail, "G12");
}

// A column counts as present when its name is a part of another's; the rows then do not fit.
TEST_F(ProjectStore, ASaveThatFailsLeavesTheFileAsItWas)
{
    expectDone(TestProject::made(2, 10, "kept").save(path));
    execute("alter table ExplorationResultItem rename column raw_offset to old_raw_offset");
    const std::string before = content();
    const TestProject project = TestProject::made(1, 5, "new");
    expectFailure(project.save(path), "raw_offset");
    EXPECT_EQ(content(), before);
    {
        DBAdapter other;
        ASSERT_TRUE(other.open((lum::databaseConnection(path) + ",exclusive=1").c_str()));
        expectFailure(project.save(path), "another program");
        expectFailure(TestProject().load(path), "another program");
    }
    EXPECT_EQ(content(), before);
}

TEST_F(ProjectStore, AMissingTableEndsTheLoadThere)
{
    expectDone(TestProject::made(2, 10, "").save(path));
    execute("drop table ExplorationResultItem");
    const std::string before = content();
    TestProject project = TestProject::made(1, 5, "");
    expectFailure(project.load(path), "no such table: ExplorationResultItem");
    EXPECT_EQ(project.design.pointCount(), 20U);
    EXPECT_TRUE(project.survey.empty());
    expectFailure(project.save(path), "a table is missing");
    EXPECT_EQ(content(), before);
}

TEST_F(ProjectStore, ADamagedFileIsNeitherReadNorWritten)
{
    expectDone(TestProject::made(20, 100, "").save(path));
    const QByteArray whole = TestFolder::read(file);
    const QByteArray half = whole.left(whole.size() / 2);
    TestProject project;
    for (const auto& [content, reason] :
         {std::pair(half, "damaged"), std::pair(QByteArray(9000, 'x'), "no project database")}) {
        folder.write("p.db", content);
        expectFailure(project.load(path), reason);
        expectFailure(project.save(path), reason);
        EXPECT_EQ(TestFolder::read(file), content) << reason;
    }
    EXPECT_TRUE(project.design.empty());
    expectFailure(project.save(path + "x"), "cannot be opened");
    EXPECT_FALSE(QFile::exists(file + QLatin1Char('x')));
}

// The disk is full at one point after the other of a save: while the copy is made, and later.
TEST_F(ProjectStore, AFullDiskLeavesTheFileAsItWas)
{
    expectDone(TestProject::made(4, 100, "kept").save(path));
    const std::string before = content();
    const TestProject large = TestProject::made(40, 100, "new");
    for (const rlim_t kilobytes : {1U, 20U, 60U, 100U, 200U, 400U}) {
        const Outcome saving = [&] {
            const SmallFiles limit(kilobytes * 1024);
            return large.save(path);
        }();
        expectFailure(saving, "as it was before");
        EXPECT_EQ(content(), before) << kilobytes;
        EXPECT_FALSE(hasCopy()) << kilobytes;
    }
    expectDone(large.save(path));
}
