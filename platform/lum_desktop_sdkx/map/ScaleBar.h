#pragma once

class QPainter;
class QString;
class Transform;

enum class LengthUnit
{
    Metres,
    Feet
};

/// A bar with its length in round numbers, in the lower left corner of the screen of `view`; none
/// on a screen too small for it, nor where it would be longer than the earth is round.
void drawScaleBar(QPainter& painter, const Transform& view, LengthUnit unit);

/// The longest length of 1, 2 or 5 times a power of ten that is not above `limit`, which is > 0.
[[nodiscard]] double roundLength(double limit);

/// "500 m", "2 km", "0.05 ft"; no exponent, from a micrometre to the girth of the earth.
[[nodiscard]] QString lengthText(double length, LengthUnit unit);
