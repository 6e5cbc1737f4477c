#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/EventManager.h"
#include "protocol/Events.h"
#include "tests/project/SavedProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/SmallFiles.h"

namespace {

class ProjectStore : public testing::Test
{
protected:
    ProjectStore() { EXPECT_TRUE(makeDatabase(path)); }

    void execute(const char* sql) const { executeSql(file, sql); }
    /// Every row of the three tables, and the schema.
    [[nodiscard]] std::string content() const
    {
        std::string all;
        for (const char* table :
             {"SurveyLineItem", "ExplorationResultItem", "CoordinateSystemItem", "sqlite_master"})
            all += rowsOf(path, table);
        return all;
    }
    [[nodiscard]] bool hasCopy() const { return QFile::exists(file + ".saved"_q); }

    TestFolder folder;
    QString file = folder.path("p.db");
    std::string path = file.toStdString();
};

} // namespace

/// The database of a system in metres has no column for the unit.
TEST_F(ProjectStore, KeepsTheUnitOfACoordinateSystem)
{
    TestProject project = TestProject::made(1, 1, "");
    expectDone(project.save(path));
    project.coordParameters.set("unit_m", "0.3048006096012192");
    for (const char* when : {"first", "again"}) {
        expectDone(project.save(path));
        TestProject loaded = TestProject::made(1, 1, "");
        expectDone(loaded.load(path));
        EXPECT_EQ(loaded.coordParameters.text("unit_m"), "0.3048006096012192") << when;
    }
    project.coordParameters.remove("unit_m");
    expectDone(project.save(path));
    expectDone(project.load(path));
    EXPECT_FALSE(project.coordParameters.contains("unit_m"));
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

    const EventLog saving(manager, events::kProgress);
    expectDone(TestProject::made(2, 5, "").save(path, &manager));
    EXPECT_EQ(saving.payloads(),
              (std::vector<std::string>{"text=Save Design Data,value=50,is_exec=0",
                                        "text=Save Design Data,value=100,is_exec=0",
                                        "text=Save Survey Data,value=50,is_exec=0",
                                        "text=Save Survey Data,value=100,is_exec=0", "show=0"}));
}

TEST_F(ProjectStore, ASaveThatFailsLeavesTheFileAsItWas)
{
    expectDone(TestProject::made(2, 10, "kept").save(path));
    TestProject project = TestProject::made(1, 5, "new");
    const auto expectRefused = [&](const char* change, const char* reason) {
        execute(change);
        const std::string before = content();
        expectFailure(project.save(path), reason);
        EXPECT_EQ(content(), before) << change;
    };
    // A column counts as present when its name is a part of another's; the rows then do not fit.
    expectRefused("alter table ExplorationResultItem rename column raw_offset to old_raw_offset",
                  "raw_offset");
    expectRefused("drop table ExplorationResultItem", "a table is missing");
    EXPECT_FALSE(project.load(path).isDone());
    EXPECT_EQ(project.design.pointCount(), 20U) << "what was read before the missing table";
    EXPECT_TRUE(project.survey.empty());
}

TEST_F(ProjectStore, AFileInUseIsNeitherReadNorWritten)
{
    /// Waits for a lock for a moment only.
    struct HastyAdapter final : DBAdapter
    {
        bool open(const char* connection) override
        {
            return DBAdapter::open((std::string(connection) + ",busyTimeout=10").c_str());
        }
    };
    DBAdapter other;
    ASSERT_TRUE(other.open((lum::databaseConnection(path) + ",exclusive=1").c_str()));
    expectFailure(TestProject().save<HastyAdapter>(path), "another program");
    expectFailure(TestProject().load<HastyAdapter>(path), "another program");
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
