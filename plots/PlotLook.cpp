#include "plots/PlotLook.h"

#include "quality/colors/ColorPalette.h"

#include <array>

namespace {

/// The palette's colours on a dark ground: those that would drown in it are lighter. Red stays for
/// what is over a limit.
constexpr std::array<QRgb, PlotLook::kClasses> kOnDark{0xffe8e4d8, palette::kSky, 0xff35c47a,
                                                       0xffab5cff, 0xffd9a0d0,    0xffd0703c};

PlotLook lookOf(bool isDark)
{
    PlotLook look;
    look.isDark = isDark;
    look.good = look.plain = palette::kSky;
    look.bad = palette::kRed;
    look.unknown = isDark ? QColor(0xff9a9a9a) : QColor(palette::kUnknown);
    look.others = isDark ? QColor(0xff7a7a7a) : QColor(palette::kOthers);
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
