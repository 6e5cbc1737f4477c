#pragma once

#include <QString>

// Codes of a survey result and their names in the user's language.

/// The name of a solution type; 2 and 3 are both differential, an unknown code is "unknow".
[[nodiscard]] QString solutionTypeText(int code);

/// The code of a solution type's name; -1 for any other text. "differential" is 2.
[[nodiscard]] int solutionTypeCode(const QString& text);

/// The name of an obstacle, 1 to 33; "undefined" for any other code.
[[nodiscard]] QString obstacleText(int code);

/// The name of a measuring mode: "loft" for 0, stake-out, otherwise "survey".
[[nodiscard]] QString measureModeText(int mode);
