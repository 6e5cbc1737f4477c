#include "project/DesignDatabase.h"

#include "lum_sdk/events/EventManager.h"
#include "project/ProjectLock.h"
#include "project/ProjectPlace.h"
#include "protocol/Events.h"
#include "tests/project/ExpectOutcome.h"
#include "tests/project/OrdinaryUser.h"
#include "tests/project/TestProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QDir>

namespace {

class DesignDatabase : public testing::Test
{
protected:
    Outcome write(const QString& to, const QStringList& lines, bool onlyUnsurveyed = false)
    {
        ProgressReporter progress(&events);
        return writeDesignDatabase(to, {project.design, lines, onlyUnsurveyed},
                                   project.coordParameters, progress);
    }
    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

    TestFolder folder;
    QString path = folder.path("测 区.db");
    EventManager events;
    TestProject project = TestProject::made(3, 3000, "第 1");
};

} // namespace

TEST_F(DesignDatabase, LinesComeInTheOrderOfTheListWithProgress)
{
    const EventLog heard(events, events::kProgress);
    const QStringList lines{"1001"_q, "none"_q, "1002"_q, "1000"_q, "none"_q};
    expectDone(write(path, lines, true)); // line 1001 is surveyed
    const std::string written = rowsOf(path.toStdString(), "SurveyLineItem");
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 6000);
    EXPECT_EQ(written.find("1002|"), 0U);
    EXPECT_LT(written.rfind("1002|10027999"), written.find("1000|1000"));
    EXPECT_EQ(heard.payloads(),
              (std::vector<std::string>{"text=Export Design Data,value=20,is_exec=0",
                                        "text=Export Design Data,value=60,is_exec=0",
                                        "text=Export Design Data,value=80,is_exec=0", "show=0"}));
}

TEST_F(DesignDatabase, WhatCannotBeWrittenStaysAsItWas)
{
    folder.write("测 区.db", "old");
    const QStringList lines{"1000"_q, "1002"_q};
    for (const rlim_t kilobytes : {1U, 30U, 100U, 300U}) {
        const SmallFiles limit(kilobytes * 1024);
        expectFailure(write(path, lines), path.toUtf8());
    }
    expectFailure(write(folder.path(), lines), folder.path().toUtf8());
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    {
        const OrdinaryUser user;
        expectFailure(write(path, lines), "Permission denied");
    }
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(TestFolder::read(path), "old");
    EXPECT_EQ(files().size(), 1);
}

/// SQLite would play the journal into the new database, and opening would bring the copy back.
TEST_F(DesignDatabase, NothingIsLeftOfTheDatabaseBefore)
{
    for (const char* ending : {"", "-journal", "-wal", "-shm", ".saved"})
        folder.write("测 区.db"_q + QLatin1String(ending), QByteArray(9000, 'x'));
    expectDone(write(path, {"1000"_q}));
    EXPECT_EQ(files().size(), 1);
    expectDone(TestProject().load(path.toStdString()));
}

TEST_F(DesignDatabase, AProjectInUseIsNotReplaced)
{
    const ProjectPlace place = ProjectPlace::in(folder.path(), "测 区"_q);
    folder.write("测 区.kelx", "");
    folder.write("测 区.db", "in use");
    ProjectLock lock;
    ASSERT_TRUE(lock.take(place).isDone());
    expectFailure(write(path, {}), "open in another program");
    EXPECT_EQ(TestFolder::read(path), "in use");
    lock.release();
    expectDone(write(path, {}));
    EXPECT_EQ(files().size(), 2);
}
