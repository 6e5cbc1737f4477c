#pragma once

#include "map/SurveyPicture.h"

#include <string>

/// What the user has chosen of the survey picture.
/// \param hasColors without a choice, coloured results have names where there is room, and others
///        have all names
[[nodiscard]] SurveyPictureOptions chosenSurveyOptions(bool hasColors);

/// All that the survey picture depends on besides the points, as a text: the user's choices, and of
/// coloured results the limits that judge them.
[[nodiscard]] std::string surveyLook();
