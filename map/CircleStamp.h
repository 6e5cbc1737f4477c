#pragma once

#include <QBrush>
#include <QImage>
#include <QPen>

class QPainter;

/// A circle of one size and colour that is drawn many times: an image of it, at sixteen places
/// within a pixel, laid down where it is wanted.
class CircleStamp
{
public:
    /// \param radius screen pixels
    /// \param pixelRatio device pixels to a screen pixel, of what it will be drawn on
    CircleStamp(double radius, const QPen& pen, const QBrush& brush, double pixelRatio);

    /// Stamps it on a painter that is neither turned nor scaled.
    /// \param center screen pixels; one that is far outside is passed over
    void draw(QPainter& painter, const QPointF& center) const;

private:
    double m_ratio;
    int m_side; ///< of one image, device pixels
    QImage m_images;
};
