#pragma once

class QPainter;
class QString;
class SurveyMarks;
struct PictureFrame;

/// Paints the survey: each result with a line to its base station and a dashed line to its design
/// position.
///
/// What is drawn later covers what was drawn before. Blocks of marks out of sight are skipped by
/// their bounds.
/// \param baseWord the word before a base station's number, counted from 1: "Base" in the user's
///        language
void paintSurvey(const SurveyMarks& marks, const PictureFrame& frame, const QString& baseWord,
                 QPainter& painter);
