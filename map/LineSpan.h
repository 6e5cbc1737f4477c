#pragma once

#include "map/MarkTable.h"

#include <QLineF>

class Transform;

/// The one segment that stands for a whole line of marks, screen pixels.
///
/// From the last mark outside `area` (screen pixels) before the first inside, or from the line's
/// first when that lies inside; to the first mark outside after that, or the line's last. Of a line
/// wholly outside it is the last mark alone.
[[nodiscard]] QLineF lineSpan(const MarkTable& marks, const MarkTable::Line& line,
                              const Transform& transform, const QRectF& area);
