#include "project/SurveyDatabase.h"

#include "exchange/ImportSummary.h"
#include "lum_sdk/events/EventManager.h"
#include "protocol/Events.h"
#include "tests/project/ExpectOutcome.h"
#include "tests/project/OrdinaryUser.h"
#include "tests/project/TestProject.h"
#include "tests/support/TestFolder.h"

#include <QDir>

#include <map>

namespace {

class SurveyDatabase : public testing::Test
{
protected:
    SurveyDatabase()
    {
        EXPECT_TRUE(makeDatabase(path.toStdString()));
        expectDone(theirs.save(path.toStdString()));
    }

    Outcome read()
    {
        ProgressReporter progress(&events);
        return readSurveyDatabase(path, {points, own, handler}, progress, summary);
    }
    /// The database's folder: its files and what is in them.
    [[nodiscard]] std::map<QString, QByteArray> content() const
    {
        std::map<QString, QByteArray> files;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files))
            files[name] = TestFolder::read(folder.path(name));
        return files;
    }
    [[nodiscard]] bool open(DBAdapter& database, const char* options = "") const
    {
        return database.open((lum::databaseConnection(path.toStdString()) + options).c_str());
    }

    TestFolder folder;
    QString path = folder.path("theirs 测.db");
    TestProject theirs = TestProject::made(4, 100, "theirs"); // 80 results
    EventManager events;
    SurveyPoints points;
    basalt::Dictionary own = theirs.coordParameters;
    OtherSystemHandler handler;
    ImportSummary summary;
};

} // namespace

TEST_F(SurveyDatabase, OfAnotherSystemGoesToTheHandlerAlone)
{
    own.set("false_east", "500000");
    std::size_t seen = 0;
    DBAdapter database;
    ASSERT_TRUE(open(database) &&
                database.execute("insert into ExplorationResultItem (line_num, point_num) values "
                                 "('1', 'C12345678'), ('1', 'C12345678'), ('', '9')",
                                 0));
    database.close();
    handler = [&](const QString& from, const SurveyRecords& other) {
        EXPECT_EQ(from, path);
        EXPECT_EQ(other.coordParameters.text("ellipsoid_a"), "6378137");
        seen = other.records.size();
        EXPECT_EQ(other.records[0].pointNumber, "10005000");
        EXPECT_EQ(other.records[81].pointNumber, "C12345678");
        EXPECT_EQ(other.records[82].lineNumber, "");
    };
    EXPECT_TRUE(read().text().isEmpty()) << "the user has been told";
    EXPECT_EQ(seen, 83U) << "every row, as it stands";
    EXPECT_TRUE(points.empty());
    EXPECT_EQ(summary.pointsNew, 0U);
    ASSERT_TRUE(open(database) && database.execute("delete from CoordinateSystemItem", 0));
    expectDone(read());
    EXPECT_EQ(points.pointCount(), 83U) << "nothing to compare with";
}

TEST_F(SurveyDatabase, IsOnlyReadAlsoWhileAnotherProgramHasIt)
{
    const auto before = content();
    DBAdapter other;
    ASSERT_TRUE(open(other) && other.execute("begin; select count(*) from SurveyLineItem", 0));
    expectDone(read());
    EXPECT_EQ(points.pointCount(), 80U);
    EXPECT_EQ(content(), before);
    points.clear();
    ASSERT_TRUE(open(other, ",exclusive=1"));
    expectFailure(read(), "another program is using it");
    EXPECT_TRUE(points.empty());
    other.close();
    EXPECT_EQ(content(), before);
}

/// A write that was cut off is undone in a copy; changes that stand in a log are read.
TEST_F(SurveyDatabase, IsReadAsItWasSavedAndLeftAlone)
{
    const OrdinaryUser user; // who cannot write to a file that is only read
    const QString whole = path;
    /// Goes on with a copy, as it is left when the power goes.
    const auto cutOff = [&](const char* name, const char* beside) {
        path = folder.path(name);
        ASSERT_TRUE(QFile::copy(whole, path));
        ASSERT_TRUE(QFile::copy(whole + QLatin1String(beside), path + QLatin1String(beside)));
        QFile::setPermissions(path, QFile::ReadOwner);
    };
    const auto expectRead = [&](std::size_t count) {
        const auto before = content();
        points.clear();
        expectDone(read());
        EXPECT_EQ(points.pointCount(), count);
        EXPECT_EQ(content(), before);
    };
    DBAdapter writer;
    ASSERT_TRUE(open(writer) &&
                writer.execute("pragma cache_size=1; begin; delete from ExplorationResultItem", 0));
    cutOff("journal.db", "-journal");
    expectRead(80);

    path = whole;
    ASSERT_TRUE(open(writer) && writer.execute("pragma journal_mode=wal;"
                                               "delete from ExplorationResultItem "
                                               "where line_num <> '1000'",
                                               0));
    cutOff("log.db", "-wal");
    expectRead(20);
}
