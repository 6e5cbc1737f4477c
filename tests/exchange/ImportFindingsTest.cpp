#include "CsvFixture.h"
#include "exchange/CsvHead.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/FiledRows.h"
#include "exchange/ImportFindingsModel.h"
#include "exchange/SurveyCsvReader.h"
#include "tests/support/Literals.h"

#include <QCoreApplication>
#include <QTextCodec>
#include <QTranslator>

namespace {

using Findings = ImportSummary::Findings;

/// "LINE_OF_FILE LINE/POINT; ..."
std::string placesOf(const Findings& findings)
{
    std::string text;
    for (const Findings::Place& place : findings.first)
        text +=
            std::to_string(place.line) + ' ' + place.point.line + '/' + place.point.point + "; ";
    return text;
}

class ImportFindings : public CsvFixture
{
protected:
    bool readDesign(const QByteArray& text)
    {
        return readDesignCsv(file(text), design, progress, summary).isDone();
    }
    bool readSurvey(const QByteArray& text)
    {
        return readSurveyCsv(file(text), survey, progress, summary).isDone();
    }

    DesignPoints design;
    SurveyPoints survey;
};

} // namespace

TEST_F(ImportFindings, ReplacedPointsStandWithTheRowThatCounts)
{
    for (const char* number : {"1", "2", "3"})
        design.set({"L", number, 1, 1, 1, 1, 1, 1});
    ASSERT_TRUE(readDesign("3,L,2,2,2,2,1,1\n" // replaced again below
                           "new,L,2,2,2,2,1,1\n"
                           "1,M,2,2,2,2,1,1\n" // of another line
                           "1,L,2,2,2,2,1,x\n" // skipped
                           "2,L,2,2,2,2,1,1\n"
                           "3,L,9,2,2,2,1,1\n"
                           "new,L,2,2,2,2,1,1\n"));
    EXPECT_EQ(placesOf(summary.replaced), "6 L/3; 5 L/2; ");
    EXPECT_EQ(placesOf(summary.repeated), "6 L/3; 7 L/new; ");
    EXPECT_EQ(placesOf(summary.skipped), "4 L/1; ");
    EXPECT_EQ(summary.replaced.count, 2U);
    EXPECT_EQ(summary.pointsReplaced, 2U);
    EXPECT_EQ(summary.pointsRepeated, summary.repeated.count);
    EXPECT_EQ(summary.firstLine, "L");
}

TEST_F(ImportFindings, AllAreCountedAndTheFirstThousandKept)
{
    QByteArray text;
    for (int i = 0; i < 3000; ++i) {
        design.set({"L", std::to_string(i), 1, 1, 1, 1, 1, 1});
        text += QByteArray::number(i) + ",L,1,1,1,1,1,1\nbad," + QByteArray::number(i) + "\n";
    }
    text += "0,L,5,1,1,1,1,1\n";
    ASSERT_TRUE(readDesign(text));
    for (const Findings* findings : {&summary.replaced, &summary.skipped}) {
        EXPECT_EQ(findings->count, 3000U);
        EXPECT_EQ(findings->first.size(), 1000U);
    }
    EXPECT_EQ(summary.replaced.first[0].line, 6001U) << "the last row of the point";
    EXPECT_EQ(summary.replaced.first[1].line, 3U);
    EXPECT_EQ(ImportFindingsModel(summary).rowCount(), 2001); // with the repeated row
    EXPECT_LT(summary.toText().count(QLatin1Char('\n')), 12);
}

TEST_F(ImportFindings, APlaceHasTheNameThatItsPointHasGot)
{
    ASSERT_TRUE(readSurvey("line num,point num,north\n"
                           "1001,C10012034,x\n"
                           "1001,C10012034,1\n"
                           "1001,C10012034,y\n"
                           ",7,z\n"
                           ",,z\n"));
    EXPECT_EQ(placesOf(summary.misread), "2 1001/C10012034_0; 4 1001/C10012034_2; 5 EmptyLine/7; ");
    EXPECT_EQ(placesOf(summary.skipped), "6 /; ");
    EXPECT_EQ(summary.repeated.count + summary.replaced.count, 0U);
    const ImportFindingsModel model(summary);
    const QModelIndex second = model.index(2, 0); // behind the skipped line
    EXPECT_EQ(second.data(ImportFindingsModel::kPointNumber).toString(), "C10012034_2"_q);
    EXPECT_EQ(second.siblingAtColumn(3).data().toString(), "C10012034"_q);
}

TEST_F(ImportFindings, TheBeginningOfAFileTellsWhatItHolds)
{
    using Kind = CsvHead::Kind;
    int argc = 0;
    const QCoreApplication application(argc, nullptr); // whose folder has the catalogues
    QTranslator chinese;
    ASSERT_TRUE(chinese.load(QStringLiteral(CHINESE_CATALOGUE)));
    const auto translated = [&](const char* context, const char* text) {
        return chinese.translate(context, text).toUtf8();
    };
    const QByteArray surveyHeading =
        translated("SurveyColumns", "point num") + ",x," + translated("SurveyColumns", "line num");
    const auto in = [](const char* codec, const QByteArray& text) {
        return QTextCodec::codecForName(codec)->fromUnicode(QString::fromUtf8(text));
    };
    struct Case
    {
        const char* name;
        QByteArray text;
        Kind kind;
    };
    const QByteArray row = "1001,L10,100.0,200.0,30.0,45.0,1,0";
    for (const auto& [name, text, kind] :
         {Case{"English results", "a note\n\npoint num, line num ,north\n1,2,3\n", Kind::Survey},
          {"Chinese results", surveyHeading, Kind::Survey},
          {"GB18030", in("GB18030", surveyHeading + "\n测线,测量,1\n"), Kind::Survey},
          {"UTF-16", in("UTF-16", surveyHeading + "\r\n"), Kind::Survey},
          {"a mark", "\xEF\xBB\xBF" + surveyHeading, Kind::Survey},
          {"a design heading", "point_num,line_num,north,east,elevation,azimuth,type,status\n",
           Kind::Design},
          {"a design row", row + "\r\n", Kind::Design},
          {"an exported row", "1,L,1.0,2.0,3.0,1,45.5,1,0", Kind::Design},
          {"a mark instead of a type", "1,L,1,2,3,45,R,0\n", Kind::Unknown},
          {"semicolons", "point num;line num\n", Kind::Unknown},
          {"far behind", QByteArray("x\n").repeated(500000) + row, Kind::Unknown},
          {"a huge line", QByteArray("测").repeated(500000), Kind::Unknown}}) {
        const auto head = readCsvHead(file(text));
        ASSERT_TRUE(head) << name;
        EXPECT_EQ(head->kind, kind) << name;
        EXPECT_FALSE(head->lines.isEmpty()) << name;
        EXPECT_LE(head->lines.size(), 3) << name;
    }
    for (const QByteArray& nothing : {QByteArray(), QByteArray("\r\n \n")})
        EXPECT_FALSE(readCsvHead(file(nothing)));
    EXPECT_FALSE(readCsvHead(folder.path()));
    EXPECT_FALSE(readCsvHead(folder.path("none.csv")));
}
