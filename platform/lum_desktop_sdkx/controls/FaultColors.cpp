#include "lum_desktop_sdkx/controls/FaultColors.h"

#include <QPalette>

#include <cmath>

namespace {

/// An opaque colour in place of one that shines through.
QColor over(const QColor& below, const QColor& above)
{
    const auto mixed = [&](int low, int high) {
        return low + static_cast<int>(std::lround((high - low) * above.alphaF()));
    };
    return {mixed(below.red(), above.red()), mixed(below.green(), above.green()),
            mixed(below.blue(), above.blue())};
}

} // namespace

QColor faultBackground()
{
    return QColor(0xe0, 0x30, 0x30, 0x60);
}

QColor faultBase(const QPalette& palette)
{
    return over(palette.color(QPalette::Base), faultBackground());
}

QColor warningBackground()
{
    return QColor(0xe8, 0xa0, 0x10, 0x60);
}

QColor faultText(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(0xff, 0x8a, 0x80) : QColor(Qt::red);
}
