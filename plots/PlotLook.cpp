#include "plots/PlotLook.h"

#include "quality/colors/ColorPalette.h"

#include <QFontInfo>

#include <algorithm>
#include <array>

namespace {

/// The palette's colours would drown in a dark ground. A search found these in its way: as each of
/// the four kinds of eyes sees them, any two of them, the ground, `kOthersOnDark` and the red of
/// what is over a limit differ by more than 17 (CIEDE2000).
constexpr std::array<QRgb, PlotLook::kClasses> kOnDark{0xffe8e4d8, palette::kSky, 0xffb9ed64,
                                                       0xff9546c7, 0xffd96fa6,    0xff819f78};
constexpr QRgb kOthersOnDark = 0xff6b6b6b;

PlotLook lookOf(bool isDark)
{
    PlotLook look;
    look.isDark = isDark;
    look.good = look.plain = palette::kSky;
    look.bad = palette::kRed;
    look.unknown = isDark ? QColor(0xff9a9a9a) : QColor(palette::kUnknown);
    look.others = isDark ? QColor(kOthersOnDark) : QColor(palette::kOthers);
    look.limit = isDark ? QColor(0xffff6a55) : QColor(palette::kMaroon);
    look.figure = isDark ? QColor(0xffe8e4d8) : QColor(palette::kNavy);
    look.selected = QColor(0xffffc400);
    return look;
}

} // namespace

PlotLook PlotLook::onScreen(const QPalette& palette)
{
    PlotLook look = lookOf(palette.color(QPalette::Base).lightness() < 128);
    look.palette = palette;
    look.paper = palette.color(QPalette::Base);
    look.text = palette.color(QPalette::Text);
    look.faint = palette.color(QPalette::Mid);
    return look;
}

PlotLook PlotLook::onPaper()
{
    PlotLook look = lookOf(false);
    look.palette = QPalette(Qt::white);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        look.palette.setColor(role, Qt::white);
    look.text = QColor(0xff1f2328);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        look.palette.setColor(role, look.text);
    look.paper = Qt::white;
    look.faint = QColor(0xffc4c9cf);
    look.palette.setColor(QPalette::Mid, look.faint);
    return look;
}

QColor PlotLook::ofClass(std::size_t place) const
{
    if (place >= kClasses)
        return others;
    return isDark ? kOnDark[place] : palette::kDistinct[place];
}

QFont smallerFont(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * 0.9);
    else
        font.setPixelSize(std::max(8, font.pixelSize() * 9 / 10));
    return font;
}

QFont unscaledFont(QFont font)
{
    font.setPixelSize(QFontInfo(font).pixelSize());
    return font;
}
