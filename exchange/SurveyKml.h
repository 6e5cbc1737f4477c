#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

#include <QStringList>

#include <functional>

class ICoordTransform;
class ProgressReporter;

/// The survey results that a KML export is for.
struct SurveyKmlChoice
{
    const SurveyPoints& points;
    const QStringList& lines; ///< in this order; those that do not exist are passed over
    /// The faults of a result in words; empty for a good one.
    const std::function<QString(const SurveyPoint&)>& qualityWords;
};

/// The same as `writeDesignKml` for survey results. They too are placed by their plane coordinates,
/// not by the measured latitude and longitude.
Outcome writeSurveyKml(const QString& path, const SurveyKmlChoice& choice,
                       ICoordTransform& transform, ProgressReporter& progress);
