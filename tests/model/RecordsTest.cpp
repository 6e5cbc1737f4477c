#include "basalt_utilities/Dictionary.h"
#include "model/CodeTables.h"
#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/PointNumber.h"
#include "model/SurveyRecord.h"

#include <gtest/gtest.h>

namespace {

std::string joined(const RecordTexts& texts)
{
    std::string all;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0)
            all += '|';
        all.append(texts.values()[i]);
    }
    return all;
}

SurveyPoint pointOf(const char* line, const char* number)
{
    SurveyPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
    return point;
}

} // namespace

TEST(DesignRecord, WritesEachValueInItsForm)
{
    RecordTexts texts;
    const DesignPoint point{"1001", "10012034", 4411825.12346, -0.5, 1e-9, 359.9999996, 1, -2};
    DesignRecord::write(point, texts); // which points at the texts of the point
    EXPECT_EQ(joined(texts), "1001|10012034|4411825.1235|-0.5000|0.0000|360.000000|1|-2");
}

TEST(SurveyRecord, WritesEachValueInItsForm)
{
    SurveyPoint point = pointOf("1001", "C12345678_3");
    point.latitude = 39.123456786;
    point.altitude = 12.00006;
    point.dateTime = 1700000000123;
    point.ageOfDiff = 1234567.8;
    point.seaHeight = 99;
    point.baseStationId = "B7";
    RecordTexts texts;
    SurveyRecord::write(point, texts);
    const std::string columns = SurveyRecord::columns();
    EXPECT_EQ(std::size_t(std::count(columns.begin(), columns.end(), ',')) + 1, texts.size());
    EXPECT_EQ(joined(texts).substr(0, 50), "1001|C12345678|0|39.12345679|0.00000000|12.0001|0.");
    EXPECT_EQ(texts.values()[23], "1700000000123");
    EXPECT_EQ(texts.values()[43], "1.23457e+06");
    EXPECT_EQ(texts.values()[48], "B7");
    EXPECT_EQ(joined(texts).find("99"), std::string::npos) << "the sea height is not stored";
}

TEST(SurveyRecord, ReadsTimesThatCameThroughARealColumn)
{
    basalt::Dictionary row;
    row.set("start_time", "1700000000123.0");
    row.set("end_time", "1.7e12");
    row.set("raw_offset", "9007199254740993");
    row.set("date_time", "1e30");
    row.set("age_of_diff", "2.9");
    SurveyRecord::Reader reader;
    const SurveyPoint point = reader.read(row);
    EXPECT_EQ(point.startTime, 1700000000123);
    EXPECT_EQ(point.endTime, 1700000000000);
    EXPECT_EQ(point.rawOffset, 9007199254740993);
    EXPECT_EQ(point.dateTime, 0);
    EXPECT_EQ(point.ageOfDiff, 2);
}

TEST(PointNumber, CheckPointsAreCountedWithinTheirLine)
{
    SurveyPoints standing;
    SurveyPointFiler(standing).file(pointOf("1", "C12345678"));
    SurveyPoints points;
    SurveyPointFiler filer(points, &standing);
    for (const char* line : {"1", "1", ""})
        filer.file(pointOf(line, "C12345678"));
    filer.file(pointOf("", "C1234567"));
    filer.file(pointOf("", "C1234567"));
    filer.file(pointOf("2", "C测线三四五六七八"));
    std::string filed;
    for (const auto& [number, line] : points) {
        for (const SurveyPoint& point : line)
            filed += number + '/' + point.pointNumber + ' ';
    }
    EXPECT_EQ(filed, "1/C12345678_1 1/C12345678_2 1234/C12345678_0 2/C测线三四五六七八_0 "
                     "EmptyLine/C1234567 ");
    EXPECT_NE(standing.find("1", "C12345678_0"), nullptr);
}

TEST(PointNumber, CheckPointsAreWrittenWithNineCharacters)
{
    for (const auto& [number, written] :
         {std::pair("C12345678_12", "C12345678"),
          std::pair("C测线三四五六七八_0", "C测线三四五六七八"), std::pair("C1234567", "C1234567"),
          std::pair("123456789_0", "123456789_0")})
        EXPECT_EQ(writtenPointNumber(number), written);
}

TEST(CodeTables, NameSolutionsAndObstacles)
{
    for (const int code : {0, 1, 2, 4, 5, 7})
        EXPECT_EQ(solutionTypeCode(solutionTypeText(code)), code);
    EXPECT_EQ(solutionTypeCode(solutionTypeText(3)), 2);
    EXPECT_EQ(solutionTypeText(6), QStringLiteral("unknow"));
    EXPECT_EQ(solutionTypeCode(QStringLiteral("unknow")), -1);
    EXPECT_EQ(obstacleText(1), QStringLiteral("houses"));
    EXPECT_EQ(obstacleText(32), QStringLiteral("building"));
    EXPECT_EQ(obstacleText(33), QStringLiteral("pipeline"));
    for (const int code : {0, -1, 34})
        EXPECT_EQ(obstacleText(code), QStringLiteral("undefined"));
}
