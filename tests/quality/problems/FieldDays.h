#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/problems/ProblemFinders.h"
#include "quality/QualityCheck.h"
#include "quality/ResurveyCheck.h"

#include <QString>

#include <random>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

/// What a crew does on a day of May 2026, and what is wrong by the same with all of it.
struct FieldDay
{
    int day = 1;
    std::string base = "B1";
    std::string rover = "R1";
    int points = 30;
    double eastM = 0;
    double northM = 0;
    double heightM = 0;
    double antennaM = 2;
    double baseAltitudeM = 50;
    int lines = 2; ///< that the points are on, one behind the other
};

/// A survey day by day. Each point is staked within some centimetres of its design.
class FieldDays
{
public:
    explicit FieldDays(unsigned seed = 1) : m_random(seed)
    {
        parameters.set("check_shots_percent", "0"); // of shifts alone
        parameters.set("check_shots_min", "0");
    }

    void work(const FieldDay& day)
    {
        for (int i = 0; i < day.points; ++i)
            stake(day, i);
    }

    /// Measures points again, of those that were staked first on `of`.
    void workAgain(const FieldDay& day, int of, int count)
    {
        int done = 0;
        std::vector<SurveyPoint> found;
        for (const auto& [number, line] : survey) {
            for (const SurveyPoint& point : line) {
                if (timeOf(of) / kDayMs == point.dateTime / kDayMs &&
                    point.pointNumber.size() == 4 && done < count &&
                    survey.find(number, point.pointNumber + "F") == nullptr) {
                    found.push_back(point);
                    ++done;
                }
            }
        }
        for (SurveyPoint& again : found) {
            again.pointNumber += "F";
            const auto place = m_truth.at(again.lineNumber + again.pointNumber.substr(0, 4));
            again.east = place[0];
            again.north = place[1];
            again.elevation = place[2];
            measure(again, day);
            survey.set(std::move(again));
        }
    }

    /// All problems, after the checks; those of the given kinds.
    ProblemList find(const std::vector<const char*>& names = {"base_shift", "pole_shift",
                                                              "survey_shift"})
    {
        ProgressReporter progress(nullptr);
        checkQuality(survey, parameters, progress, planeUnitM);
        checkResurveys(survey, parameters, progress, planeUnitM);
        std::vector<const ProblemKind*> kinds;
        for (const char* const name : names)
            kinds.push_back(findProblemKind(name));
        return findProblems({design, survey, parameters, planeUnitM, basalt::LocalTimes(8)},
                            progress, kinds);
    }
    /// Their kinds and sentences.
    std::vector<std::string> told(const std::vector<const char*>& names = {
                                      "base_shift", "pole_shift", "survey_shift"})
    {
        std::vector<std::string> texts;
        for (const Problem& problem : find(names))
            texts.push_back(problem.kind->name + std::string(": ") +
                            problem.kind->what(problem).toStdString());
        return texts;
    }

    /// Puts the points of all results into the design.
    void plan()
    {
        for (const auto& [number, line] : survey) {
            for (const SurveyPoint& point : line)
                design.set({number, point.pointNumber, point.designNorth, point.designEast,
                            point.designElevation, 0, point.pointMark, 1});
        }
    }

    SurveyPoint& at(const std::string& line, const std::string& point)
    {
        return *survey.find(line, point);
    }

    static std::int64_t timeOf(int day) { return kMayMs + day * kDayMs; }

    DesignPoints design;
    SurveyPoints survey;
    basalt::Dictionary parameters;
    double planeUnitM = 1;
    double stakingM = 0.03;      ///< how well stakes are set
    double measuringM = 0.01;    ///< how well they are measured
    double designHeightM = 0.02; ///< how well heights of the design are known
    double slope = 0;            ///< what these grow too much by, for each metre to the east

private:
    static constexpr std::int64_t kDayMs = 86400000;
    static constexpr std::int64_t kMayMs = 1777528800000; ///< 2026/04/30 14:00 in UTC+8

    double noise(double sigma) { return std::normal_distribution<double>(0, 1)(m_random) * sigma; }

    void stake(const FieldDay& day, int i)
    {
        const int number = m_staked++;
        SurveyPoint point;
        point.lineNumber = std::to_string(1000 + 10 * m_line);
        point.pointNumber = std::to_string(1001 + number % 1000);
        point.pointMark = 1;
        point.designEast = 500000 + 40.0 * number;
        point.designNorth = 4000000 + 300.0 * m_line;
        const double ground = 30 + 5 * std::sin(number / 20.0);
        point.designElevation = ground + noise(designHeightM) + slope * (point.designEast - 500000);
        point.east = point.designEast + noise(stakingM);
        point.north = point.designNorth + noise(stakingM);
        point.elevation = ground;
        m_truth[point.lineNumber + point.pointNumber] = {point.east, point.north, point.elevation};
        point.pdop = point.hdop = point.vdop = 1;
        point.satelliteNumber = 12;
        point.solutionType = 4;
        measure(point, day);
        point.dateTime += i * 60000;
        survey.set(std::move(point));
        if ((i + 1) % std::max(1, day.points / day.lines) == 0)
            ++m_line;
    }

    void measure(SurveyPoint& point, const FieldDay& day)
    {
        point.east += noise(measuringM) + day.eastM;
        point.north += noise(measuringM) + day.northM;
        point.elevation += noise(measuringM) + day.heightM;
        point.dateTime = timeOf(day.day);
        point.baseStationId = day.base;
        point.instrumentSerialNumber = day.rover;
        point.surveyor = "Crew of " + day.rover;
        point.antennaHeight = day.antennaM;
        point.referenceAltitude = day.baseAltitudeM;
    }

    std::mt19937 m_random;
    int m_staked = 0;
    int m_line = 0;
    std::map<std::string, std::array<double, 3>> m_truth;
};

/// Two bases with a rover each, on three days.
inline FieldDays goodDays(unsigned seed = 1)
{
    FieldDays field(seed);
    for (int day = 1; day <= 3; ++day) {
        field.work({.day = day, .base = "B1", .rover = "R1"});
        field.work({.day = day, .base = "B2", .rover = "R2"});
    }
    return field;
}

inline std::string firstOf(const Texts& texts)
{
    return texts.empty() ? std::string() : texts.front();
}

inline bool contains(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}
