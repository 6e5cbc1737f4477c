#pragma once

#include "basalt_utilities/LocalTimes.h"

class QString;

namespace demo {

struct DemoSurvey;

/// Writes "design.csv", "survey.csv", "faults.csv" and, for "skyquill-cli set-quality",
/// "limits.txt" into a folder, which is made when it is missing. Captions and names are in the
/// language of the program. \param zone  of the survey's clocks. Files hold the times of this
/// computer's zone: when it is that
///              one, as by default, they are the same everywhere.
/// \returns an empty text, or why a file could not be written
[[nodiscard]] QString writeDemoFiles(const QString& folder, const DemoSurvey& demo,
                                     const basalt::LocalTimes& zone = {});

} // namespace demo
