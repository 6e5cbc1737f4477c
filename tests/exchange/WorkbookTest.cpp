#include "exchange/workbook/Workbook.h"

#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WorkbookReader.h"

#include <QDir>

#include <clocale>
#include <cmath>
#include <limits>

namespace {

using Form = SheetColumn::Form;

class WorkbookFile : public testing::Test
{
protected:
    WorkbookFile() { std::setlocale(LC_ALL, ""); } // numbers with a comma
    ~WorkbookFile() override { std::setlocale(LC_ALL, "C"); }

    [[nodiscard]] QString path() const { return m_folder.path("表 1.xlsx"); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] WorkbookReader read() const { return WorkbookReader(path()); }

    TestFolder m_folder;
    WorkbookInfo m_info{"A & B"_q, "测区"_q, "Li"_q};
};

TEST_F(WorkbookFile, IsReadBackCellByCell)
{
    Workbook book(path(), m_info);
    Sheet& sheet = book.addSheet("Points"_q, {{"Line"_q},
                                              {"dE (m)"_q, Form::Number, 3},
                                              {"Share"_q, Form::Percent, 1},
                                              {"Time"_q, Form::Time}});
    sheet.text("=1+1 <&> 测线").number(-0.1234567).number(0.125).time(1700000000000).endRow();
    sheet.text("bad \xFF, \x01 and \xEF\xBF\xBF").number(std::nan("")).blank().time(0).endRow();
    sheet.text("").number(std::numeric_limits<double>::infinity()).integer(-1234567890123).endRow();
    sheet.number(1).number(2).number(3).time(std::numeric_limits<std::int64_t>::min() / 2).endRow();
    ASSERT_TRUE(book.commit().isDone());

    const WorkbookReader reader = read();
    EXPECT_EQ(reader.sheets(), QStringList{"Points"_q});
    const auto rows = reader.rows("Points"_q);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0], (QStringList{"Line"_q, "dE (m)"_q, "Share"_q, "Time"_q}));
    EXPECT_EQ(rows[1][0], "=1+1 <&> 测线"_q);
    EXPECT_EQ(rows[1][1], "-0.1234567"_q);
    EXPECT_EQ(rows[1][2], "0.125"_q);
    // 2023-11-15 06:13:20 in Shanghai, and day 45245 since 1900.
    EXPECT_NEAR(rows[1][3].toDouble(), 45245 + (6 * 3600 + 13 * 60 + 20) / 86400.0, 1e-9);
    EXPECT_TRUE(rows[2][0].startsWith("bad "_q)) << rows[2][0].toStdString();
    EXPECT_EQ(rows[2].mid(1), (QStringList{{}, {}, "25569.33333333333"_q}));
    EXPECT_EQ(rows[3], (QStringList{{}, {}, "-1234567890123"_q, {}}));
    EXPECT_EQ(rows[4], (QStringList{"1"_q, "2"_q, "3"_q, {}}));
    const QByteArray properties = reader.part("docProps/core.xml"_q);
    EXPECT_TRUE(properties.contains("A &amp; B") && properties.contains("测区"));
}

TEST_F(WorkbookFile, CutsTextWhereExcelEndsIt)
{
    Workbook book(path(), m_info);
    Sheet& sheet = book.addSheet("S"_q, {{"Text"_q}});
    const QString pair = "\U00020000"_q; // two of the characters that Excel counts
    sheet.text(QString(32766, QLatin1Char('a')) + "测x"_q).endRow();
    sheet.text(QString(32766, QLatin1Char('a')) + pair).endRow();
    sheet.text("\xEF\xBB\xBF").endRow(); // a mark of order alone, of which nothing is left
    ASSERT_TRUE(book.commit().isDone());
    const auto rows = read().rows("S"_q);
    EXPECT_EQ(rows[1][0], QString(32766, QLatin1Char('a')) + "测"_q);
    EXPECT_EQ(rows[2][0], QString(32766, QLatin1Char('a')));
    EXPECT_EQ(rows[3].value(0), QString());
}

TEST_F(WorkbookFile, NamesSheetsAsExcelTakesThem)
{
    const std::pair<QString, QString> cases[] = {
        {"a[1]:*?/\\"_q, "a_1______"_q},
        {"A[1]:*?/\\"_q, "A_1______ (2)"_q}, // the same but for case
        {"'quoted'"_q, "quoted"_q},
        {""_q, "_"_q},
        {QString(40, QChar(0x6D4B)), QString(31, QChar(0x6D4B))},
        {QString(50, QChar(0x6D4B)), QString(27, QChar(0x6D4B)) + " (2)"_q},
    };
    Workbook book(path(), m_info);
    QStringList expected;
    for (const auto& [name, taken] : cases) {
        book.addSheet(name, {{"Text"_q}});
        expected << taken;
    }
    ASSERT_TRUE(book.commit().isDone());
    EXPECT_EQ(read().sheets(), expected);
}

TEST_F(WorkbookFile, GoesOnOnTheNextSheetWithItsHeadings)
{
    Workbook book(path(), m_info);
    Sheet& sheet = book.addSheet("S"_q, {{"N"_q, Form::Number}});
    sheet.colourAbove(0, 10);
    for (int row = 1; row <= 1048576; ++row)
        sheet.integer(row).endRow();
    book.addSheet("Last"_q, {{"N"_q}});
    ASSERT_TRUE(book.commit().isDone());
    const WorkbookReader reader = read();
    EXPECT_EQ(reader.sheets(), (QStringList{"S"_q, "S (2)"_q, "Last"_q}));
    EXPECT_EQ(reader.rows("S (2)"_q), (std::vector<QStringList>{{"N"_q}, {"1048576"_q}}));
    EXPECT_EQ(reader.attributes("S (2)"_q, "conditionalFormatting", "sqref"), QStringList{"A2"_q});
    EXPECT_EQ(sheet.rowCount(), 1048576U);
}

TEST_F(WorkbookFile, MakesColumnsWideEnoughWithRulesAndFilters)
{
    Workbook book(path(), m_info);
    Sheet& sheet = book.addSheet(
        "S"_q, {{"N"_q, Form::Number, 4}, {"Name"_q}, {"T"_q, Form::Time}, {"Decision"_q}},
        {"Title"_q, {{"A"_q, 1}, {"B"_q, 3}}, 2});
    sheet.number(1).text("abc").time(1700000000000).endRow();
    sheet.number(-12345678.99996).text("十个汉字十个汉字十个").time(0).endRow();
    sheet.colourAbove(0, 0.5);
    sheet.colourBelow(0, -7.25, Sheet::Colour::Warning);
    sheet.colourText(1, "a\"b"_q);
    sheet.addPickList(3, {"keep"_q, "重测"_q});
    ASSERT_TRUE(book.commit().isDone());
    const WorkbookReader reader = read();
    const auto widths = reader.widths("S"_q);
    EXPECT_GE(widths.at(0), 14); // -12345679.0000
    EXPECT_GE(widths.at(1), 20);
    EXPECT_GE(widths.at(2), 19);
    EXPECT_EQ(reader.texts("S"_q, "formula"),
              (QStringList{"AND(ISNUMBER(A4),ABS(A4)>0.5)"_q, "AND(ISNUMBER(A4),A4<-7.25)"_q,
                           "B4=\"a\"\"b\""_q}));
    EXPECT_EQ(reader.attributes("S"_q, "conditionalFormatting", "sqref"),
              (QStringList{"A4:A5"_q, "B4:B5"_q}));
    EXPECT_EQ(reader.texts("S"_q, "formula1"), QStringList{"\"keep,重测\""_q});
    EXPECT_EQ(reader.attributes("S"_q, "mergeCell", "ref"), (QStringList{"A1:D1"_q, "B2:D2"_q}));
    EXPECT_EQ(reader.attributes("S"_q, "autoFilter", "ref"), QStringList{"A3:D5"_q});
    EXPECT_EQ(reader.attributes("S"_q, "pane", "topLeftCell"), QStringList{"C4"_q});
}

TEST_F(WorkbookFile, HasPagesWithTablesAndCharts)
{
    Workbook book(path(), m_info);
    Page& page = book.addPage("Summary"_q);
    Sheet& sheet = book.addSheet("Data"_q, {{"Day"_q}, {"N"_q, Form::Number}});
    sheet.text("a").integer(1).endRow();
    sheet.text("b").integer(2).endRow();
    page.addTitle("Report"_q);
    page.addChapter("Project"_q);
    page.addValue("Name"_q, QString(200, QChar(0x6D4B))); // five lines
    page.addValue("Count"_q, 5);
    page.addValue("Nothing"_q, std::nan(""));
    page.addNote("A note."_q);
    page.beginTable({{"Kind"_q}, {"N"_q, Form::Number}});
    page.text("R").integer(3).endRow();
    page.addCharts({{Chart::Kind::Bars, "C"_q, {{"s"_q, page.cells(0), page.cells(1)}}},
                    {Chart::Kind::Lines, "L"_q, {{"s"_q, sheet.cells(0), sheet.cells(1)}}}});
    ASSERT_TRUE(book.commit().isDone());
    const WorkbookReader reader = read();
    const auto rows = reader.rows("Summary"_q);
    ASSERT_EQ(rows.size(), 8U);
    EXPECT_EQ(rows[0][0], "Report"_q);
    EXPECT_EQ(rows[2][0], "Project"_q);
    EXPECT_EQ(rows[4].mid(0, 2), (QStringList{"Count"_q, "5"_q}));
    EXPECT_EQ(rows[5][0], "A note."_q);
    EXPECT_EQ(rows[7], (QStringList{"R"_q, "3"_q}));
    EXPECT_GE(reader.attributes("Summary"_q, "row", "ht").at(2).toDouble(), 5 * 12);
    EXPECT_EQ(reader.attributes("Summary"_q, "pageSetUpPr", "fitToPage"), QStringList{"1"_q});
    EXPECT_TRUE(reader.part("xl/charts/chart1.xml"_q).contains("<c:f>Summary!$B$8</c:f>"));
    EXPECT_TRUE(reader.part("xl/charts/chart2.xml"_q).contains("<c:f>Data!$B$2:$B$3</c:f>"));
}

TEST_F(WorkbookFile, OnASmallDiskFailsOnceAndLeavesTheOldFile)
{
    m_folder.write("表 1.xlsx", "old");
    // Full while rows are written, and at the end.
    for (const auto& [bytes, rows] : {std::pair(20000, 100000), {2000, 1}}) {
        {
            const SmallFiles disk(static_cast<rlim_t>(bytes));
            Workbook book(path(), m_info);
            Sheet& sheet = book.addSheet("S"_q, {{"N"_q, Form::Number}});
            for (int row = 0; row < rows; ++row)
                sheet.integer(row).endRow();
            const Outcome outcome = book.commit();
            EXPECT_EQ(outcome.kind(), Outcome::Kind::Failed);
            EXPECT_TRUE(outcome.text().contains(path())) << outcome.detail();
            EXPECT_EQ(outcome.text().count(QLatin1Char('\n')), 0);
        }
        EXPECT_EQ(files(), QStringList{"表 1.xlsx"_q});
        EXPECT_EQ(TestFolder::read(path()), "old");
    }
}

} // namespace
