#pragma once

#include "basalt_utilities/Dictionary.h"
#include "model/TakenOver.h"
#include "protocol/Outcome.h"

#include <QStringList>

#include <functional>
#include <vector>

class ProgressReporter;
struct ImportSummary;

/// What a project's database holds of its results, as it stands there.
struct SurveyRecords
{
    basalt::Dictionary coordParameters; ///< empty when the database has no coordinate system
    std::vector<SurveyPoint> records;   ///< all rows, in the order of the table
};

/// Gets what is in a database whose coordinate system is not the project's, and tells the user.
using OtherSystemHandler = std::function<void(const QString& path, SurveyRecords other)>;

/// Where results of another project come to.
struct SurveyImport
{
    SurveyPoints& points;
    const IDictionary& coordParameters;      ///< of the project
    const OtherSystemHandler& onOtherSystem; ///< may be empty
    TakenOver<SurveyPoints>* undo = nullptr; ///< filled when it is not null
};

/// Adds the results of another project's database to the points, all of them or none, over those of
/// the same numbers. Nothing is written to the database, and other programs may have it open.
///
/// A database of another coordinate system goes to the handler, and nothing is imported; the
/// outcome has no text then, since the user has been told. Without a handler it names the
/// parameters that differ. A database without a coordinate system is taken as it is. After an
/// interrupted save the results are those that were saved before. \param summary its lines are rows
/// of the table; of a failed import it holds the path alone
Outcome readSurveyDatabase(const QString& path, const SurveyImport& import,
                           ProgressReporter& progress, ImportSummary& summary);

/// Reads the results of another project's database without importing them. Nothing is written to
/// it.
/// \param remarks gets what the user should know of the results
Outcome readSurveyRecords(const QString& path, SurveyRecords& other, QStringList& remarks,
                          ProgressReporter& progress);
