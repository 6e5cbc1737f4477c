#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

#include <functional>

class IDictionary;
class ProgressReporter;
struct ImportSummary;

/// Gets the coordinate system and the results of a database whose system is not the project's.
using OtherSystemHandler =
    std::function<void(const IDictionary& coordParameters, const SurveyPoints& results)>;

/// Where results of another project come to.
struct SurveyImport
{
    SurveyPoints& points;
    const IDictionary& coordParameters;      ///< of the project
    const OtherSystemHandler& onOtherSystem; ///< may be empty
};

/// Adds the results of another project's database to the points, all of them or none, over those of
/// the same numbers. Nothing is written to the database, and other programs may have it open.
///
/// A database of another coordinate system goes to the handler and is refused, naming the
/// parameters that differ. One without a coordinate system is taken as it is. After an interrupted
/// save the results are those that were saved before.
/// \param summary its lines are rows of the table; of a failed import it holds the path alone
Outcome readSurveyDatabase(const QString& path, const SurveyImport& import,
                           ProgressReporter& progress, ImportSummary& summary);
