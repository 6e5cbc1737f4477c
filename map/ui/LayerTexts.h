#pragma once

class QString;

/// The words of the data layer in the user's language; for any thread.
namespace LayerTexts {

/// Of a base station on the map: "Base", and its number counted from 1 behind a dash.
[[nodiscard]] QString baseLabel();
/// Of a base station that was picked: "base", and its index counted from 0 behind a dash.
[[nodiscard]] QString basePick();
/// Captions of the progress bar.
[[nodiscard]] QString drawDesign();
[[nodiscard]] QString drawSurvey();

} // namespace LayerTexts
