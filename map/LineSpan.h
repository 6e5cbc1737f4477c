#pragma once

#include "map/MarkTable.h"

#include <QLineF>

class Transform;

/// The one segment that is drawn for a whole line of marks, screen pixels.
///
/// It starts at the last mark before the line enters `area` (screen pixels), or at the line's first
/// mark when that lies inside. It ends at the first mark outside after that, or at the line's last
/// mark. For a line wholly outside both ends are the last mark.
[[nodiscard]] QLineF lineSpan(const MarkTable& marks, const MarkTable::Line& line,
                              const Transform& transform, const QRectF& area);
