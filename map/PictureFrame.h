#pragma once

#include "lum_sdk/Transform.h"

#include <functional>

/// The view that a picture is painted for, and the two calls that the painter makes on its way.
struct PictureFrame
{
    Transform transform;
    QRectF drawingArea; ///< marks outside it are left out; screen pixels
    std::function<bool()> isStopped = [] { return false; }; ///< true ends the paint; called often
    std::function<void(double)> lineDone = [](double) {}; ///< a line is drawn; percent of all lines

    /// The map rectangle of the screen and of `margin` screen pixels around it.
    [[nodiscard]] QRectF mapArea(double margin) const
    {
        return transform.ScreenToSurvey(screenArea(margin)).normalized();
    }
    [[nodiscard]] QRectF screenArea(double margin) const
    {
        return QRectF(QPointF(0, 0), QSizeF(transform.size()))
            .adjusted(-margin, -margin, margin, margin);
    }
};
