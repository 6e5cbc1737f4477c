#include "CsvFixture.h"
#include "exchange/ExportColumns.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "model/SurveyColumns.h"

#include <QCoreApplication>
#include <QSet>
#include <QTranslator>

namespace {

SurveyPoint pointOf(const char* line, const char* number)
{
    SurveyPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
    return point;
}

/// Points with another value in every field that comes back.
SurveyPoints fullPoints()
{
    SurveyPoints points;
    for (int i = 0; i < 40; ++i) {
        SurveyPoint point = pointOf(i < 20 ? "1001" : "测线", ("P" + std::to_string(i)).c_str());
        double value = i * 0.37 - 7;
        std::int32_t count = 0;
        for (const SurveyColumn& column : surveyColumns()) {
            if (const auto* const real = std::get_if<double SurveyPoint::*>(&column.member))
                point.*(*real) = value += 1.00017;
            else if (const auto* const integer =
                         std::get_if<std::int32_t SurveyPoint::*>(&column.member))
                point.*(*integer) = ++count * i;
        }
        point.dateTime = 1700000000000LL + i * 86400000LL * 9;
        point.startTime = point.dateTime - 1500;
        point.endTime = -1000LL * i;
        point.rawOffset = 9007199254740993 - i;
        point.isResurvey = 0; // what is not read
        point.seaHeight = 0;
        point.ageOfDiff = i;
        point.remarks = "石头; \"rock\"";
        point.satDetail = "G12 R7";
        point.obstacle = "铁塔";
        points.set(std::move(point));
    }
    for (int i = 0; i < 3; ++i) {
        SurveyPoint check = pointOf("1001", "C10015000");
        check.pointNumber += '_' + std::to_string(i);
        check.north = i;
        points.set(std::move(check));
    }
    return points;
}

class SurveyCsv : public CsvFixture
{
protected:
    bool read(const QByteArray& text)
    {
        return readSurveyCsv(file(text), points, progress, summary).isDone();
    }
    QByteArray written(const QStringList& captions, int degreeFormat = 0)
    {
        QStringList lines;
        for (const auto& [number, line] : points)
            lines << QString::fromStdString(number);
        EXPECT_TRUE(
            writeSurveyCsv(path(), points, lines, {captions, degreeFormat}, progress).isDone());
        return TestFolder::read(path());
    }
    QByteArray written(const char* keys, int degreeFormat = 0)
    {
        return written(exportCaptions(QString::fromLatin1(keys).split(QLatin1Char(','))),
                       degreeFormat);
    }
    /// All points, written, read and written again.
    void expectSameAgain(int degreeFormat)
    {
        points = fullPoints();
        const QByteArray first = written(surveyCaptions(), degreeFormat);
        points.clear();
        EXPECT_TRUE(read(first));
        EXPECT_EQ(summary.linesSkipped + summary.fieldsMisread, 0U);
        EXPECT_EQ(points.pointCount(), 43U);
        EXPECT_EQ(written(surveyCaptions(), degreeFormat), first);
        EXPECT_EQ(first.count('\n'), 44);
    }
    /// One value of the only point of the heading "line num,point num,COLUMN".
    template <class Value>
    Value read(const char* column, const char* text, Value SurveyPoint::*member)
    {
        points.clear();
        EXPECT_TRUE(read(QByteArray("line num,point num,") + column + "\n1,2," + text + '\n'));
        return points.find("1", "2")->*member;
    }

    SurveyPoints points;
};

} // namespace

TEST_F(SurveyCsv, AnExportComesBackAsTheSameFile)
{
    expectSameAgain(0);
    expectSameAgain(1);
}

TEST_F(SurveyCsv, AChineseFileIsReadInChinese)
{
    int count = 0;
    const QCoreApplication application(count, nullptr);
    QTranslator chinese;
    ASSERT_TRUE(chinese.load(QStringLiteral(CHINESE_CATALOGUE)));
    ASSERT_TRUE(QCoreApplication::installTranslator(&chinese));
    const QStringList captions = surveyCaptions();
    EXPECT_EQ(QSet<QString>(captions.begin(), captions.end()).size(), captions.size())
        << "captions are distinct";
    expectSameAgain(1);
    EXPECT_TRUE(TestFolder::read(path()).startsWith("线号,点号,"));
    EXPECT_TRUE(TestFolder::read(path()).contains("度"));
    QCoreApplication::removeTranslator(&chinese);
}

TEST_F(SurveyCsv, EachValueIsWrittenInItsForm)
{
    SurveyPoint point = pointOf("7", "C12345678_12");
    point.latitude = 30.5;
    point.altitude = 1.1234567;
    point.north = 1.00006;
    point.ageOfDiff = 2.5;
    point.solutionType = 4;
    point.isResurvey = 1;
    points.set(std::move(point));
    const QStringList captions = exportCaptions(
        QStringLiteral("point_num,line_num,latitude,altitude,north,point_mark,age_of_diff,"
                       "measure_mode,solution_type,is_resurvey")
            .split(QLatin1Char(',')));
    EXPECT_EQ(written(captions + QStringList(QStringLiteral("unknown")), 1),
              "point num,line num,latitude,altitude,north,point mark,age of diff,measure mode,"
              "solution type,resurvey,unknown\n"
              "C12345678,7,30deg30min0.000sec,1.123457,1.0001,S,2.5,loft,fixed,1,\n");
}

TEST_F(SurveyCsv, EachTextIsReadByItsColumn)
{
    EXPECT_EQ(read("age of diff", "2.5", &SurveyPoint::ageOfDiff), 2);
    EXPECT_EQ(read("raw offset", "12.9", &SurveyPoint::rawOffset), 12);
    EXPECT_EQ(read("raw offset", "1e300", &SurveyPoint::rawOffset), 0);
    EXPECT_EQ(read("point mark", "S", &SurveyPoint::pointMark), 0);
    EXPECT_EQ(read("point mark", "x", &SurveyPoint::pointMark), 1);
    EXPECT_EQ(read("measure mode", "loft", &SurveyPoint::measureMode), 0);
    EXPECT_EQ(read("measure mode", "other", &SurveyPoint::measureMode), 1);
    EXPECT_EQ(read("solution type", "float", &SurveyPoint::solutionType), 5);
    EXPECT_EQ(read("north", " 12 ", &SurveyPoint::north), 12);
    for (const char* text : {"12abc", "nan", "1e999", "0x10", "-", "", "1;2"})
        EXPECT_EQ(read("north", text, &SurveyPoint::north), 0) << text;
    EXPECT_EQ(read("sat num", "12.0", &SurveyPoint::satelliteNumber), 0);
    EXPECT_EQ(read("time", "2024-07-01 12:00:00", &SurveyPoint::dateTime), 0);
    EXPECT_EQ(read("resurvey", "1", &SurveyPoint::isResurvey), 0);
    EXPECT_EQ(read("sea height", "5", &SurveyPoint::seaHeight), 0);
    EXPECT_EQ(read("remarks", "  a b ", &SurveyPoint::remarks), "a b");
}

TEST_F(SurveyCsv, FieldsThatCannotBeReadAreNamed)
{
    ASSERT_TRUE(read("line num,point num,north,latitude,solution type,time,sat num\n"
                     "L1,1,abc,30.5N,dgps,5/6/2024,12.0\nL1,2,,,,,\n"
                     "L1,3,1e999,0,unknow,2024/01/02 03:04:05,7\n"));
    EXPECT_EQ(points.pointCount(), 3U);
    EXPECT_EQ(summary.fieldsMisread, 6U);
    ASSERT_EQ(summary.misreadFields.size(), 5U);
    EXPECT_EQ(summary.misreadFields[2].line, 2U);
    EXPECT_EQ(summary.misreadFields[2].reason,
              QStringLiteral("solution type \"dgps\" cannot be read."));
    EXPECT_TRUE(summary.toText().contains(QStringLiteral("left empty: 6.")));
}

TEST_F(SurveyCsv, ManyMeasurementsOfOneCheckPointKeepTheirOrder)
{
    QByteArray text = "line num,point num,remarks\n";
    for (int i = 0; i < 13; ++i)
        text += "L,C12345678," + QByteArray::number(i) + '\n';
    ASSERT_TRUE(read(text));
    EXPECT_EQ(written("line_num,point_num,remarks"), text);
}

TEST_F(SurveyCsv, ColumnsStandInAnyOrder)
{
    ASSERT_TRUE(read("some text\nnorth,unknown, point num ,east,line num,north\n"
                     "1,x,P1,2,L1,3\n4,x,P2,5,L1\n"));
    EXPECT_EQ(points.find("L1", "P1")->north, 3) << "of a caption that stands twice the last";
    EXPECT_EQ(points.find("L1", "P1")->east, 2);
    EXPECT_EQ(points.find("L1", "P2")->north, 0) << "a missing field is empty";
    EXPECT_EQ(points.find("L1", "P2")->east, 5);
    EXPECT_EQ(summary.linesRead, 4U);
}

TEST_F(SurveyCsv, PointsAreFiledByTheirNumbers)
{
    const QByteArray text = "line num,point num,north\n,P1,1\nL1,C12345678,2\nL1,C12345678,3\n"
                            ",C12345678,4\nL1,C123,5\nL1,C123,6\nL1,,7\n\n";
    ASSERT_TRUE(read(text));
    EXPECT_EQ(points.find("EmptyLine", "P1")->north, 1);
    EXPECT_EQ(points.find("L1", "C12345678_0")->north, 2);
    EXPECT_EQ(points.find("L1", "C12345678_1")->north, 3);
    EXPECT_EQ(points.find("1234", "C12345678_0")->north, 4);
    EXPECT_EQ(points.find("L1", "C123")->north, 6);
    EXPECT_EQ(points.pointCount(), 5U);
    EXPECT_EQ(summary.pointsRepeated, 1U);
    EXPECT_EQ(summary.linesSkipped, 1U);
    EXPECT_EQ(summary.faults.at(0).line, 8U);
    EXPECT_EQ(written("line_num,point_num"),
              "line num,point num\n1234,C12345678\nEmptyLine,P1\nL1,C123\nL1,C12345678\n"
              "L1,C12345678\n");
    ASSERT_TRUE(read(text)); // over itself: check points are counted on
    EXPECT_EQ(points.find("L1", "C12345678_0")->north, 2);
    EXPECT_EQ(points.find("L1", "C12345678_3")->north, 3);
    EXPECT_EQ(summary.pointsNew, 3U);
    EXPECT_EQ(summary.pointsReplaced, 2U);
    EXPECT_EQ(summary.pointsRepeated, 1U);
}

TEST_F(SurveyCsv, WithoutAHeadingNothingIsRead)
{
    ASSERT_TRUE(read("line num,north\n1,2\npoint num\n3\n"));
    EXPECT_TRUE(points.empty());
    EXPECT_EQ(heard.payloads(), std::vector<std::string>{"show=0"});
    EXPECT_TRUE(summary.toText().contains(QStringLiteral("captions")));
}

TEST_F(SurveyCsv, WithoutLineAndPointNumberNoRowIsWritten)
{
    points.set(pointOf("L", "P"));
    EXPECT_EQ(written("point_num,north"), "point num,north\n");
    EXPECT_EQ(heard.payloads(),
              (std::vector<std::string>{"text=Export Survey Data,value=100,is_exec=0", "show=0"}));
}
