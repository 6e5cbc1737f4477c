#include "project/ParameterFiles.h"
#include "project/ProjectFile.h"
#include "project/SafetyCopy.h"
#include "tests/project/OrdinaryUser.h"
#include "tests/project/SavedProject.h"
#include "tests/support/LogCapture.h"
#include "tests/support/SmallFiles.h"

#include <sys/wait.h>

namespace {

class ProjectLife : public testing::Test
{
protected:
    ProjectLife()
    {
        QDir().mkpath(place.folder);
        const basalt::Dictionary none;
        get_project_coord_transform().initialise(none, none); // an earlier test may have set it
    }

    /// A new project in the plane of UTM zone 50.
    void create() const
    {
        basalt::Dictionary project;
        ProjectCreator::describe(place, project);
        project.set("ellipsoid_a", "6378137");
        project.set("ellipsoid_f", "298.257223563");
        project.set("project_type", "2");
        project.set("org_lon", "117");
        project.set("crew", "测量一队");
        expectDone(ProjectCreator::create(place, project));
    }
    void createAndOpen()
    {
        create();
        expectDone(manager.openProject(place));
    }
    /// The names in the project's folder that match a pattern, in order.
    [[nodiscard]] QStringList files(const char* pattern) const
    {
        return QDir(place.folder).entryList({QString::fromUtf8(pattern)}, QDir::Files, QDir::Name);
    }
    [[nodiscard]] QByteArray content(const QString& name) const
    {
        return TestFolder::read(place.folder + QLatin1Char('/') + name);
    }
    void write(const QString& path, const QByteArray& text) const
    {
        ASSERT_FALSE(root.write(QDir(root.path()).relativeFilePath(path), text).isEmpty());
    }

    TestFolder root;
    ProjectPlace place = ProjectPlace::planned(root.path(), "测区 1"_q);
    QString database = place.database();
    Host host;
    DataProcessDataManager manager{&host};
    DataProcessDataManager other{&host}; ///< that of a second program
};

} // namespace

TEST_F(ProjectLife, TheCoordinateSystemSurvivesFromTheCreationOn)
{
    createAndOpen();
    const IDictionary& system = get_project_coord_transform().parameters();
    EXPECT_EQ(system.text("org_lon"), "117");
    EXPECT_EQ(manager.project().text("crew"), "测量一队");
    manager.surveyPoints().set(surveyPoint("L1", "7")).elevation = 12.5;
    manager.project().set("crew", "second");
    expectDone(manager.saveProject(place));
    manager.clear();
    expectDone(manager.openProject(place));
    EXPECT_EQ(manager.project().text("crew"), "second");
    EXPECT_EQ(manager.surveyPoints().find("L1", "7")->seaHeight, 12.5);
    manager.clear();
    // From the first save on the database has the system, with or without the project file.
    ASSERT_TRUE(QFile::remove(place.file));
    expectNotice(manager.openProject(place), place.file.toUtf8());
    EXPECT_TRUE(manager.projectFileFault().contains(place.file));
    EXPECT_EQ(system.text("org_lon"), "117");
    expectDone(manager.saveProject(place));
    EXPECT_FALSE(QFile::exists(place.file)) << "made up from nothing";
}

TEST_F(ProjectLife, FilesOfTheSameNameAreKeptAside)
{
    for (const char* ending : {"", "-journal", ".saved"})
        write(database + QLatin1String(ending), QByteArray("old") + ending);
    write(place.folder + "/notes.txt"_q, "notes");
    createAndOpen();
    EXPECT_TRUE(manager.surveyPoints().empty());
    EXPECT_EQ(content("notes.txt"_q), "notes");
    const QStringList kept = files("*.db.2*");
    ASSERT_EQ(kept.size(), 3);
    EXPECT_EQ(content(kept[0]), "old");
    EXPECT_EQ(content(kept[1]), "old-journal");
    EXPECT_EQ(content(kept[2]), "old.saved");
    EXPECT_EQ(kept[1], kept[0] + "-journal"_q) << "it stays with its database";
    EXPECT_EQ(files("*.db?*").size(), 4) << "the three, and the lock";
}

TEST_F(ProjectLife, ACreationThatFailsLeavesWhatWasThere)
{
    write(database, "old database");
    write(place.file, "old project");
    {
        const SmallFiles limit(100);
        expectFailure(ProjectCreator::create(place, basalt::Dictionary()), database.toUtf8());
    }
    EXPECT_EQ(TestFolder::read(database), "old database");
    EXPECT_EQ(TestFolder::read(place.file), "old project");
    EXPECT_EQ(files("*").size(), 2) << "something new was left";
}

TEST_F(ProjectLife, ASecondProgramIsToldAndMayLook)
{
    createAndOpen();
    expectFailure(other.openProject(place), "another program");
    expectDone(other.openProject(place, ProjectAccess::Look));
    expectFailure(ProjectCreator::create(place, basalt::Dictionary()), "another program");
    manager.clear();
    expectDone(other.openProject(place));
}

TEST_F(ProjectLife, AProgramThatDiedHoldsNothingButOneElsewhereMay)
{
    create();
    const QString lock = database + ".lock"_q;
    const pid_t child = fork();
    if (child == 0)
        _exit(manager.openProject(place).isDone() ? 0 : 1); // without letting go
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(lock));
    expectDone(manager.openProject(place));
    manager.clear();
    write(lock, "999999\nskyquill\nanother-computer\n");
    expectFailure(manager.openProject(place), lock.toUtf8());
}

TEST_F(ProjectLife, WithoutALockNothingIsOverwritten)
{
    create();
    const auto openOnAFullDisk = [this] {
        const SmallFiles limit(0);
        expectNotice(manager.openProject(place), "cannot be saved");
        expectFailure(manager.saveProject(place), "cannot be saved");
    };
    openOnAFullDisk();
    manager.surveyPoints().set(surveyPoint("L1", "7"));
    expectDone(manager.saveProject(place)); // the disk has room again
    manager.clear();

    openOnAFullDisk();
    expectDone(other.openProject(place));
    expectFailure(manager.saveProject(place), "another program");
    other.surveyPoints().set(surveyPoint("L1", "8"));
    expectDone(other.saveProject(place));
    other.clear();
    for (int i = 0; i < 2; ++i)
        expectFailure(manager.saveProject(place), "has changed");
}

TEST_F(ProjectLife, AMissingDatabaseIsMadeBySavingAlone)
{
    createAndOpen();
    manager.surveyPoints().set(surveyPoint("L1", "7"));
    ASSERT_TRUE(QFile::remove(database));
    expectDone(manager.saveProject(place));
    expectDone(manager.openProject(place));
    EXPECT_EQ(manager.surveyPoints().pointCount(), 1U);
    const ProjectPlace nowhere = ProjectPlace::planned(root.path(), "none"_q);
    expectFailure(manager.openProject(nowhere), nowhere.folder.toUtf8());
    EXPECT_EQ(files("*.lock"), QStringList()) << "a project that is not open has no lock";
}

TEST_F(ProjectLife, AFolderThatCannotBeWrittenCanBeReadAndIsNotChanged)
{
    createAndOpen();
    manager.surveyPoints().set(surveyPoint("L1", "7"));
    expectDone(manager.saveProject(place));
    manager.clear();
    const QByteArray before = TestFolder::read(database);
    const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
    for (const QString& file : {database, place.folder})
        ASSERT_TRUE(QFile::setPermissions(file, readOnly));
    {
        const OrdinaryUser user;
        expectNotice(manager.openProject(place), "cannot be saved");
        EXPECT_EQ(manager.surveyPoints().pointCount(), 1U);
        manager.surveyPoints().set(surveyPoint("L1", "8"));
        expectFailure(manager.saveProject(place), "cannot be saved");
        EXPECT_TRUE(manager.isSaveOwed());
        EXPECT_TRUE(manager.isChanged() && manager.isReadOnly());
        EXPECT_EQ(manager.surveyPoints().pointCount(), 2U);
    }
    ASSERT_TRUE(QFile::setPermissions(place.folder, readOnly | QFile::WriteOwner));
    EXPECT_EQ(TestFolder::read(database), before);
}

// As on file systems that cannot sync a folder: this one can be written, but not opened.
TEST_F(ProjectLife, WhereAFolderCannotBeSyncedEverythingIsDoneAllTheSame)
{
    create();
    ASSERT_TRUE(QFile::setPermissions(place.folder, QFile::WriteOwner | QFile::ExeOwner));
    const QString copy = database + ".saved"_q;
    {
        const OrdinaryUser user;
        const LogCapture log;
        expectDone(manager.openProject(place));
        manager.surveyPoints().set(surveyPoint("L1", "7"));
        expectDone(manager.saveProject(place));
        EXPECT_FALSE(QFile::exists(copy));
        EXPECT_TRUE(log.holds("cannot be synced"));
        manager.clear();

        ASSERT_TRUE(QFile::copy(database, copy));
        executeSql(database, SafetyCopy::kMark);
        expectNotice(manager.openProject(place), "as it was last saved");
        manager.clear();
        expectDone(manager.openProject(place));
        EXPECT_EQ(manager.surveyPoints().pointCount(), 1U);
        manager.clear();

        ASSERT_TRUE(QFile::rename(place.file, place.file + ".x"_q));
        expectDone(ProjectCreator::create(place, basalt::Dictionary()));
    }
    ASSERT_TRUE(QFile::setPermissions(place.folder,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(files("*.db.2*").size(), 1) << "the old database is kept aside";
}

TEST_F(ProjectLife, ACopyHoldsAllThatIsOpen)
{
    create();
    executeSql(database, "create table Notes (text TEXT)");
    expectDone(manager.openProject(place));
    const QByteArray before = TestFolder::read(database);
    manager.surveyPoints().set(surveyPoint("L1", "7"));
    manager.qualityParameters().set("only_here", "1");
    manager.project().set("crew", "second");
    const auto expectCopy = [&](const char* name) {
        const ProjectPlace copy = ProjectPlace::planned(root.path(), QString::fromUtf8(name));
        ASSERT_TRUE(QDir().mkpath(copy.folder));
        expectDone(manager.saveCopy(copy));
        expectDone(other.openProject(copy));
        EXPECT_EQ(other.surveyPoints().pointCount(), 1U);
        EXPECT_EQ(other.qualityParameters().text("only_here"), "1");
        EXPECT_EQ(other.project().text("crew"), "second");
        EXPECT_EQ(other.project().text(ProjectFile::kPath), copy.folder.toStdString());
        other.clear();
    };
    expectCopy("copy 1");
    executeSql(root.path("copy 1/copy 1.db"), "insert into Notes values ('kept')");
    EXPECT_EQ(TestFolder::read(database), before);
    EXPECT_TRUE(QFile::exists(database + ".lock"_q)) << "it is still open";

    ASSERT_TRUE(QFile::resize(database, 5000)); // damaged
    expectCopy("copy 2");
    ASSERT_TRUE(QDir(place.folder).removeRecursively());
    expectFailure(manager.saveProject(place), place.folder.toUtf8() + "\" does not exist");
    expectCopy("copy 3");
}

TEST_F(ProjectLife, ACopyThatFailsLeavesNothing)
{
    createAndOpen();
    const ProjectPlace copy = ProjectPlace::planned(root.path(), "copy"_q);
    ASSERT_TRUE(QDir().mkpath(copy.folder));
    write(copy.database(), "old");
    for (int i = 0; i < 2000; ++i)
        manager.surveyPoints().set(surveyPoint("L1", std::to_string(i)));
    for (const rlim_t kilobytes : {1U, 40U, 100U}) {
        const SmallFiles limit(kilobytes * 1024);
        const Outcome saving = manager.saveCopy(copy);
        EXPECT_FALSE(saving.isDone() || saving.text().contains("canceled"_q)) << saving.detail();
        EXPECT_EQ(QDir(copy.folder).entryList(QDir::Files), QStringList{"copy.db"_q}) << kilobytes;
        EXPECT_EQ(TestFolder::read(copy.database()), "old");
    }
    EXPECT_EQ(manager.surveyPoints().pointCount(), 2000U);
    expectDone(manager.saveProject(place));
}

TEST(ProjectPlace, RefusesNamesThatSomeSystemCannotHold)
{
    for (const char* good : {"area 1", "测区_一", "R&D (2)", "a'b"})
        EXPECT_EQ(projectNameFault(QString::fromUtf8(good)), QString()) << good;
    for (const char* bad : {"", "a/b", "a\\b", "..", "a.b", "a:b", "what?", "a*", "\"", "a|b", " a",
                            "a ", "con", "LPT1", "a\tb"})
        EXPECT_NE(projectNameFault(QString::fromUtf8(bad)), QString()) << bad;
    EXPECT_NE(projectNameFault(QString(70, QChar(0x6D4B))), QString()) << "longer than a file name";
}
