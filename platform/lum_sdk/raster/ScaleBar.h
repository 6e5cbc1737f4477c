#pragma once

#include <QRect>

class QPainter;
class QString;
class Transform;

namespace lum {

struct LengthUnit;
struct ShownUnit;

/// Draws a bar of a round length in the unit that is shown, and the length beside it, in the lower
/// left corner of the screen of `view`. Draws nothing on a screen that is too small, or when the
/// bar would be longer than the circumference of the earth.
/// \returns the place that it takes; empty when nothing was drawn
QRect drawScaleBar(QPainter& painter, const Transform& view, const ShownUnit& unit);

/// The greatest length of 1, 2 or 5 times a power of ten that is not above `limit`.
/// \param limit > 0
[[nodiscard]] double roundLength(double limit);

/// "500 m", "2 km", "0.05 ft", "20 ftUS"; without exponent from a micrometre to the circumference
/// of the earth.
[[nodiscard]] QString lengthText(double length, const LengthUnit& unit);

} // namespace lum
