#pragma once

#include "model/PointLines.h"

class ProgressReporter;
class QString;
class QStringList;

/// Writes the design points of `lines`, in the order of that list, with a heading: a point number
/// more (as design code) than `readDesignCsv` expects. Lines that do not exist are passed over.
/// \param onlyUnsurveyed leaves out points with another status than 0
/// \returns an empty text, or why the file could not be written; it then stands as it was
[[nodiscard]] QString writeDesignCsv(const QString& path, const DesignPoints& points,
                                     const QStringList& lines, bool onlyUnsurveyed,
                                     ProgressReporter& progress);
