#pragma once

#include "model/Language.h"

#include <QString>

// Codes of a survey result and their names, in the language in use unless another is given.

/// The name of a solution type; 2 and 3 are both differential, an unknown code is "unknow".
[[nodiscard]] QString solutionTypeText(int code, const Language& language = {});

/// The code of a solution type's name; -1 for any other text. "differential" is 2.
[[nodiscard]] int solutionTypeCode(const QString& text, const Language& language = {});

/// The name of an obstacle, 1 to 33; "undefined" for any other code.
[[nodiscard]] QString obstacleText(int code);

/// The name of a measuring mode: "loft" for 0, stake-out, otherwise "survey".
[[nodiscard]] QString measureModeText(int mode, const Language& language = {});
