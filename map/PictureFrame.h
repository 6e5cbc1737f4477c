#pragma once

#include "lum_sdk/Transform.h"

#include <functional>

/// What a picture is painted into, and whom it tells.
struct PictureFrame
{
    Transform transform;
    QRectF drawingArea; ///< marks outside it are left out; screen pixels
    std::function<bool()> isStopped = [] { return false; }; ///< asked often; true ends the paint
    std::function<void(double)> lineDone = [](double) {};   ///< a line's end; percent of all

    /// The map rectangle of what can be seen, and of `margin` screen pixels around it.
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
