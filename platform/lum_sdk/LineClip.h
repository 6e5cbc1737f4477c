#pragma once

#include <QLineF>

#include <optional>

class QRectF;

/// The part of `line` inside `area`, in the line's direction; nothing when it lies outside or is
/// not finite.
///
/// At high zoom a line ends millions of pixels away. The paint engine would take very long, since
/// it computes every dash up to there.
[[nodiscard]] std::optional<QLineF> clippedLine(const QLineF& line, const QRectF& area);
