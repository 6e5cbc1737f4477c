#pragma once

class QPainter;
class QString;
class SurveyMarks;
struct PictureFrame;

/// Paints the survey: each result with a line to its base station and a dashed one to the place
/// that it was designed for.
///
/// Everything covers what was drawn before it. What cannot be seen costs a look at its bounds.
/// \param baseWord "Base" in the user's language: stations are labelled with it and their number,
///        counted from 1
void paintSurvey(const SurveyMarks& marks, const PictureFrame& frame, const QString& baseWord,
                 QPainter& painter);
