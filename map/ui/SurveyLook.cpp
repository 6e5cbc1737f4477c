#include "map/ui/SurveyLook.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/ChosenColors.h"

SurveyPictureOptions chosenSurveyOptions(bool hasColors)
{
    using Names = SurveyPictureOptions::Names;
    const IDictionary& chosen = get_system_ini_parameter().dictionary();
    const std::string_view names = chosen.text(settings::kResultNames);
    SurveyPictureOptions options;
    options.showsBaseTies = chosen.integer(settings::kShowBaseTies, 1) != 0;
    options.showsOffsets = chosen.integer(settings::kShowOffsets, 1) != 0;
    if (names == "none")
        options.names = Names::None;
    else if (names == "room" || (names.empty() && hasColors))
        options.names = Names::WithRoom;
    return options;
}

std::string surveyLook()
{
    const IDictionary& chosen = get_system_ini_parameter().dictionary();
    std::string look;
    for (const char* key :
         {settings::kShowBaseTies, settings::kShowOffsets, settings::kResultNames})
        look.append(chosen.text(key)).append(";");
    if (DataProcessDataManager::hasInstance())
        look += coloringState(DataProcessDataManager::instance().qualityParameters());
    return look;
}
