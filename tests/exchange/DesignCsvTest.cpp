#include "CsvFixture.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"

#include <QDir>

namespace {

class DesignCsv : public CsvFixture
{
protected:
    bool read(const QByteArray& text)
    {
        return readDesignCsv(file(text), points, progress, summary).isDone();
    }
    Outcome write(const QStringList& lines)
    {
        return writeDesignCsv(path(), points, lines, false, progress);
    }

    DesignPoints points;
};

} // namespace

TEST_F(DesignCsv, HugeLinesAndFieldsAreLines)
{
    QByteArray text(20 * 1000 * 1000, ',');
    text += '\n' + QByteArray(3000000, 'x') + "\nA,L,1,2,3,4,5,6\n";
    text += "B,L," + QByteArray(1000000, '1') + ",2,3,4,5,6\n";
    text += "C," + QByteArray(1000000, 'n') + ",1,2,3,4,5,6," + QByteArray(1000000, ',') + "\n";
    text += QByteArray("D\0,L,1\0,2,3,4,5,6\nE\0,L,1,2,3,4,5,6", 34);
    ASSERT_TRUE(read(text));
    EXPECT_EQ(points.pointCount(), 3U);
    EXPECT_EQ(summary.skipped.count, 3U) << "the first passes for a heading";
    EXPECT_NE(points.find("L", std::string_view("E\0", 2)), nullptr);
    EXPECT_NE(points.find(std::string(1000000, 'n'), "C"), nullptr);
}

TEST_F(DesignCsv, ProgressFollowsTheAcceptedLines)
{
    ASSERT_TRUE(read("A,L,1,2,3,4,5,6\nskipped\nB,L,1,2,3,4,5,6\n"));
    EXPECT_EQ(heard.payloads(),
              (std::vector<std::string>{"text=Import Design Data,value=33.3333,is_exec=0",
                                        "text=Import Design Data,value=100,is_exec=0", "show=0"}));
    heard.events.clear();
    QByteArray many;
    for (int i = 0; i < 1000; ++i)
        many += i % 25 == 0 ? "skipped\n" : "A,L,1,2,3,4,5,6\n";
    ASSERT_TRUE(read(many));
    // One report for each hundredth of the lines, and the end.
    EXPECT_EQ(heard.events.front().payload, "text=Import Design Data,value=1,is_exec=0");
    EXPECT_EQ(heard.events.size(), 101U);
}

TEST_F(DesignCsv, AFileThatCannotBeWrittenStaysAsItWas)
{
    for (int i = 0; i < 20000; ++i)
        points.set({"L", std::to_string(i), 1, 2, 3, 4, 5, 0});
    const QString name = file("before");
    {
        const SmallFiles limit(300000);
        EXPECT_TRUE(write({"L"_q}).text().startsWith("Cannot write \"%1\": "_q.arg(name)));
    }
    EXPECT_EQ(TestFolder::read(name), "before");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1); // nothing lies beside it
}
