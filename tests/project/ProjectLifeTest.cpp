#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/Host.h"
#include "model/CoordinateRecord.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectCreator.h"
#include "project/ProjectFile.h"
#include "project/ProjectPlace.h"
#include "tests/project/OrdinaryUser.h"
#include "tests/support/SmallFiles.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class ProjectLife : public testing::Test
{
protected:
    ProjectLife()
    {
        place = ProjectPlace::planned(root.path(), QStringLiteral("测区 1"));
        QDir().mkpath(place.folder);
        const basalt::Dictionary none;
        get_project_coord_transform().initialise(none, none); // that of an earlier test
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
        ASSERT_EQ(ProjectCreator::create(place, project).toStdString(), "");
    }
    [[nodiscard]] static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void write(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    static SurveyPoint result(const char* point)
    {
        SurveyPoint made;
        made.lineNumber = "L1";
        made.pointNumber = point;
        made.elevation = 12.5;
        return made;
    }

    QTemporaryDir root;
    ProjectPlace place;
    Host host;
    DataProcessDataManager manager{&host};
};

} // namespace

TEST_F(ProjectLife, TheCoordinateSystemSurvivesFromTheCreationOn)
{
    create();
    ASSERT_TRUE(manager.openProject(place).isDone);
    const IDictionary& system = get_project_coord_transform().parameters();
    EXPECT_EQ(system.text("org_lon"), "117");
    EXPECT_EQ(manager.project().text("crew"), "测量一队");

    manager.surveyPoints().set(result("7"));
    manager.project().set("crew", "second");
    ASSERT_TRUE(manager.saveProject(place).isDone);
    manager.clear();
    ASSERT_TRUE(manager.openProject(place).isDone);
    EXPECT_EQ(manager.project().text("crew"), "second");
    EXPECT_EQ(manager.surveyPoints().find("L1", "7")->seaHeight, 12.5);
    manager.clear();
    // From the first save on the database has it, whatever becomes of the project file.
    ASSERT_TRUE(QFile::remove(place.file));
    ASSERT_TRUE(manager.openProject(place).isDone);
    EXPECT_EQ(system.text("org_lon"), "117");
    ASSERT_TRUE(manager.saveProject(place).isDone);
    EXPECT_FALSE(QFile::exists(place.file)) << "made up from nothing";
}

TEST_F(ProjectLife, FilesOfTheSameNameAreKeptAside)
{
    const QString saved = place.database() + QStringLiteral(".saved");
    write(place.database(), "old database");
    write(saved, "old copy");
    write(place.folder + QStringLiteral("/notes.txt"), "notes");
    create();
    ASSERT_TRUE(manager.openProject(place).isDone);
    EXPECT_TRUE(manager.surveyPoints().empty());
    EXPECT_FALSE(QFile::exists(saved));
    EXPECT_EQ(content(place.folder + QStringLiteral("/notes.txt")), "notes");
    QByteArray kept;
    for (const QFileInfo& file :
         QDir(place.folder).entryInfoList({QStringLiteral("*.db*.*-*")}, QDir::Files, QDir::Name))
        kept += content(file.filePath()) + ';';
    EXPECT_EQ(kept, "old database;old copy;");
}

TEST_F(ProjectLife, AnOldJournalStaysWithItsDatabase)
{
    const QString journal = place.database() + QStringLiteral("-journal");
    write(place.database(), "old database");
    write(journal, "old journal");
    create();
    EXPECT_FALSE(QFile::exists(journal));
    const QStringList kept =
        QDir(place.folder).entryList({QStringLiteral("*.db.*")}, QDir::Files, QDir::Name);
    ASSERT_EQ(kept.size(), 2);
    EXPECT_EQ(kept[1], kept[0] + QStringLiteral("-journal"));
}

TEST_F(ProjectLife, ACreationThatFailsLeavesWhatWasThere)
{
    write(place.database(), "old database");
    write(place.file, "old project");
    const basalt::Dictionary project;
    {
        const SmallFiles limit(100);
        const QString fault = ProjectCreator::create(place, project);
        EXPECT_TRUE(fault.contains(place.database())) << fault.toStdString();
    }
    EXPECT_EQ(content(place.database()), "old database");
    EXPECT_EQ(content(place.file), "old project");
    EXPECT_EQ(QDir(place.folder).entryList(QDir::Files).size(), 2) << "something new was left";
}

TEST_F(ProjectLife, ADatabaseThatIsGoneIsMadeAnew)
{
    create();
    ASSERT_TRUE(manager.openProject(place).isDone);
    manager.surveyPoints().set(result("7"));
    ASSERT_TRUE(QFile::remove(place.database()));
    const StoreResult saving = manager.saveProject(place);
    ASSERT_TRUE(saving.isDone) << saving.message.toStdString();
    ASSERT_TRUE(manager.openProject(place).isDone);
    EXPECT_EQ(manager.surveyPoints().pointCount(), 1U);
}

TEST_F(ProjectLife, ASecondProgramIsToldAndMayLook)
{
    create();
    ASSERT_TRUE(manager.openProject(place).isDone);
    DataProcessDataManager other(&host);
    const StoreResult second = other.openProject(place);
    EXPECT_FALSE(second.isDone);
    EXPECT_TRUE(second.message.contains(QStringLiteral("another program")))
        << second.message.toStdString();
    EXPECT_TRUE(other.openProject(place, ProjectAccess::Look).isDone);
    basalt::Dictionary project;
    EXPECT_TRUE(ProjectCreator::create(place, project).contains(QStringLiteral("another program")));
    manager.clear();
    EXPECT_TRUE(other.openProject(place).isDone);
}

TEST_F(ProjectLife, AProgramThatDiedHoldsNothing)
{
    create();
    const pid_t child = fork();
    if (child == 0)
        _exit(manager.openProject(place).isDone ? 0 : 1); // without letting go
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(place.database() + QStringLiteral(".lock")));
    EXPECT_TRUE(manager.openProject(place).isDone);
}

TEST_F(ProjectLife, ALockOfAnotherComputerIsNamed)
{
    create();
    const QString lock = place.database() + QStringLiteral(".lock");
    write(lock, "999999\nskyquill\nanother-computer\n");
    const StoreResult opening = manager.openProject(place);
    EXPECT_FALSE(opening.isDone);
    EXPECT_TRUE(opening.message.contains(lock)) << opening.message.toStdString();
}

TEST_F(ProjectLife, WithoutALockNothingIsOverwritten)
{
    create();
    const auto openOnAFullDisk = [this] {
        const SmallFiles limit(0);
        const StoreResult opening = manager.openProject(place);
        EXPECT_TRUE(opening.isDone);
        EXPECT_TRUE(opening.message.contains(QStringLiteral("cannot be saved")))
            << opening.message.toStdString();
        EXPECT_FALSE(manager.saveProject(place).isDone);
    };
    openOnAFullDisk();
    manager.surveyPoints().set(result("7"));
    EXPECT_TRUE(manager.saveProject(place).isDone) << "the disk has room again";
    manager.clear();

    openOnAFullDisk();
    DataProcessDataManager other(&host);
    ASSERT_TRUE(other.openProject(place).isDone);
    EXPECT_FALSE(manager.saveProject(place).isDone) << "while the other has it";
    other.surveyPoints().set(result("8"));
    ASSERT_TRUE(other.saveProject(place).isDone);
    other.clear();
    for (int i = 0; i < 2; ++i) {
        const StoreResult saving = manager.saveProject(place);
        EXPECT_FALSE(saving.isDone);
        EXPECT_TRUE(saving.message.contains(QStringLiteral("has changed")))
            << saving.message.toStdString();
    }
}

TEST_F(ProjectLife, WhatIsMissingIsNamedAndNotMade)
{
    create();
    ASSERT_TRUE(QFile::remove(place.database()));
    const StoreResult noDatabase = manager.openProject(place);
    EXPECT_FALSE(noDatabase.isDone);
    EXPECT_TRUE(noDatabase.message.contains(place.database()));
    EXPECT_FALSE(QFile::exists(place.database()));
    EXPECT_FALSE(QFile::exists(place.database() + QStringLiteral(".lock")));

    const ProjectPlace nowhere = ProjectPlace::planned(root.path(), QStringLiteral("none"));
    EXPECT_TRUE(manager.openProject(nowhere).message.contains(nowhere.folder));
}

TEST_F(ProjectLife, AForeignProjectFileIsLeftAlone)
{
    create();
    write(place.file, "[Project]\nname=1\n");
    const StoreResult opening = manager.openProject(place);
    ASSERT_TRUE(opening.isDone);
    EXPECT_TRUE(opening.message.contains(place.file)) << opening.message.toStdString();
    ASSERT_TRUE(manager.saveProject(place).isDone);
    EXPECT_EQ(content(place.file), "[Project]\nname=1\n");
}

TEST_F(ProjectLife, AFileWithTwoDotsIsSavedUnderItsOwnName)
{
    create();
    const QString renamed = place.folder + QStringLiteral("/测区 1.old.kelx");
    ASSERT_TRUE(QFile::rename(place.file, renamed));
    ASSERT_TRUE(manager.openProject(ProjectPlace::ofFile(renamed)).isDone);
    manager.project().set("crew", "second");
    ASSERT_TRUE(manager.saveProject(ProjectPlace::in(place.folder, place.name)).isDone);
    EXPECT_TRUE(content(renamed).contains("second"));
    EXPECT_FALSE(QFile::exists(place.file));
}

TEST_F(ProjectLife, ParametersEndWithTheirProject)
{
    create();
    ASSERT_TRUE(manager.openProject(place).isDone);
    manager.qualityParameters().set("only_here", "1");
    manager.designParameters().set("only_here", "1");
    manager.clear();
    ASSERT_TRUE(manager.openProject(place).isDone);
    EXPECT_FALSE(manager.qualityParameters().contains("only_here"));
    EXPECT_FALSE(manager.designParameters().contains("only_here"));
    EXPECT_TRUE(manager.designParameters().contains("r_pt_dist"));
}

TEST_F(ProjectLife, AFolderThatCannotBeWrittenCanBeReadAndIsNotChanged)
{
    create();
    ASSERT_TRUE(manager.openProject(place).isDone);
    manager.surveyPoints().set(result("7"));
    ASSERT_TRUE(manager.saveProject(place).isDone);
    manager.clear();
    const QByteArray before = content(place.database());
    const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
    for (const QString& file : {place.database(), place.folder})
        ASSERT_TRUE(QFile::setPermissions(file, readOnly));
    {
        const OrdinaryUser user;
        const StoreResult opening = manager.openProject(place);
        EXPECT_TRUE(opening.isDone) << opening.message.toStdString();
        EXPECT_TRUE(opening.message.contains(QStringLiteral("cannot be saved")));
        EXPECT_EQ(manager.surveyPoints().pointCount(), 1U);
        manager.surveyPoints().set(result("8"));
        const StoreResult saving = manager.saveProject(place);
        EXPECT_FALSE(saving.isDone);
        EXPECT_FALSE(saving.message.isEmpty());
        EXPECT_TRUE(manager.isSaveOwed());
        EXPECT_EQ(manager.surveyPoints().pointCount(), 2U);
    }
    ASSERT_TRUE(QFile::setPermissions(place.folder, readOnly | QFile::WriteOwner));
    EXPECT_EQ(content(place.database()), before);
}

TEST(ProjectPlace, TakesFolderAndNameFromTheFile)
{
    const ProjectPlace place = ProjectPlace::ofFile(QStringLiteral("/a b/x/north.part.kelx"));
    EXPECT_EQ(place.folder, QStringLiteral("/a b/x"));
    EXPECT_EQ(place.name, QStringLiteral("north"));
    EXPECT_EQ(place.database(), QStringLiteral("/a b/x/north.db"));
    EXPECT_EQ(place.file, QStringLiteral("/a b/x/north.part.kelx"));
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
