#include "quality/problems/FinderInput.h"

FinderInput::FinderInput(const ProblemInput& data)
    : m_data(data), m_quality(QualityLimits::from(data.parameters)),
      m_resurveyCode(qualityParameter(data.parameters, kResurveyCode))
{
    m_quality.planeUnitM = data.planeUnitM;
}

const IndexedPoints<DesignPoint>& FinderInput::indexedDesign(bool isReceiver) const
{
    Late<DesignPoint>& late = isReceiver ? m_receivers : m_sources;
    std::call_once(late.isMade, [&] {
        late.points.emplace(design(), planeUnitM(), [&](const DesignPoint& point) {
            return (point.type != 0) == isReceiver;
        });
    });
    return *late.points;
}

const IndexedPoints<SurveyPoint>& FinderInput::indexedResults() const
{
    std::call_once(m_results.isMade, [&] {
        m_results.points.emplace(survey(), planeUnitM(),
                                 [](const SurveyPoint& /*point*/) { return true; });
    });
    return *m_results.points;
}
