#include "basalt_utilities/Dictionary.h"
#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"
#include "tests/support/Points.h"

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
    SurveyPoint point = surveyPoint("1001", "C12345678_3");
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
