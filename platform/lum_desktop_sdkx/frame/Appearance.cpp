#include "lum_desktop_sdkx/frame/Appearance.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/frame/DesktopStyle.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace {

struct Colors
{
    QRgb window, base, alternate, text, button, border, disabled, highlight, link;
};
constexpr Colors kLight = {0xFFF3F4F6, 0xFFFFFFFF, 0xFFF6F8FA, 0xFF1F2328, 0xFFF3F4F6,
                           0xFFC4C9CF, 0xFF9AA1A9, 0xFF2F74C0, 0xFF1F5FA8};
constexpr Colors kDark = {0xFF2A2D31, 0xFF1E2023, 0xFF25282C, 0xFFE3E6EA, 0xFF33373C,
                          0xFF565C63, 0xFF7C838B, 0xFF3F83CF, 0xFF7DB2EE};

QPalette makePalette(const Colors& colors)
{
    QPalette palette{QColor(colors.button), QColor(colors.window)};
    palette.setColor(QPalette::WindowText, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternate);
    palette.setColor(QPalette::Text, colors.text);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    palette.setColor(QPalette::ToolTipText, colors.text);
    palette.setColor(QPalette::PlaceholderText, colors.disabled);
    palette.setColor(QPalette::Mid, colors.border);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colors.link);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colors.disabled);
    return palette;
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

} // namespace

namespace desktop {

void applyAppearance(const QString& theme)
{
    QApplication::setStyle(new DesktopStyle); // the application owns it
    const bool dark = theme == QLatin1String("dark") ||
                      (theme != QLatin1String("light") && isDark(QApplication::palette()));
    QApplication::setPalette(makePalette(dark ? kDark : kLight));
    // Without a desktop environment no icon theme is set, so that name and path are set here.
    QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() << QStringLiteral("/usr/share/icons"));
    // Drawings of our own, for what the theme has not.
    QIcon::setFallbackSearchPaths(
        {QString::fromStdString(basalt::configFolder()) +
         (dark ? QStringLiteral("/Icons/dark") : QStringLiteral("/Icons/light"))});
    QIcon::setThemeName(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
    if (!QIcon::hasThemeIcon(QStringLiteral("document-open")))
        basalt::logWarning("The Breeze icon theme is missing: menus show no icons");
}

} // namespace desktop
