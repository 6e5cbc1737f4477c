#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

#include <array>
#include <string>

class IDBAdapter;
class IDictionary;
class ProgressReporter;

/// Reads a project's database into memory. Two connections read half a table each, on two threads.
/// Both threads have ended when `load` returns.
class ProjectLoader
{
public:
    ProjectLoader(IDBAdapter& database, ProgressReporter& progress);

    /// Replaces what the containers hold, and the entries of `coordParameters` when the database
    /// has a coordinate system. The adapter stays open on the file.
    ///
    /// When it fails the containers hold what was read before the failure; the parameters are as
    /// they were. An interrupted save is undone first; a notice then says so.
    Outcome load(const std::string& path, DesignPoints& design, SurveyPoints& survey,
                 IDictionary& coordParameters);

private:
    /// How a table is read: the lower half of the rows by one statement, the upper by another.
    struct Plan
    {
        std::size_t count = 0;
        std::array<std::string, 2> statements; ///< the second is empty when the first reads all
    };

    bool readAll(DesignPoints& design, SurveyPoints& survey, IDictionary& coordParameters);
    bool readDesign(DesignPoints& design);
    bool readSurvey(SurveyPoints& survey);
    bool readCoordinateSystem(IDictionary& coordParameters);
    bool plan(const char* table, Plan& plan);
    /// \param reports how many progress reports there are, about
    template <class Part>
    bool readTable(const char* table, const QString& caption, std::size_t reports,
                   std::array<Part, 2>& parts);
    /// Keeps the reason. \returns false
    bool fail(const std::string& reason);

    IDBAdapter& m_database;
    ProgressReporter& m_progress;
    std::string m_path;
    std::string m_reason; ///< of a failure, in the database's words
};
