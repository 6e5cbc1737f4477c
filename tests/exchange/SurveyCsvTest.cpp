#include "CsvFixture.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyCsvWriter.h"
#include "model/SurveyColumns.h"
#include "tests/support/Points.h"

#include <QCoreApplication>
#include <QTranslator>

namespace {

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
        points.set(surveyPoint("1001", number));
    return points;
}

class SurveyCsv : public CsvFixture
{
protected:
    bool read(const QByteArray& text)
    {
        return readSurveyCsv(file(text), points, progress, summary).isDone();
    }
    QByteArray written(const QStringList& captions, int degreeFormat)
    {
        QStringList lines;
        for (const auto& [number, line] : points)
            lines << QString::fromStdString(number);
        EXPECT_TRUE(
            writeSurveyCsv(path(), points, lines, {captions, degreeFormat}, progress).isDone());
        return TestFolder::read(path());
    }
    /// All points, written with degrees, minutes and seconds, read and written again.
    void expectSameAgain()
    {
        points = fullPoints();
        const QByteArray first = written(surveyCaptions(), 1);
        points.clear();
        EXPECT_TRUE(read(first));
        EXPECT_EQ(summary.skipped.count + summary.misread.count + summary.changed.count, 0U);
        EXPECT_EQ(points.pointCount(), 43U);
        EXPECT_EQ(written(surveyCaptions(), 1), first);
        EXPECT_EQ(first.count('\n'), 44);
    }
    SurveyPoints points;
};

} // namespace

TEST_F(SurveyCsv, AnExportInDegreesComesBackAsTheSameFileInEachLanguage)
{
    expectSameAgain();
    const QByteArray english = TestFolder::read(path());
    int count = 0;
    const QCoreApplication application(count, nullptr);
    QTranslator chinese;
    ASSERT_TRUE(chinese.load(QStringLiteral(CHINESE_CATALOGUE)));
    ASSERT_TRUE(QCoreApplication::installTranslator(&chinese));
    expectSameAgain();
    const QByteArray inChinese = TestFolder::read(path());
    EXPECT_TRUE(inChinese.contains("度"));
    QCoreApplication::removeTranslator(&chinese);
    points.clear();
    EXPECT_TRUE(read(inChinese)) << "in the English program";
    EXPECT_EQ(written(surveyCaptions(), 1), english);
}
