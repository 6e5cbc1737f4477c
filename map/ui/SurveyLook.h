#pragma once

#include "map/SurveyPicture.h"

#include <string>

/// What the user has chosen of the survey picture, and the usual where nothing is chosen.
[[nodiscard]] SurveyPictureOptions chosenSurveyOptions(bool hasColors);

/// The same choices and that of the colours, as a text.
[[nodiscard]] std::string surveyChoice();

/// All that the survey picture depends on besides the points, as a text: the user's choices, and of
/// coloured results the limits that judge them.
[[nodiscard]] std::string surveyLook();
