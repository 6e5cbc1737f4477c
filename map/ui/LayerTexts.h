#pragma once

#include <cstddef>

class QString;
struct GridPlace;

/// The words of the data layer in the user's language. Any thread may ask for those without a
/// position.
namespace LayerTexts {

/// The word in the label of a base station, as in "Base-1". Labels count from 1.
[[nodiscard]] QString baseLabel();
/// The label of a base station; the first has the index 0.
[[nodiscard]] QString baseName(std::size_t index);
/// The word in the name of a picked base station, as in "base-0". Names count from 0.
[[nodiscard]] QString basePick();
/// The captions of the progress bar while a picture is drawn.
[[nodiscard]] QString drawDesign();
[[nodiscard]] QString drawSurvey();
/// What is said to a choice that another view shows.
[[nodiscard]] QString seenInSurveyView();

// What the resting cursor tells: what lies there, and below it the position on the grid, with the
// numbers that lists and files have, and their unit when it is not the metre.

/// \param type of the line: 1 receiver, 0 source
[[nodiscard]] QString designTip(int type, const QString& line, const QString& point,
                                const GridPlace& grid);
[[nodiscard]] QString surveyTip(const QString& line, const QString& point, const GridPlace& grid);
/// \param index counted from 0
[[nodiscard]] QString baseTip(std::size_t index, const GridPlace& grid);

} // namespace LayerTexts
