#include "quality/colors/ChosenColors.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/Colorings.h"

const Coloring* chosenColoring()
{
    return findColoring(get_system_ini_parameter().dictionary().text(settings::kResultColors));
}

ResultColors colorsOf(const Coloring* coloring, const SurveyPoints& survey,
                      const QualityLimits& limits)
{
    if (coloring == nullptr)
        return {};
    return resultColors(*coloring, {survey, limits, shownTimes()});
}
