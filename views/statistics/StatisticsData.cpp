#include "views/statistics/StatisticsData.h"

#include "basalt_utilities/IDictionary.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "quality/QualityLimits.h"

#include <utility>

namespace {

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

double planeUnitM()
{
    return lum::lengthUnitOf(get_project_coord_transform().parameters()).metres;
}

/// Points, limits, unit and time zone: equal as long as they are.
std::string presentState()
{
    std::string state = std::to_string(manager().designPoints().revision()) + ' ' +
                        std::to_string(manager().surveyPoints().revision()) + ' ' +
                        std::to_string(planeUnitM()) + ' ';
    state += get_system_ini_parameter().dictionary().text(settings::kTimeZone);
    const IDictionary& limits = manager().qualityParameters();
    for (std::size_t i = 0; i < limits.size(); ++i) {
        state += '\n';
        state += limits.keyAt(i);
        state += '=';
        state += limits.valueAt(i);
    }
    return state;
}

} // namespace

bool StatisticsData::isCurrent() const
{
    return m_all.sample != nullptr && DataProcessDataManager::hasInstance() &&
           m_state == presentState();
}

void StatisticsData::read()
{
    const IDictionary& parameters = manager().qualityParameters();
    const SurveyPoints& survey = manager().surveyPoints();
    const std::string code(qualityParameter(parameters, kResurveyCode));
    QualityLimits limits = QualityLimits::from(parameters);
    limits.planeUnitM = planeUnitM();

    auto pairs = std::make_shared<statistics::MeasuredPairs>(
        statistics::resurveyPairs(survey, code, limits.planeUnitM));
    statistics::MeasuredPairs repeats = statistics::repeatPairs(survey, limits.planeUnitM);
    pairs->pairs.insert(pairs->pairs.end(), repeats.pairs.begin(), repeats.pairs.end());
    auto sample = std::make_shared<statistics::SurveySample>(
        statistics::sampleOf({manager().designPoints(), survey, limits, code, shownTimes(), {}}));
    m_all = PlotData::ofAll(std::move(sample), std::move(pairs), shownTimes());
    m_all.tolerances = ResurveyTolerances::from(parameters, limits.planeUnitM);
    m_state = presentState();
}
