#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/EmptyPointCheck.h"
#include "quality/problems/ProblemColumns.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityCheck.h"
#include "quality/ResurveyCheck.h"
#include "tests/support/Points.h"

#include <string>
#include <vector>

/// A project in which problems are looked for.
struct FoundProblems
{
    /// Its points stand in one place, mostly.
    FoundProblems()
    {
        parameters.set("line_coincident_max", "0");
        parameters.set("line_height_max", "0");
    }

    /// A result without any fault by the limits of a new project.
    static SurveyPoint goodResult(const std::string& line, const std::string& number,
                                  double north = 4000000, double east = 500000)
    {
        SurveyPoint point = surveyPoint(line, number);
        point.north = point.designNorth = north;
        point.east = point.designEast = east;
        point.elevation = point.designElevation = 100;
        point.antennaHeight = 2;
        point.pdop = point.hdop = point.vdop = 1;
        point.satelliteNumber = 12;
        return point;
    }

    /// Runs the checks and then the finders.
    ProblemList find(std::span<const ProblemKind* const> kinds = {})
    {
        ProgressReporter progress(nullptr);
        checkQuality(survey, parameters, progress, planeUnitM);
        checkEmptyPoints(design, survey, progress);
        checkResurveys(survey, parameters, progress, planeUnitM);
        return findProblems({design, survey, parameters, planeUnitM, basalt::LocalTimes(8)},
                            progress, kinds);
    }

    /// "too_far 10/1001 0.600 0.500", a text each, in the order of the list.
    static std::vector<std::string> textsOf(const ProblemList& problems)
    {
        std::vector<std::string> texts;
        basalt::LocalTimes zone(8);
        const auto text = [&](const Problem& problem, ProblemField field) {
            return problemColumns()[static_cast<std::size_t>(field)]
                .forScripts(problem, zone)
                .toStdString();
        };
        for (const Problem& problem : problems) {
            std::string all = text(problem, ProblemField::Kind) + ' ' +
                              text(problem, ProblemField::Line) + '/' +
                              text(problem, ProblemField::Point);
            for (const auto field : {ProblemField::Value, ProblemField::Limit}) {
                if (const std::string value = text(problem, field); !value.empty())
                    all += ' ' + value;
            }
            texts.push_back(all);
        }
        return texts;
    }

    DesignPoints design;
    SurveyPoints survey;
    basalt::Dictionary parameters;
    double planeUnitM = 1;
};
