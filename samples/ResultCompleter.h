#pragma once

#include "model/SurveyPoint.h"
#include "samples/DemoBase.h"

class ICoordTransform;
class QString;

namespace demo {

/// Sets the coordinate service up for the survey's system.
/// \returns an empty text, or why it cannot be used
[[nodiscard]] QString useSurveySystem(ICoordTransform& transform);

/// Fills in what follows from a result's own values: position on the earth, deviations from the
/// line, the reference station's place and distance, PDOP and RMS.
class ResultCompleter
{
public:
    /// \param transform of the survey's system; outlives the completer
    explicit ResultCompleter(ICoordTransform& transform) : m_transform(transform) {}

    void complete(SurveyPoint& point);

private:
    void setReference(SurveyPoint& point);

    ICoordTransform& m_transform;
};

} // namespace demo
