#pragma once

#include "basalt_utilities/Dictionary.h"
#include "quality/problems/FinderInput.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/problems/ProblemList.h"

#include <cmath>
#include <functional>
#include <numbers>
#include <random>
#include <string>
#include <vector>

/// Surveys that are made for a test.
struct MadeSurvey
{
    DesignPoints design;
    SurveyPoints results;
    basalt::Dictionary parameters;
    double planeUnitM = 1;
    std::mt19937 random{1};

    /// A number up to `most` to either side of 0.
    double aside(double most)
    {
        return std::uniform_real_distribution<double>(-most, most)(random);
    }

    DesignPoint& designed(int line, int point)
    {
        return *design.find(std::to_string(line), name(line, point));
    }
    SurveyPoint& result(int line, int point)
    {
        return *results.find(std::to_string(line), name(line, point));
    }
    static std::string name(int line, int point)
    {
        return std::to_string(line) + std::to_string(point);
    }

    /// A point of the design, and its result within staking accuracy.
    void add(int line, int point, double eastM, double northM, int type, double heightM = 100)
    {
        DesignPoint place{std::to_string(line),
                          name(line, point),
                          northM / planeUnitM,
                          eastM / planeUnitM,
                          heightM,
                          0,
                          type,
                          1};
        stake(place, aside(0.3), aside(0.3));
        design.set(std::move(place));
    }
    void stake(const DesignPoint& place, double eastM, double northM,
               const std::string& number = {})
    {
        SurveyPoint staked;
        staked.lineNumber = place.lineNumber;
        staked.pointNumber = number.empty() ? place.pointNumber : number;
        staked.pointMark = place.type;
        staked.designEast = place.east;
        staked.designNorth = place.north;
        staked.designElevation = place.elevation;
        staked.east = place.east + eastM / planeUnitM;
        staked.north = place.north + northM / planeUnitM;
        staked.elevation = place.elevation + aside(0.1);
        results.set(std::move(staked));
    }

    /// Lines of 40 points, `spacingM` apart, the lines 5 spacings apart.
    void addGrid(int type, int firstLine, int lines, double azimuthDeg = 72, double spacingM = 40,
                 double startM = 0)
    {
        const double sine = std::sin(azimuthDeg / 180 * std::numbers::pi);
        const double cosine = std::cos(azimuthDeg / 180 * std::numbers::pi);
        for (int line = 0; line < lines; ++line) {
            for (int point = 0; point < 40; ++point) {
                const double along = startM + point * spacingM;
                const double right = line * 5 * spacingM;
                const double height = 100 + 40 * std::sin(along / 300) * std::cos(right / 400);
                add(firstLine + line, 1001 + point, 5e5 + along * sine + right * cosine,
                    4e6 + along * cosine - right * sine, type, height);
            }
        }
    }

    /// A line of points `spacingM` apart along a way whose direction changes from point to point.
    /// \param turnDeg  of the point, in degrees
    void addWay(int line, int points, const std::function<double(int)>& turnDeg, double eastM = 5e5,
                double northM = 4e6, double spacingM = 25)
    {
        double azimuthDeg = 30;
        for (int point = 0; point < points; ++point) {
            add(line, 1001 + point, eastM, northM, 1);
            azimuthDeg += turnDeg(point);
            eastM += spacingM * std::sin(azimuthDeg / 180 * std::numbers::pi);
            northM += spacingM * std::cos(azimuthDeg / 180 * std::numbers::pi);
        }
    }

    [[nodiscard]] ProblemList find(const ProblemFinder& finder) const
    {
        const ProblemInput data{design, results, parameters, planeUnitM};
        const FinderInput input(data);
        ProblemList problems;
        finder.find(input, problems);
        return problems;
    }
};

/// "kind line/point other count" of each, for comparisons.
inline std::vector<std::string> rowsOf(const ProblemList& problems)
{
    std::vector<std::string> rows;
    for (const Problem& problem : problems) {
        EXPECT_FALSE(problem.kind->what(problem).isEmpty());
        EXPECT_FALSE(problem.kind->what(problem).contains(QLatin1Char('%')));
        std::string row = problem.kind->name;
        row += ' ' + std::string(problem.point.empty() ? problem.line : problem.point);
        if (!problem.otherPoint.empty())
            row += ' ' + std::string(problem.otherPoint);
        if (problem.count != 0)
            row += ' ' + std::to_string(problem.count);
        rows.push_back(std::move(row));
    }
    return rows;
}
