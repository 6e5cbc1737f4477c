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

/// Gives each field of a point another value, by its type.
struct Filling
{
    SurveyPoint& point;
    int value;

    void operator()(std::string SurveyPoint::*field)
    {
        point.*field = "石头; \"" + std::to_string(++value) + '"';
    }
    void operator()(double SurveyPoint::*field) { point.*field = ++value * 1.37017 - 30; }
    void operator()(std::int32_t SurveyPoint::*field) { point.*field = ++value; }
    void operator()(std::int64_t SurveyPoint::*field) { point.*field = ++value * 7776001000LL; }
};

/// Points with another value in every field that comes back, and measurements of a check point.
SurveyPoints fullPoints()
{
    SurveyPoints points;
    for (int i = 0; i < 40; ++i) {
        SurveyPoint point;
        for (const SurveyColumn& column : surveyColumns())
            std::visit(Filling{point, i * 7 + int(&column - surveyColumns().data())},
                       column.member);
        point.lineNumber = i < 20 ? "1001" : "测线";
        point.pointMark = i % 2;
        point.measureMode = i % 2;
        point.solutionType = i % 2 == 0 ? 4 : 5;
        point.rawOffset = 9007199254740993 - i;
        point.isResurvey = 0; // what is not read
        point.seaHeight = 0;
        point.ageOfDiff = i;
        points.set(std::move(point));
    }
    for (const char* number : {"C10015000_0", "C10015000_1", "C10015000_2"})
        points.set(pointOf("1001", number));
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

TEST_F(SurveyCsv, CheckPointsAreCountedOn)
{
    const QByteArray text = "line num,point num,north\nL1,C12345678,2\nL1,C12345678,3\n"
                            ",C12345678,4\nL1,C123,5\nL1,C123,6\n";
    ASSERT_TRUE(read(text));
    ASSERT_TRUE(read(text));
    for (const auto& [line, number, north] :
         {std::tuple("L1", "C12345678_0", 2), std::tuple("L1", "C12345678_1", 3),
          std::tuple("L1", "C12345678_2", 2), std::tuple("L1", "C12345678_3", 3),
          std::tuple("1234", "C12345678_1", 4), std::tuple("L1", "C123", 6)}) {
        const SurveyPoint* const point = points.find(line, number);
        ASSERT_NE(point, nullptr) << number;
        EXPECT_EQ(point->north, north) << number;
    }
    EXPECT_EQ(points.pointCount(), 7U);
    EXPECT_EQ(summary.pointsNew, 3U);
    EXPECT_EQ(summary.pointsReplaced, 1U);
    EXPECT_EQ(summary.pointsRepeated, 1U);
}

TEST_F(SurveyCsv, WithoutLineAndPointNumberNoRowIsWritten)
{
    points.set(pointOf("L", "P"));
    EXPECT_EQ(written("point_num,north"), "point num,north\n");
    EXPECT_EQ(heard.payloads(),
              (std::vector<std::string>{"text=Export Survey Data,value=100,is_exec=0", "show=0"}));
}
