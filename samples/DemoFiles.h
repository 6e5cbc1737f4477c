#pragma once

class QString;

namespace demo {

struct DemoSurvey;

/// Writes "design.csv", "survey.csv" and "faults.csv" into a folder, which is made when it is
/// missing. Captions and names are in the language of the program. The times are those of the
/// survey's clocks, so that the files are the same in every time zone.
/// \returns an empty text, or why a file could not be written
[[nodiscard]] QString writeDemoFiles(const QString& folder, const DemoSurvey& demo);

} // namespace demo
