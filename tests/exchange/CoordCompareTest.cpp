#include "exchange/CoordCompare.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "exchange/CoordAgreement.h"
#include "exchange/CoordAgreementText.h"
#include "exchange/CoordCompareCsv.h"
#include "exchange/CoordCompareModel.h"
#include "exchange/CoordCompareWorkbook.h"
#include "exchange/CoordDifferences.h"
#include "lum_sdk/coords/CoordWjl.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WorkbookReader.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr const char* kZone50 = "ellipsoid_a=6378137,ellipsoid_f=298.257223563,project_type=1,"
                                "org_lon=117,false_east=500000,factor=0.9996";

basalt::Dictionary systemOf(const std::string& keys)
{
    basalt::Dictionary parameters;
    csa_to_dictionary(parameters, keys.c_str());
    return parameters;
}

/// A result with the plane coordinates that a system gives it.
SurveyPoint result(ICoordTransform& transform, const std::string& number, double latitude,
                   double longitude)
{
    SurveyPoint point = surveyPoint("L1", number);
    point.latitude = latitude;
    point.longitude = longitude;
    point.altitude = 52.5;
    transform.transform(1, 1, 2, 4, latitude, longitude, point.altitude, &point.north, &point.east,
                        &point.elevation);
    return point;
}

std::vector<SurveyPoint> results(const std::string& keys, int count, double step = 0.0001)
{
    CoordWjl transform;
    transform.initialise(systemOf(keys), systemOf(keys));
    std::vector<SurveyPoint> points;
    for (int i = 0; i < count; ++i)
        points.push_back(result(transform, std::to_string(i), 38.9 + step * (i % 500),
                                116.9 + step * double(i / 500)));
    return points;
}

/// What is said of results of a system, in a project of zone 50.
QString textOf(const CoordCompare& comparison, const std::string& file = kZone50)
{
    return agreementText(comparison, coordAgreement(comparison.pairs()), systemOf(kZone50),
                         systemOf(file));
}

} // namespace

TEST(CoordCompare, EveryRowGoesThroughTheProjectsSystem)
{
    const std::string shifted = std::string(kZone50) + ",correct_valid=1,correct_dx=10,"
                                                       "correct_dy=-20,correct_dh=3";
    std::vector<SurveyPoint> records = results(shifted, 12001); // two threads, an odd number
    records[3].pointNumber.clear();
    records[5].lineNumber.clear();
    const CoordCompare comparison(systemOf(kZone50), systemOf(shifted), records);
    ASSERT_EQ(comparison.size(), 11999U);
    EXPECT_EQ(comparison.record(3).pointNumber, "4");
    EXPECT_EQ(comparison.record(11998).pointNumber, "12000");
    for (std::size_t row = 0; row < comparison.size(); ++row) {
        const CoordTriple difference = comparison.difference(row);
        ASSERT_NEAR(difference.first, -10, 1e-6) << row;
        ASSERT_NEAR(difference.second, 20, 1e-6) << row;
        ASSERT_NEAR(difference.third, -3, 1e-6) << row;
    }
    EXPECT_EQ(textOf(comparison), "A constant shift on the plane: north -10.000 m, "
                                  "east +20.000 m; the heights differ by a constant "
                                  "-3.000 m."_q);
}

TEST(CoordDifferences, LargeDifferencesThatAreAlikeKeepTheirDigits)
{
    std::vector<CoordTriple> stored;
    std::vector<CoordTriple> transformed;
    for (int i = 0; i < 1000; ++i) {
        stored.push_back({0, 0, 0});
        transformed.push_back({3e6 + (i % 2 == 0 ? 0.001 : -0.001), 0, 0});
    }
    const AxisFigures north = differenceFigures({stored, transformed}).north;
    EXPECT_NEAR(north.deviation, 0.001 * std::sqrt(1000.0 / 999), 1e-8);
    EXPECT_NEAR(north.rms, 3e6, 1e-6);
}

namespace {

/// A survey of 10 km by 5 km, and what a relation makes of it.
class CoordAgreementTest : public testing::Test
{
protected:
    template <class Relation>
    CoordAgreement after(Relation relation)
    {
        transformed = stored;
        for (CoordTriple& position : transformed)
            relation(position);
        return coordAgreement({stored, transformed});
    }

    std::vector<CoordTriple> stored = [] {
        std::vector<CoordTriple> positions;
        for (int n = 0; n <= 100; ++n) {
            for (int e = 0; e <= 50; ++e)
                positions.push_back({4400000.0 + n * 100, 500000.0 + e * 100, 50});
        }
        return positions;
    }();
    std::vector<CoordTriple> transformed;
};

} // namespace

using Plane = CoordAgreement::Plane;
using Height = CoordAgreement::Height;

TEST_F(CoordAgreementTest, RoundedPositionsAreTheSame)
{
    const CoordAgreement same = after([i = 0](CoordTriple& p) mutable {
        p.first += 0.0006 * (++i % 3 - 1);
        p.third -= 0.0006 * (i % 2);
    });
    EXPECT_EQ(same.plane, Plane::Same);
    EXPECT_EQ(same.height, Height::Same);
    const CoordAgreement little = after([](CoordTriple& p) { p.second += 0.004; });
    EXPECT_EQ(little.plane, Plane::Shift);
    EXPECT_NEAR(little.east, 0.004, 1e-9);
}

/// One in twenty was changed by hand, some by kilometres.
TEST_F(CoordAgreementTest, AShiftIsFoundAmongRowsThatWereChanged)
{
    const CoordAgreement shift = after([i = 0](CoordTriple& p) mutable {
        p = {p.first + 100, p.second - 50, p.third + 3};
        if (++i % 20 == 0)
            p.first += i;
        if (i == 2000)
            p.third += 9000;
    });
    EXPECT_EQ(shift.plane, Plane::Shift);
    EXPECT_NEAR(shift.north, 100, 1e-6);
    EXPECT_NEAR(shift.east, -50, 1e-6);
    EXPECT_EQ(shift.height, Height::Shift);
    EXPECT_NEAR(shift.up, 3, 1e-6);
    EXPECT_EQ(shift.strangers, 257U) << "each once";
    EXPECT_NEAR(shift.farthest, 9000, 1e-6);
    EXPECT_EQ(shift.farthestRow, 1999U);
}

TEST_F(CoordAgreementTest, ARotationWithAScaleIsMeasured)
{
    for (const auto& [seconds, ppm] : {std::pair(10.0, 50.0), {-7200.0, 0.0}, {0.0, -400.0}}) {
        const double angle = seconds / 3600 * M_PI / 180;
        const double scale = 1 + ppm / 1e6;
        std::mt19937 random(1);
        const CoordAgreement turned = after([&](CoordTriple& p) {
            // About a far origin: north turns to the east by a positive angle.
            const double north = scale * (p.first * std::cos(angle) - p.second * std::sin(angle));
            p.second = scale * (p.first * std::sin(angle) + p.second * std::cos(angle));
            p.first = north + (random() % 50 == 0 ? 700 : 0);
        });
        EXPECT_EQ(turned.plane, Plane::Turned) << seconds;
        EXPECT_NEAR(turned.rotationSeconds, seconds, 0.001);
        EXPECT_NEAR(turned.scalePpm, ppm, 0.001);
        EXPECT_LT(turned.remains, 0.001);
        EXPECT_EQ(turned.height, Height::Same);
    }
}

TEST_F(CoordAgreementTest, WhatFourParametersDoNotExplainIsAnotherSystem)
{
    const CoordAgreement other = after([](CoordTriple& p) {
        const double km = (p.first - 4405000) / 1000;
        p.second += 30 + km * km; // 30 to 55 m
        p.third += km;
    });
    EXPECT_EQ(other.plane, Plane::Other);
    EXPECT_NEAR(other.leastPlane, 30, 1e-6);
    EXPECT_NEAR(other.largestPlane, 55, 1e-6);
    EXPECT_GT(other.remains, 5);
    EXPECT_EQ(other.height, Height::Other);
    EXPECT_NEAR(other.leastUp, -5, 1e-6);
    EXPECT_NEAR(other.largestUp, 5, 1e-6);
    EXPECT_EQ(other.strangers, 0U);
}

/// Each step of difference has its sentence.
TEST(CoordAgreementText, SaysWhatTheDifferenceIsWithItsSize)
{
    const auto said = [](const QString& change, const char* start, double step = 0.0001) {
        QString keys = QLatin1String(kZone50) + change;
        if (change.startsWith(QLatin1String("org_lon=")))
            keys = QString(QLatin1String(kZone50)).replace(QLatin1String("org_lon=117"), change);
        const std::string file = keys.toStdString();
        const QString text =
            textOf(CoordCompare(systemOf(kZone50), systemOf(file), results(file, 900, step)));
        EXPECT_TRUE(text.startsWith(QString::fromUtf8(start))) << qPrintable(text);
    };
    said(",fit_valid=1,fit_a1=0.001,fit_x0=4300000,fit_y0=500000"_q,
         "Only the heights differ, by -1");
    said(",_4valid=1,_4r=-0.01,_4s=1.0001,_4x0=4306000,_4y0=491000"_q,
         "The survey is turned clockwise by 36.00″ and scaled by -99.99 ppm, and its middle "
         "shifted by");
    // A central meridian three degrees farther east: azimuths are less by 3 degrees times sin(lat).
    said("org_lon=120"_q,
         "A wrong datum or projection: the survey is turned counterclockwise by 67");
    said("org_lon=114"_q, "A wrong datum or projection: the survey is turned clockwise by 67");
    said("org_lon=120"_q, "A wrong datum or projection: positions on the plane differ by 2", 0.01);
    const CoordCompare feet(systemOf(kZone50), systemOf(kZone50), results(kZone50, 5));
    EXPECT_EQ(textOf(feet, std::string(kZone50) + ",unit_m=0.3048,_4valid=1,_4s=3.280839895"),
              "The positions on the plane are in different units, m here and ft in "
              "the file; the heights are the same."_q);
}

namespace {

class CoordCompareFile : public testing::Test
{
protected:
    CoordCompareFile()
    {
        records[0].remarks = "with, comma";
        records[1].latitude = 91;
    }
    [[nodiscard]] CoordCompare comparison(int count = 0) const
    {
        return CoordCompare(systemOf(kZone50), systemOf(kZone50),
                            count == 0 ? records : results(kZone50, count));
    }
    [[nodiscard]] QStringList lines() const
    {
        return QString::fromUtf8(TestFolder::read(path)).split(QLatin1Char('\n'));
    }

    TestFolder folder;
    QString path = folder.path("对比 1.csv");
    std::vector<SurveyPoint> records = results(kZone50, 3);
    ProgressReporter progress{nullptr};
};

} // namespace

TEST_F(CoordCompareFile, CsvHasTheFieldsOfTheResultsAndTheDifferences)
{
    records[2].north += 0.000003; // a difference that is no "-0.0000"
    ASSERT_TRUE(writeCoordCompareCsv(path, comparison(), 0, progress).isDone());
    ASSERT_EQ(lines().size(), 5);
    const QStringList heading = lines()[0].split(QLatin1Char(','));
    EXPECT_EQ(heading.mid(0, 4).join(QLatin1Char('|')), "line num|point num|point mark|latitude"_q);
    EXPECT_FALSE(heading.contains("sea height"_q)) << "it is not of the record";
    EXPECT_EQ(heading.mid(49).join(QLatin1Char('|')),
              "trans north|trans east|trans height|north diff|east diff|height diff|"
              "trans fault"_q);
    const QStringList good = lines()[3].split(QLatin1Char(','));
    EXPECT_EQ(good.size(), heading.size());
    EXPECT_EQ(good[6], good[49]);
    EXPECT_EQ(good[52], "0.0000"_q);
    EXPECT_TRUE(good[55].isEmpty());
    const QStringList failed = lines()[2].split(QLatin1Char(','));
    EXPECT_EQ(failed.size(), heading.size());
    EXPECT_TRUE(failed[49].isEmpty() && failed[54].isEmpty());
    EXPECT_FALSE(failed[55].isEmpty()) << "why";
    ASSERT_TRUE(writeCoordCompareCsv(path, comparison(), 1, progress).isDone());
    EXPECT_EQ(lines()[1].split(QLatin1Char(','))[3], "38deg54min0.000sec"_q);
}

TEST_F(CoordCompareFile, TheWorkbookIsTheTableOfTheField)
{
    path = folder.path("对比 1.xlsx");
    records[0].lineNumber = "<1>";
    ASSERT_TRUE(writeCoordCompareWorkbook(path, comparison(), 0, progress).isDone());
    const WorkbookReader book(path);
    const QString sheet = "外业坐标参数转换对照表"_q;
    ASSERT_EQ(book.sheets(), QStringList(sheet));
    const auto rows = book.rows(sheet);
    const auto joined = [&](std::size_t row) { return rows.at(row).join(QLatin1Char('|')); };
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows[0][0], sheet);
    EXPECT_EQ(joined(1), "|||原始坐标||||||转换坐标|||对比||"_q);
    EXPECT_EQ(joined(2), "序号|测线名|测点名|纬度|经度|大地高|北|东|高|北|东|高|北差|东差|高差"_q);
    EXPECT_EQ(book.attributes(sheet, "mergeCell", "ref"),
              (QStringList{"A1:O1"_q, "A2:C2"_q, "D2:I2"_q, "J2:L2"_q, "M2:O2"_q}));
    EXPECT_EQ(book.attributes(sheet, "pane", "ySplit"), QStringList("3"_q));
    EXPECT_EQ(rows[3].mid(0, 4).join(QLatin1Char('|')), "1|<1>|0|38.9"_q);
    EXPECT_DOUBLE_EQ(rows[3][6].toDouble(), records[0].north);
    EXPECT_DOUBLE_EQ(rows[3][10].toDouble(), records[0].east);
    EXPECT_TRUE(rows[4].mid(9).join(QString()).isEmpty()) << "the row that failed";
    ASSERT_TRUE(writeCoordCompareWorkbook(path, comparison(), 1, progress).isDone());
    EXPECT_EQ(WorkbookReader(path).rows(sheet)[3][3], "38deg54min0.000sec"_q);
}
