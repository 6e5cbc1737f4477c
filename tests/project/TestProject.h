#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/PointLines.h"
#include "project/DBAdapter.h"
#include "project/ProjectLoader.h"
#include "project/ProjectSaver.h"
#include "quality/problems/Acceptance.h"
#include "tests/support/Points.h"

#include <QFile>

/// A project in memory, and how it is loaded and saved by itself.
struct TestProject
{
    DesignPoints design;
    SurveyPoints survey;
    basalt::Dictionary coordParameters;
    Acceptances acceptances;

    template <class Adapter = DBAdapter>
    Outcome load(const std::string& path, IEventManager* events = nullptr)
    {
        Adapter database;
        ProgressReporter progress(events);
        return ProjectLoader(database, progress)
            .load(path, design, survey, coordParameters, &acceptances);
    }
    template <class Adapter = DBAdapter>
    Outcome save(const std::string& path, IEventManager* events = nullptr,
                 HistoryWriter* history = nullptr) const
    {
        Adapter database;
        ProgressReporter progress(events);
        return ProjectSaver(database, progress)
            .save(path, design, survey, coordParameters, {&acceptances, history});
    }

    /// Points with no two values alike; `mark` stands in each of them.
    static TestProject made(int lines, int pointsPerLine, const std::string& mark)
    {
        TestProject project;
        for (int line = 0; line < lines; ++line) {
            for (int place = 0; place < pointsPerLine; ++place) {
                const double value = line * 1000.0 + place + 0.1234;
                const std::string lineNumber = std::to_string(1000 + line);
                const std::string number = lineNumber + std::to_string(5000 + place);
                project.design.set({lineNumber, number, value, value + 0.5, -value, value / 1000,
                                    place % 2, line % 2});
                if (place % 5 != 0)
                    continue;
                SurveyPoint point = surveyPoint(lineNumber, number, mark);
                point.latitude = 39 + value / 1e6;
                point.north = value;
                point.dateTime = 1700000000000 + place;
                point.startTime = 1700000000000 - place;
                point.ageOfDiff = place % 9;
                project.survey.set(point);
            }
        }
        for (int i = 0; i < 100; ++i)
            project.acceptances.set(
                {"too_far", false, {"1000", std::to_string(i)}, mark, {}, {}, {}});
        project.coordParameters.set("ellipsoid_a", "6378137");
        project.coordParameters.set("coord_param_id", mark);
        return project;
    }
};

/// A new project's database at `path`.
inline bool makeDatabase(const std::string& path)
{
    return QFile::copy(QStringLiteral(TEMPLATE_DATABASE), QString::fromStdString(path)) &&
           QFile::setPermissions(QString::fromStdString(path),
                                 QFile::ReadOwner | QFile::WriteOwner);
}

/// The rows of a table of the database at `path`, in their order.
inline std::string rowsOf(const std::string& path, const std::string& table)
{
    DBAdapter database;
    if (!database.open(lum::databaseConnection(path).c_str()))
        return database.lastError();
    std::string all;
    database.forEachRow(("select * from " + table).c_str(), [&](const IDictionary& row) {
        for (std::size_t i = 0; i < row.size(); ++i)
            all += std::string(row.valueAt(i)) + '|';
        all += '\n';
        return true;
    });
    return all;
}
