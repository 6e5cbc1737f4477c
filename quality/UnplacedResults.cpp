#include "quality/UnplacedResults.h"

#include "basalt_utilities/ILogger.h"
#include "model/SurveyPoint.h"

#include <cmath>

namespace {
constexpr std::size_t kNamed = 5;
}

void UnplacedResults::examine(const SurveyPoint& point)
{
    if (!std::isnan(point.north) && !std::isnan(point.east) && !std::isnan(point.elevation))
        return;
    if (++m_count <= kNamed)
        m_names += (m_count == 1 ? "" : ", ") + point.lineNumber + '/' + point.pointNumber;
}

void UnplacedResults::warn() const
{
    if (m_count == 0)
        return;
    basalt::logWarning(
        "Results whose position is no number, and so passes: " + std::to_string(m_count) + " (" +
        m_names + (m_count > kNamed ? ", ...)" : ")"));
}
