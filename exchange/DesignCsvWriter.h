#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

class ProgressReporter;
class QString;
class QStringList;

/// Writes the design points of `lines`, in the order of that list, below a heading. The file has
/// one column more than `readDesignCsv` expects: the design code, which is the point number again.
/// Lines that do not exist are passed over.
/// \param onlyUnsurveyed leaves out points with another status than 0
/// \returns why the file cannot be written; it is then as it was before
Outcome writeDesignCsv(const QString& path, const DesignPoints& points, const QStringList& lines,
                       bool onlyUnsurveyed, ProgressReporter& progress);
