#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/events/EventSubscription.h"
#include "model/PointNumber.h"
#include "protocol/Events.h"
#include "tests/project/TestProject.h"
#include "tests/support/SmallFiles.h"

#include <gtest/gtest.h>

namespace {

class ProjectStore : public testing::Test
{
protected:
    ProjectStore() { EXPECT_TRUE(makeDatabase(path)); }

    void execute(const std::string& sql) const
    {
        DBAdapter database;
        ASSERT_TRUE(database.open(lum::databaseConnection(path).c_str()));
        ASSERT_TRUE(database.inner().execute(sql.c_str())) << database.lastError();
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
    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(QString::fromStdString(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("p.db")).toStdString();
};

class Payloads final : public IEventHandler
{
public:
    explicit Payloads(IEventManager& manager) : m_subscription(*this, events::kProgress, manager) {}
    void handleEvent(const char* /*name*/, const char* payload, int /*reserved*/) override
    {
        all.emplace_back(payload);
    }
    std::vector<std::string> all;

private:
    EventSubscription m_subscription;
};

} // namespace

TEST_F(ProjectStore, BringsBackWhatWasSaved)
{
    const TestProject saved = TestProject::made(7, 300, "first, \"测\"");
    ASSERT_TRUE(saved.save(path).isDone);
    const std::string before = content();
    TestProject loaded = TestProject::made(2, 2, "replaced");
    loaded.coordParameters.set("stale", "1");
    const StoreResult result = loaded.load(path);

    ASSERT_TRUE(result.isDone) << result.message.toStdString();
    EXPECT_EQ(result.message, QString());
    EXPECT_EQ(loaded.design.pointCount(), 2100U);
    EXPECT_EQ(loaded.survey.pointCount(), 420U);
    EXPECT_EQ(loaded.design.find("1006", "10065299")->azimuth, 6.299123);
    EXPECT_EQ(loaded.survey.find("1003", "10035005")->remarks, "first, \"测\"");
    EXPECT_EQ(loaded.coordParameters.text("ellipsoid_a"), "6378137");
    EXPECT_FALSE(loaded.coordParameters.contains("stale"));
    ASSERT_TRUE(loaded.save(path).isDone);
    EXPECT_EQ(content(), before);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path + ".saved")));
}

TEST_F(ProjectStore, ReportsByHundredthsAndFiftieths)
{
    ASSERT_TRUE(TestProject::made(2, 125, "").save(path).isDone); // 250 design rows, 50 results
    EventManager manager;
    const Payloads payloads(manager);
    TestProject project;
    ASSERT_TRUE(project.load(path, &manager).isDone);
    ASSERT_EQ(payloads.all.size(), 1U + 125 + 50 + 1);
    EXPECT_EQ(payloads.all[0], "text=Loading Database,value=0");
    EXPECT_EQ(payloads.all[1], "text=Import Design Data,value=0.8,is_exec=0");
    EXPECT_EQ(payloads.all[125], "text=Import Design Data,value=100,is_exec=0");
    EXPECT_EQ(payloads.all[127], "text=Import Survey Data,value=4,is_exec=0");
    EXPECT_EQ(payloads.all.back(), "show=0");
}

TEST_F(ProjectStore, ReportsEachLineThatIsSaved)
{
    EventManager manager;
    const Payloads payloads(manager);
    ASSERT_TRUE(TestProject::made(3, 5, "").save(path, &manager).isDone);
    const std::vector<std::string> expected{"text=Save Design Data,value=33.3333,is_exec=0",
                                            "text=Save Design Data,value=66.6667,is_exec=0",
                                            "text=Save Design Data,value=100,is_exec=0",
                                            "text=Save Survey Data,value=33.3333,is_exec=0",
                                            "text=Save Survey Data,value=66.6667,is_exec=0",
                                            "text=Save Survey Data,value=100,is_exec=0",
                                            "show=0"};
    EXPECT_EQ(payloads.all, expected);
}

TEST_F(ProjectStore, LaterRowsWinAndLinesWithoutNumberGetAName)
{
    execute("insert into SurveyLineItem (line_num, point_num, north) values"
            " ('1','7','1.5'), ('1','8','2'), ('1','7','abc'), ('1','8','3.25m');"
            "insert into ExplorationResultItem (line_num, point_num, solution_type, remarks) values"
            " ('','5',4,'old'), ('','5','x','new'), (null,'6',1,''), ('','C12345678',1,'a'),"
            " ('1234','C12345678',1,'b'), ('1234','9',1,'');"
            "insert into CoordinateSystemItem (ellipsoid_a, lon1) values ('1','7'), ('2',null)");
    TestProject project;
    ASSERT_TRUE(project.load(path).isDone);
    EXPECT_EQ(project.design.pointCount(), 2U);
    EXPECT_EQ(project.design.find("1", "7")->north, 0);
    EXPECT_EQ(project.design.find("1", "8")->north, 3.25);
    EXPECT_EQ(project.survey.find(kEmptyLine, "5")->remarks, "new");
    EXPECT_EQ(project.survey.find(kEmptyLine, "5")->solutionType, 0);
    EXPECT_NE(project.survey.find(kEmptyLine, "6"), nullptr);
    EXPECT_EQ(project.survey.find(kEmptyLine, "C12345678_0")->remarks, "a");
    EXPECT_EQ(project.survey.find("1234", "C12345678_0")->remarks, "b");
    EXPECT_EQ(project.coordParameters.text("ellipsoid_a"), "2");
    EXPECT_FALSE(project.coordParameters.contains("lon1")) << "a NULL is no value";
}

TEST_F(ProjectStore, ManyMeasurementsOfACheckPointKeepTheirOrder)
{
    TestProject project;
    SurveyPointFiler filer(project.survey);
    for (int i = 0; i < 13; ++i) {
        SurveyPoint point;
        point.lineNumber = "1";
        point.pointNumber = "C12345678";
        point.remarks = std::to_string(i);
        filer.file(std::move(point));
    }
    ASSERT_TRUE(project.save(path).isDone);
    const std::string before = content();
    ASSERT_TRUE(project.load(path).isDone);
    EXPECT_EQ(project.survey.find("1", "C12345678_12")->remarks, "12");
    ASSERT_TRUE(project.save(path).isDone);
    EXPECT_EQ(content(), before);
}

TEST_F(ProjectStore, TextsOfAnOtherCodePageAreRead)
{
    execute("insert into ExplorationResultItem (line_num, point_num, surveyor) values"
            " (cast(x'B2E2CFDF' as text), '7', cast(x'41FF' as text))");
    TestProject project;
    ASSERT_TRUE(project.load(path).isDone);
    ASSERT_NE(project.survey.find("测线", "7"), nullptr);
    EXPECT_EQ(project.survey.find("测线", "7")->surveyor, "Aÿ");
}

TEST_F(ProjectStore, AnOlderDatabaseGainsItsColumns)
{
    execute("alter table ExplorationResultItem drop column start_time;"
            "alter table ExplorationResultItem drop column raw_offset;"
            "alter table ExplorationResultItem drop column sat_detail;"
            "insert into ExplorationResultItem (line_num, point_num) values ('1','2')");
    TestProject project;
    ASSERT_TRUE(project.load(path).isDone);
    SurveyPoint& point = *project.survey.find("1", "2");
    EXPECT_EQ(point.startTime, 0);
    point.startTime = 1700000000123;
    point.rawOffset = -8;
    point.satDetail = "G12";
    ASSERT_TRUE(project.save(path).isDone);
    EXPECT_NE(content().find("sat_detail TEXT, start_time REAL, raw_offset REAL)"),
              std::string::npos);
    TestProject again;
    ASSERT_TRUE(again.load(path).isDone);
    EXPECT_EQ(again.survey.find("1", "2")->startTime, 1700000000123);
    EXPECT_EQ(again.survey.find("1", "2")->rawOffset, -8);
    EXPECT_EQ(again.survey.find("1", "2")->satDetail, "G12");
}

// A column whose name holds another's counts as that column too; the rows then do not fit, and
// the database stays as it is.
TEST_F(ProjectStore, AColumnCountsAsPresentWhereItsNameStands)
{
    ASSERT_TRUE(TestProject::made(2, 10, "kept").save(path).isDone);
    execute("alter table ExplorationResultItem rename column raw_offset to old_raw_offset");
    const std::string before = content();
    const StoreResult result = TestProject::made(1, 5, "new").save(path);
    EXPECT_FALSE(result.isDone);
    EXPECT_TRUE(result.message.contains(QStringLiteral("raw_offset")));
    EXPECT_EQ(content(), before);
}

TEST_F(ProjectStore, AnEmptyProjectHidesTheBarToo)
{
    EventManager manager;
    const Payloads payloads(manager);
    ASSERT_TRUE(TestProject().save(path, &manager).isDone);
    EXPECT_EQ(payloads.all, std::vector<std::string>{"show=0"});
}

TEST_F(ProjectStore, AMissingTableEndsTheLoadThere)
{
    ASSERT_TRUE(TestProject::made(2, 10, "").save(path).isDone);
    execute("drop table ExplorationResultItem");
    TestProject project = TestProject::made(1, 5, "");
    const StoreResult loading = project.load(path);
    EXPECT_FALSE(loading.isDone);
    EXPECT_TRUE(loading.message.contains(QStringLiteral("no such table: ExplorationResultItem")));
    EXPECT_EQ(project.design.pointCount(), 20U);
    EXPECT_TRUE(project.survey.empty());
    const std::string before = content();
    EXPECT_FALSE(project.save(path).isDone);
    EXPECT_EQ(content(), before);
}

TEST_F(ProjectStore, ADamagedFileIsNeitherReadNorWritten)
{
    ASSERT_TRUE(TestProject::made(20, 100, "").save(path).isDone);
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.resize(file.size() / 2));
    const QByteArray before = bytes();
    TestProject project;
    const StoreResult loading = project.load(path);
    EXPECT_FALSE(loading.isDone);
    EXPECT_TRUE(loading.message.contains(QStringLiteral("damaged")));
    EXPECT_FALSE(project.save(path).isDone);
    EXPECT_EQ(bytes(), before);

    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(9000, 'x'));
    file.close();
    EXPECT_FALSE(project.load(path).isDone);
    EXPECT_TRUE(project.design.empty());
    EXPECT_FALSE(project.save(path + "x").isDone);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(path + "x")));
}

TEST_F(ProjectStore, ALockedFileIsLeftAlone)
{
    ASSERT_TRUE(TestProject::made(2, 10, "kept").save(path).isDone);
    const std::string before = content();
    DBAdapter other;
    ASSERT_TRUE(other.open((lum::databaseConnection(path) + ",exclusive=1").c_str()));
    TestProject project = TestProject::made(1, 5, "");
    const StoreResult saving = project.save(path);
    EXPECT_FALSE(saving.isDone);
    EXPECT_TRUE(saving.message.contains(QStringLiteral("another program")));
    EXPECT_EQ(project.design.pointCount(), 5U);
    EXPECT_FALSE(project.load(path).isDone);
    other.close();
    EXPECT_EQ(content(), before);
}

// The disk is full at one point after the other of a save: while the copy is made, and later.
TEST_F(ProjectStore, AFullDiskLeavesTheFileAsItWas)
{
    ASSERT_TRUE(TestProject::made(4, 100, "kept").save(path).isDone);
    const std::string before = content();
    const TestProject large = TestProject::made(40, 100, "new");
    for (const rlim_t kilobytes : {1U, 20U, 60U, 100U, 200U, 400U}) {
        const StoreResult saving = [&] {
            const SmallFiles limit(kilobytes * 1024);
            return large.save(path);
        }();
        EXPECT_FALSE(saving.isDone) << kilobytes;
        EXPECT_FALSE(saving.message.isEmpty());
        EXPECT_EQ(content(), before) << kilobytes;
        EXPECT_FALSE(QFile::exists(QString::fromStdString(path + ".saved"))) << kilobytes;
    }
    EXPECT_TRUE(large.save(path).isDone);
}

TEST_F(ProjectStore, AnInterruptedSaveIsUndone)
{
    ASSERT_TRUE(TestProject::made(2, 10, "kept").save(path).isDone);
    ASSERT_TRUE(QFile::copy(QString::fromStdString(path), QString::fromStdString(path + ".saved")));
    execute("create table SaveUnderWay (x); delete from SurveyLineItem");
    TestProject project;
    const StoreResult loading = project.load(path);
    EXPECT_TRUE(loading.isDone);
    EXPECT_TRUE(loading.message.contains(QStringLiteral("interrupted")));
    EXPECT_EQ(project.design.pointCount(), 20U);
    EXPECT_EQ(project.load(path).message, QString()) << "told once";
}
