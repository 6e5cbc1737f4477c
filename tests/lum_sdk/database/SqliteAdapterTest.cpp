#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/database/RecordSet.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

/// An open database with a table, on a path that needs quoting.
class SqliteAdapterTest : public testing::Test
{
protected:
    SqliteAdapterTest()
    {
        EXPECT_TRUE(db->open((lum::databaseConnection(path) + ",create=1,busyTimeout=50").c_str()));
        EXPECT_TRUE(db->execute("create table \"odd \"\" name\" (\"a b\" TEXT unique, n INTEGER)"));
    }
    ~SqliteAdapterTest() override { extensible_factory_release_IDBAdapter(db); }

    static basalt::Dictionary record(std::string_view text, std::string_view number)
    {
        basalt::Dictionary values;
        values.set("a b", text);
        values.set("n", number);
        return values;
    }
    std::string content()
    {
        RecordSet records;
        EXPECT_TRUE(db->select(kTable, nullptr, nullptr, records, "n")) << db->lastError();
        std::string all;
        for (std::size_t i = 0; i < records.size(); ++i)
            all += std::string(records[i].text("a b", "NULL")) + '/' +
                   std::string(records[i].text("n", "NULL")) + ' ';
        return all;
    }

    static constexpr const char* kTable = "odd \" name";
    TestFolder folder;
    std::string path = folder.path("a, \"b\" 测.db").toStdString();
    IDBAdapter* db = extensible_factory_get_IDBAdapter("sqlite");
};

} // namespace

TEST_F(SqliteAdapterTest, BindsValuesAndQuotesNames)
{
    const std::string_view hostile("x'); drop table t; --\0\"", 23);
    EXPECT_TRUE(db->insert(kTable, nullptr, record(hostile, "1")));
    EXPECT_TRUE(db->insert(kTable, "n", record("left out", "2")));
    EXPECT_TRUE(db->insert(kTable, "a b, n", record("", "3")));

    EXPECT_EQ(content(), std::string(hostile) + "/1 NULL/2 /3 ");
    EXPECT_EQ(db->lastInsertId(), 3);
    EXPECT_EQ(db->columns(kTable), (std::vector<std::string>{"a b", "n"}));
}

TEST_F(SqliteAdapterTest, ChangesAndSelectsOnlyTheRowsThatMeetTheCondition)
{
    for (const char* number : {"3", "1", "2"})
        db->insert(kTable, nullptr, record(std::string("p") + number, number));
    RecordSet records;
    ASSERT_TRUE(
        db->select(kTable, std::vector<std::string>{"n"}, "n < 3", records, "n desc", 1, 1));
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].text("n"), "1");
    EXPECT_FALSE(records[0].contains("a b"));

    EXPECT_TRUE(db->update(kTable, "a b", record("new", "99"), "n = 2"));
    EXPECT_TRUE(db->replace(kTable, nullptr, record("p3", "30")));
    EXPECT_EQ(content(), "p1/1 new/2 p3/30 ");
    EXPECT_TRUE(db->remove(kTable, "n > 1"));
    EXPECT_EQ(db->rowCount(kTable, nullptr), 1);
    EXPECT_TRUE(db->remove(kTable, nullptr));
    EXPECT_EQ(db->rowCount(kTable, nullptr), 0);
}

TEST_F(SqliteAdapterTest, SaysWhyInTheDatabasesWords)
{
    db->insert(kTable, nullptr, record("twice", "1"));
    EXPECT_FALSE(db->insert(kTable, nullptr, record("twice", "2")));
    EXPECT_NE(db->lastError().find("UNIQUE constraint failed"), std::string::npos);
    const auto rows = db->bulkInsert(kTable, "a b,n");
    const std::string_view values[] = {"twice", "3"};
    EXPECT_FALSE(rows->add(values));
    EXPECT_NE(db->lastError().find("UNIQUE constraint failed"), std::string::npos);
    EXPECT_EQ(db->bulkInsert("nowhere", nullptr), nullptr);
    RecordSet records;
    EXPECT_FALSE(db->select("nowhere", nullptr, nullptr, records));
    EXPECT_EQ(db->lastError(), "no such table: nowhere");
    EXPECT_EQ(db->rowCount("nowhere", nullptr), -1);
    db->close();
    EXPECT_FALSE(db->execute("select 1"));
    EXPECT_FALSE(db->lastError().empty());
}

TEST_F(SqliteAdapterTest, AVisitorThatThrowsEndsTheReading)
{
    db->insert(kTable, nullptr, record("kept", "1"));
    const auto visit = [](const IDictionary&) -> bool { throw std::runtime_error("enough"); };
    EXPECT_THROW(db->forEachRow("select * from sqlite_master", visit), std::runtime_error);
    EXPECT_TRUE(db->execute("drop table \"odd \"\" name\"")) << "no statement may be under way";
}
