#pragma once

class QPainter;
class QString;
class SurveyMarks;
struct PictureFrame;

struct SurveyPictureOptions
{
    enum class Names
    {
        All,
        WithRoom, ///< none covers another or a result: those of lines and bases first, then by
                  ///< class
        None
    };

    bool showsBaseTies = true; ///< the lines from results to their base stations
    bool showsOffsets = true;  ///< the design positions, and the dashed lines to them
    Names names = Names::All;
};

/// What the picture has without a choice. Coloured results have names where there is room and no
/// lines to their base stations: thousands of grey ones would cover the ground.
[[nodiscard]] SurveyPictureOptions usualSurveyOptions(bool hasColors);

/// Paints the survey: each result with a line to its base station and a dashed line to its design
/// position.
///
/// What is drawn later covers what was drawn before. Marks with colours come last, class 0 on top,
/// and all but them is grey then. Blocks of marks out of sight are skipped by their bounds.
/// \param baseWord the word before a base station's number, counted from 1: "Base" in the user's
///        language
void paintSurvey(const SurveyMarks& marks, const PictureFrame& frame, const QString& baseWord,
                 QPainter& painter, const SurveyPictureOptions& options = {});
