#pragma once

#include "model/SurveyPoint.h"
#include "samples/DemoBase.h"

class ICoordTransform;
class QString;

namespace demo {

/// Sets `transform` up for the coordinate system of the survey.
/// \returns an empty text, or why it cannot be used
[[nodiscard]] QString useSurveySystem(ICoordTransform& transform);

/// Computes the values of a result that follow from others: latitude, longitude and altitude, the
/// deviations from the line, place and distance of the reference station, PDOP and RMS.
class ResultCompleter
{
public:
    /// \param transform set up by `useSurveySystem`; outlives the completer
    explicit ResultCompleter(ICoordTransform& transform) : m_transform(transform) {}

    void complete(SurveyPoint& point);

private:
    void setReference(SurveyPoint& point);

    ICoordTransform& m_transform;
};

} // namespace demo
