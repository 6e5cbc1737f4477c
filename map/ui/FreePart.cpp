#include "map/ui/FreePart.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/Transform.h"

#include <QRect>
#include <QRegion>

#include <algorithm>

QRectF freePart(const IMapWindow& map)
{
    const QRect whole(QPoint(0, 0), map.transform().size());
    const QRect covered = (QRegion(whole) - map.uncovered()).boundingRect();
    if (covered.isEmpty())
        return whole;
    QRect left = whole;
    left.setRight(covered.left() - 1);
    QRect right = whole;
    right.setLeft(covered.right() + 1);
    QRect above = whole;
    above.setBottom(covered.top() - 1);
    QRect below = whole;
    below.setTop(covered.bottom() + 1);
    const auto area = [](const QRect& part) { return qint64(part.width()) * part.height(); };
    const QRect largest = std::max({left, right, above, below},
                                   [&](const auto& a, const auto& b) { return area(a) < area(b); });
    return area(largest) > 0 ? largest : whole;
}
