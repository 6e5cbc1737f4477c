#pragma once

#include "basalt_utilities/Dictionary.h"
#include "quality/statistics/SurveySample.h"
#include "tests/support/Points.h"

#include <cstdint>
#include <string>

/// A survey of points that are where they were designed and pass every test of the default limits.
struct MadeSurvey
{
    static constexpr std::int64_t kNoonMs = 1721995200000; ///< 2024/07/26 12:00:00 UTC

    DesignPoints design;
    SurveyPoints results;
    QualityLimits limits = QualityLimits::from(basalt::Dictionary());

    void plan(const std::string& line, const std::string& number, int type = 1)
    {
        design.set(designPoint(line, number, type));
    }
    SurveyPoint& measure(const std::string& line, const std::string& number)
    {
        SurveyPoint point = surveyPoint(line, number);
        point.pointMark = 1;
        point.north = point.designNorth = 4000000;
        point.east = point.designEast = 500000;
        point.elevation = point.designElevation = 50;
        point.antennaHeight = 2;
        point.pdop = point.hdop = point.vdop = 1;
        point.satelliteNumber = 12;
        point.solutionType = 4;
        point.dateTime = kNoonMs;
        return results.set(point);
    }
    [[nodiscard]] statistics::SurveySample sample(int zoneHours = 8) const
    {
        return statistics::sampleOf(
            {design, results, limits, "F", basalt::LocalTimes(zoneHours), {}});
    }
};
