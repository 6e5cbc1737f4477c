#pragma once

class QPainter;
class Transform;

/// An arrow to grid north, which is up on every map, in the upper right corner of the screen of
/// `view`; none on a screen too small for it.
void drawNorthArrow(QPainter& painter, const Transform& view);
