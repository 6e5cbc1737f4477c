#include "quality/problems/FinderInput.h"

FinderInput::FinderInput(const ProblemInput& data)
    : m_data(data), m_quality(QualityLimits::from(data.parameters)),
      m_resurveyCode(qualityParameter(data.parameters, kResurveyCode))
{
    m_quality.planeUnitM = data.planeUnitM;
}
