#include "quality/colors/ChosenColors.h"

#include "basalt_utilities/KeyList.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/Colorings.h"

const Coloring* chosenColoring()
{
    return findColoring(get_system_ini_parameter().dictionary().text(settings::kResultColors));
}

std::string coloringState(const IDictionary& qualityParameters)
{
    const Coloring* const coloring = chosenColoring();
    if (coloring == nullptr)
        return {};
    return coloring->name + (' ' + shownZone().toStdString() + ' ') +
           dictionary_to_csa(qualityParameters);
}

ResultColors colorsOf(const Coloring* coloring, const SurveyPoints& survey,
                      const QualityLimits& limits)
{
    if (coloring == nullptr)
        return {};
    return resultColors(*coloring, {survey, limits, shownTimes()});
}
