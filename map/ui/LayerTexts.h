#pragma once

class QString;

/// The words of the data layer in the user's language. Any thread may ask.
namespace LayerTexts {

/// The word in the label of a base station, as in "Base-1". Labels count from 1.
[[nodiscard]] QString baseLabel();
/// The word in the name of a picked base station, as in "base-0". Names count from 0.
[[nodiscard]] QString basePick();
/// The captions of the progress bar while a picture is drawn.
[[nodiscard]] QString drawDesign();
[[nodiscard]] QString drawSurvey();

} // namespace LayerTexts
