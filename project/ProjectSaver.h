#pragma once

#include "model/PointLines.h"
#include "project/StoreResult.h"

#include <string>

class IDBAdapter;
class IDictionary;
class ProgressReporter;

/// Writes a project into its database: the three tables are emptied and filled again, in two
/// transactions, while a complete copy of the file stands beside it.
class ProjectSaver
{
public:
    ProjectSaver(IDBAdapter& database, ProgressReporter& progress);

    /// The database must be there; columns that an older one lacks are added. When it fails, the
    /// file holds what it held before.
    StoreResult save(const std::string& path, const DesignPoints& design,
                     const SurveyPoints& survey, const IDictionary& coordParameters);

private:
    bool clearTables();
    bool addMissingColumns();
    bool writeDesign(const DesignPoints& design);
    bool writeSurvey(const SurveyPoints& survey);
    bool writeCoordinateSystem(const IDictionary& parameters);
    StoreResult undo(const std::string& path);

    IDBAdapter& m_database;
    ProgressReporter& m_progress;
};
