#pragma once

class QString;

namespace demo {

struct DemoSurvey;

/// Writes "design.csv", "survey.csv" and "faults.csv" into a folder, which is made when it is
/// missing. Captions and names are in the language of the program. The files show the times of the
/// survey's clocks, so they are the same in every time zone of the computer.
/// \returns an empty text, or why a file could not be written
[[nodiscard]] QString writeDemoFiles(const QString& folder, const DemoSurvey& demo);

} // namespace demo
