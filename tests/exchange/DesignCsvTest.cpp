#include "CsvFixture.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignCsvWriter.h"
#include "tests/support/SmallFiles.h"

#include <QDir>

#include <tuple>

namespace {

class DesignCsv : public CsvFixture
{
protected:
    bool read(const QByteArray& text)
    {
        return readDesignCsv(file(text), points, progress, summary).isDone();
    }
    Outcome write(const QStringList& lines, bool onlyUnsurveyed = false)
    {
        return writeDesignCsv(path(), points, lines, onlyUnsurveyed, progress);
    }

    DesignPoints points;
};

constexpr const char* kHeading =
    "point_num,line_num,north,east,elevation,design code,azimuth,type,status\n";

} // namespace

TEST_F(DesignCsv, OnlyLinesOfEightProperFieldsAreTaken)
{
    for (const char* line :
         {"1001,L10,100.0,200.0,30.0,45.0,1,0", "1001,L10,100,200,30,45,1,0,x,,y",
          "1001,L10, 100 ,\t200,30, 45,1 , 0", "1001,L10,100,5,200,5,30,5,45,1,0"}) {
        ASSERT_TRUE(read(QByteArray("P,L,1,2,3,4,5,6\n") + line));
        EXPECT_EQ(summary.linesSkipped, 0U) << line;
    }
    for (const char* line :
         {"1001,L10,100,200,30,45,1", "1001,L10,100,200,30,45,1.5,0",
          "1001,L10,100,200,30,45,1,0.0", "1001,L10,12abc,200,30,45,1,0",
          "1001,L10,0x10,200,30,45,1,0", "1001,L10,100,nan,30,45,1,0",
          "1001,L10,100,200,1e999,45,1,0", "1001,L10,100,200,30,,1,0", "1001;L10;100;200;30;45;1;0",
          "1001\tL10\t100\t200\t30\t45\t1\t0", "\"1001\",\"L10\",\"100\",200,30,45,1,0",
          "1001,L10,100,200,30,45,2147483648,0", "1,L10,1,2,3,1,45.000000,1,0"}) {
        points.clear();
        ASSERT_TRUE(read(QByteArray("P,L,1,2,3,4,5,6\n") + line));
        EXPECT_EQ(points.pointCount(), 1U) << line;
        EXPECT_EQ(summary.linesSkipped, 1U) << line;
    }
}

TEST_F(DesignCsv, FieldsGoWhereTheyBelong)
{
    ASSERT_TRUE(read(" 1001 ,L10,100.5,200.25,-30,45,1,7\n"));
    const DesignPoint* const point = points.find("L10", " 1001 ");
    ASSERT_NE(point, nullptr);
    EXPECT_EQ(std::tie(point->north, point->east, point->elevation, point->azimuth),
              std::tuple(100.5, 200.25, -30, 45));
    EXPECT_EQ(std::tie(point->type, point->status), std::tuple(1, 7));
}

TEST_F(DesignCsv, AnImportIsMergedAndTheLastLineWins)
{
    points.set({"L1", "A", 1, 0, 0, 0, 0, 0});
    points.set({"L1", "B", 1, 0, 0, 0, 0, 0});
    ASSERT_TRUE(read("A,L1,2,0,0,0,0,0\nC,L2,3,0,0,0,0,0\nC,L2,4,0,0,0,0,0"));
    EXPECT_EQ(points.find("L1", "A")->north, 2);
    EXPECT_EQ(points.find("L1", "B")->north, 1);
    EXPECT_EQ(points.find("L2", "C")->north, 4);
    EXPECT_EQ(summary.linesRead, 3U);
    EXPECT_EQ(summary.pointsNew, 1U);
    EXPECT_EQ(summary.pointsReplaced, 1U);
    EXPECT_EQ(summary.pointsRepeated, 1U);
    ASSERT_TRUE(read("A,L1,5,0,0,0,0,0\nA,L1,6,0,0,0,0,0\n"));
    EXPECT_EQ(summary.pointsReplaced, 1U);
    EXPECT_EQ(summary.pointsRepeated, 1U);
}

TEST_F(DesignCsv, EncodingsAndLineEndsAreRecognised)
{
    const QByteArray gb18030 = "\xB2\xE2\xCF\xDF"; // 测线
    ASSERT_TRUE(read("\xEF\xBB\xBF"
                     "A,测线,1,2,3,4,5,6\r\nB,测线,1,2,3,4,5,6"));
    ASSERT_TRUE(read("C," + gb18030 + ",1,2,3,4,5,6\nD,plain,1,2,3,4,5,6\r\n"));
    ASSERT_TRUE(read("\xEF\xBB\xBF"
                     "E,broken \xFF,1,2,3,4,5,6\n"));
    EXPECT_NE(points.find("测线", "A"), nullptr);
    EXPECT_NE(points.find("测线", "B"), nullptr);
    EXPECT_NE(points.find("测线", "C"), nullptr);
    EXPECT_NE(points.find("plain", "D"), nullptr);
    EXPECT_NE(points.find("broken \xEF\xBF\xBD", "E"), nullptr);
    EXPECT_EQ(points.find("测线", "B")->status, 6);
}

TEST_F(DesignCsv, ASkippedLineIsNamedWithItsReason)
{
    QByteArray text = "point,line,north,east,elevation,azimuth,type,status\n\nA,L\n"
                      "A,L,1,x\x01y,3,4,5,6\nA,L,1,2,3,4,5,6\n";
    for (int i = 0; i < 6; ++i)
        text += "A,L,1,2,3,4,1.5,6\n";
    ASSERT_TRUE(read(text));
    EXPECT_EQ(summary.linesRead, 11U);
    EXPECT_EQ(summary.linesSkipped, 8U);
    EXPECT_EQ(summary.toText(),
              QLatin1Char('"') + summary.path +
                  QStringLiteral("\": lines read: 11, points added: 1, points replaced: 0, "
                                 "lines skipped: 8.\n"
                                 "Line 3: There are fewer than 8 fields.\n"
                                 "Line 4: Field 4, \"x\uFFFDy\", is no number.\n"
                                 "Line 6: Field 7, \"1.5\", is no integer.\n"
                                 "Line 7: Field 7, \"1.5\", is no integer.\n"
                                 "Line 8: Field 7, \"1.5\", is no integer.\n"
                                 "Further lines skipped: 3."));
}

TEST_F(DesignCsv, HugeLinesAndFieldsAreLines)
{
    QByteArray text(20 * 1000 * 1000, ',');
    text += '\n' + QByteArray(3000000, 'x') + "\nA,L,1,2,3,4,5,6\n";
    text += "B,L," + QByteArray(1000000, '1') + ",2,3,4,5,6\n";
    text += "C," + QByteArray(1000000, 'n') + ",1,2,3,4,5,6," + QByteArray(1000000, ',') + "\n";
    text += QByteArray("D\0,L,1\0,2,3,4,5,6\nE\0,L,1,2,3,4,5,6", 34);
    ASSERT_TRUE(read(text));
    EXPECT_EQ(points.pointCount(), 3U);
    EXPECT_EQ(summary.linesSkipped, 3U) << "the first passes for a heading";
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
    ASSERT_TRUE(read(""));
    EXPECT_EQ(heard.payloads(), std::vector<std::string>{"show=0"});
    heard.events.clear();
    QByteArray many;
    for (int i = 0; i < 1000; ++i)
        many += i % 25 == 0 ? "skipped\n" : "A,L,1,2,3,4,5,6\n";
    ASSERT_TRUE(read(many));
    // One report for each hundredth of the lines, and the end.
    EXPECT_EQ(heard.events.front().payload, "text=Import Design Data,value=1,is_exec=0");
    EXPECT_EQ(heard.events.size(), 101U);
}

TEST_F(DesignCsv, PointsAreWrittenLineByLine)
{
    points.set({"L1", "9", 1234.56789, -0.00001, 3, 12.3456789, 1, 0});
    points.set({"L1", "10", 1, 2, 3, 4, 0, 2});
    points.set({"L2", "a\nb", 1, 2, 3, 4, 0, 0});
    EXPECT_TRUE(
        write({QStringLiteral("L2"), QStringLiteral("none"), QStringLiteral("L1")}).isDone());
    EXPECT_EQ(TestFolder::read(path()), QByteArray(kHeading) +
                                            "a b,L2,1.0000,2.0000,3.0000,a b,4.000000,0,0\n"
                                            "10,L1,1.0000,2.0000,3.0000,10,4.000000,0,2\n"
                                            "9,L1,1234.5679,-0.0000,3.0000,9,12.345679,1,0\n");
    EXPECT_EQ(heard.payloads(),
              (std::vector<std::string>{"text=Export Design Data,value=33.3333,is_exec=0",
                                        "text=Export Design Data,value=100,is_exec=0", "show=0"}));
    EXPECT_TRUE(write({QStringLiteral("L1")}, true).isDone());
    EXPECT_EQ(TestFolder::read(path()),
              QByteArray(kHeading) + "9,L1,1234.5679,-0.0000,3.0000,9,12.345679,1,0\n");
}

TEST_F(DesignCsv, AFileThatCannotBeWrittenStaysAsItWas)
{
    for (const QString& name : {folder.path(), folder.path("no/f.csv")}) {
        const Outcome failed = writeDesignCsv(name, points, {}, false, progress);
        EXPECT_FALSE(failed.isDone());
        EXPECT_TRUE(failed.text().startsWith(QStringLiteral("Cannot write \"%1\": ").arg(name)));
    }
    for (int i = 0; i < 20000; ++i)
        points.set({"L", std::to_string(i), 1, 2, 3, 4, 5, 0});
    const QString name = file("before");
    {
        const SmallFiles limit(300000);
        EXPECT_FALSE(write({QStringLiteral("L")}).isDone());
    }
    EXPECT_EQ(TestFolder::read(name), "before");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1); // nothing lies beside it
}
