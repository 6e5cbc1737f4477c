#include "project/edits/EditParts.h"

#include <algorithm>

void keepVerdict(const SurveyPoint& from, SurveyPoint& to)
{
    to.qualityStandard = from.qualityStandard;
    to.isResurvey = from.isResurvey;
    to.resurveyXDiff = from.resurveyXDiff;
    to.resurveyYDiff = from.resurveyYDiff;
    to.resurveyHDiff = from.resurveyHDiff;
    to.pairedNumber = from.pairedNumber;
}

void keepVerdict(const DesignPoint& from, DesignPoint& to)
{
    to.status = from.status;
}

const IDictionary& Parameters::present(const EditedData& data) const
{
    if (m_which == kQualityScope)
        return data.quality;
    if (m_which == kDesignParameterScope)
        return data.designParameters;
    return data.coordSystem;
}

void Parameters::exchange(const EditedData& data)
{
    if (m_which == kCoordSystemScope) {
        basalt::Dictionary before(data.coordSystem);
        try {
            data.setCoordSystem(m_other);
        } catch (...) {
            data.setCoordSystem(before);
            throw;
        }
        m_other = std::move(before);
    } else {
        std::swap(m_which == kQualityScope ? data.quality : data.designParameters, m_other);
    }
}

void Parameters::tell(const EditedData& data, IEditReader& reader) const
{
    reader.parametersChanged(m_which, m_other, present(data));
}

AcceptedProblems::AcceptedProblems(const std::vector<Acceptance>& problems, Acceptances other)
    : m_other(std::move(other))
{
    m_problems.reserve(problems.size());
    for (const Acceptance& problem : problems)
        m_problems.push_back(
            {problem.kind, problem.isDesign, problem.name, problem.fingerprint, {}, {}, {}});
    constexpr Acceptance::Order kOrder;
    std::ranges::sort(m_problems, kOrder);
    const auto areSame = [&](const auto& first, const auto& second) {
        return !kOrder(first, second); // since they are sorted
    };
    m_problems.erase(std::unique(m_problems.begin(), m_problems.end(), areSame), m_problems.end());
}
