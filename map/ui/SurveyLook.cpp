#include "map/ui/SurveyLook.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/ChosenColors.h"

SurveyPictureOptions chosenSurveyOptions(bool hasColors)
{
    using Names = SurveyPictureOptions::Names;
    const IDictionary& chosen = get_system_ini_parameter().dictionary();
    const std::string_view ties = chosen.text(settings::kShowBaseTies);
    const std::string_view names = chosen.text(settings::kResultNames);
    SurveyPictureOptions options = usualSurveyOptions(hasColors);
    if (!ties.empty())
        options.showsBaseTies = ties != "0";
    options.showsOffsets = chosen.integer(settings::kShowOffsets, 1) != 0;
    if (names == "none")
        options.names = Names::None;
    else if (names == "room")
        options.names = Names::WithRoom;
    else if (names == "all")
        options.names = Names::All;
    return options;
}

std::string surveyChoice()
{
    const IDictionary& chosen = get_system_ini_parameter().dictionary();
    std::string choice;
    for (const char* key : {settings::kResultColors, settings::kShowBaseTies,
                            settings::kShowOffsets, settings::kResultNames})
        choice.append(chosen.text(key)).append(";");
    return choice;
}

std::string surveyLook()
{
    std::string look = surveyChoice();
    if (DataProcessDataManager::hasInstance())
        look += coloringState(DataProcessDataManager::instance().qualityParameters());
    return look;
}
