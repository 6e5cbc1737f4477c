#include "lum_desktop_sdkx/controls/FaultColors.h"

#include <QPalette>

QColor faultBackground()
{
    return QColor(0xe0, 0x30, 0x30, 0x60);
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
