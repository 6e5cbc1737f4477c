#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

#include <string>

class Acceptances;
class IDBAdapter;
class HistoryWriter;
class IDictionary;
class ProgressReporter;

/// What a save writes together with the points, as far as there is something.
struct SavedBeside
{
    const Acceptances* acceptances = nullptr;
    HistoryWriter* history = nullptr;
};

/// Writes a project into its database: one transaction empties the three tables, a second fills
/// them. A complete copy of the file stands beside it meanwhile.
class ProjectSaver
{
public:
    ProjectSaver(IDBAdapter& database, ProgressReporter& progress);

    /// The database must be there; columns that an older one lacks are added. When it fails, the
    /// file holds what it held before.
    Outcome save(const std::string& path, const DesignPoints& design, const SurveyPoints& survey,
                 const IDictionary& coordParameters, const SavedBeside& beside = {});

private:
    bool writeAll(const DesignPoints& design, const SurveyPoints& survey,
                  const IDictionary& coordParameters, const SavedBeside& beside);
    bool clearTables();
    bool addMissingColumns();
    /// Puts the file back as it was. \returns the failure, for the user
    Outcome undo(const std::string& path, const std::string& reason);

    IDBAdapter& m_database;
    ProgressReporter& m_progress;
    QString m_notice; ///< about acceptances that could not be written
};
