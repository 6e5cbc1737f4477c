#pragma once

class QPainter;
class Transform;

namespace lum {

/// Draws an arrow to grid north, which is always up, in the upper right corner of the screen of
/// `view`. Draws nothing on a screen that is too small.
void drawNorthArrow(QPainter& painter, const Transform& view);

} // namespace lum
