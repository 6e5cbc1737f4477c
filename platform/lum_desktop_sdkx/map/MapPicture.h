#pragma once

#include "lum_sdk/Transform.h"

#include <QImage>

class QColor;
class QPainter;

/// The last picture of the map, and the view that it was painted for. The user sees it until the
/// next one is painted.
class MapPicture
{
public:
    void set(const QImage& image, const Transform& view);

    /// Draws the picture at its place in the view `live`, and `background` around it.
    ///
    /// At the scale that it was painted for it is copied to whole device pixels. At another scale
    /// it is stretched without smoothing. When that needs a factor beyond 64, it is not drawn.
    void draw(QPainter& painter, const Transform& live, const QColor& background) const;

private:
    /// The place of the picture on the screen; null when it cannot be seen.
    [[nodiscard]] QRectF place(const Transform& live) const;

    QImage m_image;
    Transform m_view;
};
