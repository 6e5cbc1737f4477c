#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

#include <array>
#include <string>
#include <vector>

class Acceptances;
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
    /// \param acceptances  gets the accepted problems; or null
    Outcome load(const std::string& path, DesignPoints& design, SurveyPoints& survey,
                 IDictionary& coordParameters, Acceptances* acceptances = nullptr);

    /// What became of the rows of `readResults`.
    struct ResultRows
    {
        std::size_t read = 0;
        std::size_t withoutLine = 0;
        std::vector<std::size_t> withoutNumber; ///< their places, from 1; they give no point
    };
    /// Reads the results and the coordinate system alone, and never writes. They are filed as an
    /// import files them: a check point gets a counter that is free in `standing`, too.
    Outcome readResults(const std::string& path, const SurveyPoints& standing, SurveyPoints& survey,
                        IDictionary& coordParameters, ResultRows& rows);
    /// The same, with the results as they stand in the table, in its order.
    Outcome readRecords(const std::string& path, std::vector<SurveyPoint>& records,
                        IDictionary& coordParameters);
    /// Reads the coordinate system alone, and never writes.
    Outcome readSystem(const std::string& path, IDictionary& coordParameters);

private:
    /// How a table is read: the lower half of the rows by one statement, the upper by another.
    struct Plan
    {
        std::size_t count = 0;
        std::array<std::string, 2> statements; ///< the second is empty when the first reads all
    };

    /// Opens the database and reads it by `read`, in one transaction.
    template <class Read>
    Outcome readAs(const std::string& path, const std::string& connection, Read read);
    bool readDesign(DesignPoints& design);
    bool readSurvey(SurveyPoints& survey);
    bool readSurvey(SurveyPoints& survey, const SurveyPoints& standing, ResultRows& rows);
    bool readSurvey(std::vector<SurveyPoint>& records);
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
    std::string m_connection;
    std::string m_reason; ///< of a failure, in the database's words
};
