#pragma once

#include <QBrush>
#include <QImage>
#include <QPen>

class QPainter;

/// A circle of one size and colour that is drawn many times.
///
/// The constructor paints it into sixteen small images, with the centre at another place within the
/// pixel in each; `draw` copies the one that fits. Kept beside `QPainter::drawEllipse` because a
/// copy costs much less, and a picture holds up to hundreds of thousands of circles.
class CircleStamp
{
public:
    /// \param radius screen pixels
    /// \param pixelRatio device pixels to a screen pixel, on the device to draw on
    CircleStamp(double radius, const QPen& pen, const QBrush& brush, double pixelRatio);

    /// Draws the circle with a painter that is neither rotated nor scaled.
    /// \param center screen pixels; a place far outside of the picture is skipped
    void draw(QPainter& painter, const QPointF& center) const;

private:
    double m_ratio;
    int m_side;      ///< of each small image, device pixels
    QImage m_images; ///< the sixteen small images, four by four
};
