#pragma once

#include <QLineF>
#include <QRgb>
#include <QSize>
#include <QTransform>

#include <cstddef>

class QPainter;

/// Draws solid lines, one pixel wide and antialiased, straight into the pixels of a painter's
/// image.
///
/// Kept beside `QPainter::drawLine` because a survey picture draws hundreds of thousands of long
/// lines, and this is several times as fast; the picture tests compare the two.
class ThinLine
{
public:
    /// The width of a line where a screen pixel has several device pixels.
    enum class Width
    {
        ScreenPixel, ///< the painter itself must draw there
        DevicePixel
    };

    /// \param painter moved as it will be when lines are drawn
    /// \param color opaque
    ThinLine(const QPainter& painter, QRgb color, Width width = Width::ScreenPixel);

    /// \param line finite, and clipped to the picture or its surroundings
    /// \returns false, and draws nothing, when the painter itself must draw: its device is no image
    ///          of 32 bits, or it clips, rotates or scales otherwise than `Width` allows
    [[nodiscard]] bool draw(const QLineF& line);

private:
    /// How to walk through the pixels: `major` is the axis along which the line is longer.
    struct Axes
    {
        int majorSize;
        int minorSize;
        std::ptrdiff_t majorStep; ///< to the next pixel of this axis, in pixels of memory
        std::ptrdiff_t minorStep;
    };

    void drawAlong(const Axes& axes, QPointF from, QPointF to);
    void blend(const Axes& axes, int major, double minor, double cover);

    QRgb* m_pixels = nullptr; ///< of the image; null when only the painter can draw
    QTransform m_toPixels;
    QSize m_size;
    std::ptrdiff_t m_lineStep = 0; ///< to the next row of pixels, in pixels of memory
    QRgb m_color;
};
