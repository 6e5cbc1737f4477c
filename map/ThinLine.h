#pragma once

#include <QLineF>
#include <QRgb>
#include <QSize>

#include <cstddef>

class QPainter;

/// Draws solid lines one pixel wide, with soft edges, straight into the picture that a painter
/// works on: where hundreds of thousands of long lines are drawn, several times as quickly.
class ThinLine
{
public:
    /// \param color opaque
    ThinLine(const QPainter& painter, QRgb color);

    /// \param line finite, and cut down to what lies in or near the picture
    /// \returns false, and draws nothing, where only the painter itself can draw: on anything but a
    ///          plain picture of one pixel to a pixel, or when it is clipped, turned or scaled
    [[nodiscard]] bool draw(const QLineF& line);

private:
    /// Pixels along a line, `major` its longer direction.
    struct Axes
    {
        int majorSize;
        int minorSize;
        std::ptrdiff_t majorStep; ///< from a pixel to the next, in pixels of memory
        std::ptrdiff_t minorStep;
    };

    void drawAlong(const Axes& axes, QPointF from, QPointF to);
    void blend(const Axes& axes, int major, double minor, double cover);

    QRgb* m_pixels = nullptr; ///< of the picture; null when it cannot be drawn into
    QSize m_size;
    std::ptrdiff_t m_lineStep = 0; ///< pixels of memory to a line
    QRgb m_color;
};
