#pragma once

#include <QColor>
#include <QImage>

#include <concepts>

/// How many pixels of a part of a picture are of a kind.
/// \param isCounted  asked with the place of each pixel
template <std::predicate<QPoint> IsCounted>
int countPixels(const QImage& picture, const QRect& part, const IsCounted& isCounted)
{
    const QRect area = part & picture.rect();
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += isCounted(QPoint(x, y)) ? 1 : 0;
    }
    return count;
}

/// How many are of exactly this colour.
inline int countPixels(const QImage& picture, const QRect& part, const QColor& color)
{
    return countPixels(picture, part,
                       [&](const QPoint& at) { return picture.pixelColor(at) == color; });
}
