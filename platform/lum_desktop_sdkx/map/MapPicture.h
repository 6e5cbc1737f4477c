#pragma once

#include "lum_sdk/Transform.h"

#include <QImage>

class QColor;
class QPainter;

/// The last picture of the map with the view it was made for: what the user sees at once while a
/// new one is in work.
class MapPicture
{
public:
    void set(const QImage& image, const Transform& view);

    /// Draws it where it belongs in the view `live`, with `background` wherever it does not reach.
    ///
    /// At the scale it was made for it is copied as it is, to whole device pixels; at another one
    /// it is stretched without smoothing, up to a factor of 64, beyond which it would show nothing.
    void draw(QPainter& painter, const Transform& live, const QColor& background) const;

private:
    /// Where it goes on the screen; null when it is not to be seen there.
    [[nodiscard]] QRectF place(const Transform& live) const;

    QImage m_image;
    Transform m_view;
};
