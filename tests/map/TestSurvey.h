#pragma once

#include "model/PointLines.h"
#include "tests/support/Points.h"

#include <string>

/// Makes surveys on a grid with its south-west corner at (north, east).
struct TestSurvey
{
    double north = 4400000;
    double east = 500000;
    double pointStepM = 25;
    double lineStepM = 100;

    /// Lines from west to east: receiver lines "1001" and on, and after `receiverLines` of them
    /// source lines. Points are called by line and place, "10011001" and on.
    [[nodiscard]] DesignPoints design(int lines, int pointsPerLine, int receiverLines) const
    {
        DesignPoints points;
        for (int line = 0; line < lines; ++line) {
            const std::string number = std::to_string(1001 + line);
            for (int place = 0; place < pointsPerLine; ++place) {
                DesignPoint point = designPoint(number, number + std::to_string(1001 + place));
                point.north = north + line * lineStepM;
                point.east = east + place * pointStepM;
                point.type = line < receiverLines ? 1 : 0;
                points.set(std::move(point));
            }
        }
        return points;
    }

    /// Results of such a design, `offsetM` off to the north-east, lines shared out among `bases`
    /// base stations along the diagonal; each seventh result was not designed.
    [[nodiscard]] SurveyPoints results(int lines, int pointsPerLine, int bases,
                                       double offsetM) const
    {
        SurveyPoints points;
        const DesignPoints grid = design(lines, pointsPerLine, 0);
        int count = 0;
        for (const auto& [number, line] : grid) {
            const double share = ((count / pointsPerLine) % bases + 0.5) / bases;
            for (const DesignPoint& designed : line) {
                SurveyPoint point = surveyPoint(number, designed.pointNumber);
                point.north = designed.north + offsetM;
                point.east = designed.east + offsetM / 2;
                if (count++ % 7 != 0) {
                    point.designNorth = designed.north;
                    point.designEast = designed.east;
                }
                point.referenceNorth = north + share * lines * lineStepM;
                point.referenceEast = east + share * pointsPerLine * pointStepM;
                points.set(std::move(point));
            }
        }
        return points;
    }
};
