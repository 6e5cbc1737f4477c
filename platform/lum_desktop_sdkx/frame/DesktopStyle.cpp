#include "lum_desktop_sdkx/frame/DesktopStyle.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

constexpr double kRadius = 2;    // of the corners, as Fusion has them
constexpr double kFocusLine = 2; // logical pixels

bool hasFocus(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus);
}

QColor outlineOf(const QPalette& palette)
{
    const QColor& ground = palette.color(QPalette::Window);
    const QColor& ink = palette.color(QPalette::WindowText);
    const auto middle = [](int a, int b) { return (a + b) / 2; };
    return {middle(ground.red(), ink.red()), middle(ground.green(), ink.green()),
            middle(ground.blue(), ink.blue())};
}

/// Draws a rounded rectangle whose line lies inside `rect`.
void drawRing(QPainter& painter, const QRect& rect, const QColor& color, double width)
{
    const double inset = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
    painter.restore();
}

/// The outline of a field or box; of the focus when the field has it.
void drawOutline(QPainter& painter, const QStyleOption& option)
{
    if (hasFocus(option))
        drawRing(painter, option.rect, option.palette.color(QPalette::Highlight), kFocusLine);
    else
        drawRing(painter, option.rect, outlineOf(option.palette), 1);
}

void drawCircle(QPainter& painter, const QPointF& center, double radius, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(center, radius, radius);
    painter.restore();
}

/// The circle of a menu entry that excludes others; Fusion draws only the dot of the chosen one.
void drawMenuCircle(QPainter& painter, const QStyleOptionMenuItem& item)
{
    constexpr int kColumnStart = 4; // as in Fusion, from the left side of the entry
    constexpr int kNarrowest = 20;
    constexpr double kMenuRadius = 6;
    const QRectF place(item.rect);
    const double fromLeft = kColumnStart + std::max(item.maxIconWidth, kNarrowest) / 2.0;
    const bool isLeft = item.direction == Qt::LeftToRight;
    const QPointF center(isLeft ? place.left() + fromLeft : place.right() - fromLeft,
                         place.center().y());
    const bool isChosen = item.state.testFlag(QStyle::State_Selected);
    drawCircle(painter, center, kMenuRadius,
               isChosen ? item.palette.color(QPalette::HighlightedText) : outlineOf(item.palette));
}

/// The picture with its dark grey parts in another colour. What has a hue stays as it is.
QPixmap withInk(const QPixmap& pixmap, const QColor& ink)
{
    constexpr int kDark = 128;
    constexpr int kGrey = 48;
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const auto [low, high] = std::minmax({qRed(line[x]), qGreen(line[x]), qBlue(line[x])});
            if (high < kDark && high - low < kGrey)
                line[x] = qRgba(ink.red(), ink.green(), ink.blue(), qAlpha(line[x]));
        }
    }
    return QPixmap::fromImage(image);
}

/// The same in a weaker print. Fusion's own one is as bright as the rest on a dark ground.
QPixmap faded(const QPixmap& pixmap)
{
    constexpr double kOpacity = 0.35;
    QPixmap result(pixmap.size());
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(kOpacity);
    painter.drawPixmap(0, 0, pixmap);
    return result;
}

/// The icon as a menu draws it on its chosen entry.
QIcon chosenIcon(const QStyleOptionMenuItem& item, int side, const QWidget* widget)
{
    QWindow* const window = widget != nullptr ? widget->window()->windowHandle() : nullptr;
    QIcon icon;
    for (const QIcon::State state : {QIcon::Off, QIcon::On})
        icon.addPixmap(item.icon.pixmap(window, QSize(side, side), QIcon::Selected, state),
                       QIcon::Active, state);
    return icon;
}

} // namespace

namespace desktop {

DesktopStyle::DesktopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const
{
    if (element == PE_FrameFocusRect) {
        const bool isSelected = option->state.testFlag(State_Selected);
        drawRing(
            *painter, option->rect,
            option->palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight),
            kFocusLine);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_FrameLineEdit:
        drawOutline(*painter, *option);
        break;
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand:
        drawRing(*painter, option->rect, outlineOf(option->palette), 1);
        break;
    case PE_IndicatorRadioButton:
        drawCircle(*painter, QRectF(option->rect).center(), (option->rect.width() - 1) / 2.0,
                   outlineOf(option->palette));
        break;
    case PE_Frame:
        if (hasFocus(*option))
            drawRing(*painter, option->rect, option->palette.color(QPalette::Highlight), 1);
        break;
    default:
        break;
    }
}

void DesktopStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    const auto* const item =
        element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    const bool isChosen = item != nullptr && item->state.testFlag(State_Selected) &&
                          item->state.testFlag(State_Enabled) && !item->icon.isNull();
    if (isChosen) {
        QStyleOptionMenuItem light(*item);
        light.icon = chosenIcon(*item, pixelMetric(PM_SmallIconSize, option, widget), widget);
        QProxyStyle::drawControl(element, &light, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && hasFocus(*option))
        drawRing(*painter, option->rect, option->palette.color(QPalette::Highlight), kFocusLine);
    if (element == CE_TabBarTabLabel && hasFocus(*option))
        drawRing(*painter, option->rect.adjusted(3, 3, -3, -3),
                 option->palette.color(QPalette::Highlight), kFocusLine);
    if (item != nullptr && item->checkType == QStyleOptionMenuItem::Exclusive)
        drawMenuCircle(*painter, *item);
}

void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* const spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if ((control == CC_ComboBox && combo != nullptr && combo->frame) ||
        (control == CC_SpinBox && spin != nullptr && spin->frame))
        drawOutline(*painter, *option);
}

QPixmap DesktopStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                          const QStyleOption* option) const
{
    if (mode == QIcon::Selected)
        return withInk(pixmap, option->palette.color(QPalette::HighlightedText));
    if (mode == QIcon::Disabled)
        return faded(pixmap);
    return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

QIcon DesktopStyle::standardIcon(StandardPixmap kind, const QStyleOption* option,
                                 const QWidget* widget) const
{
    const QIcon icon = QProxyStyle::standardIcon(kind, option, widget);
    if (kind != SP_ToolBarHorizontalExtensionButton && kind != SP_ToolBarVerticalExtensionButton)
        return icon;
    QIcon inked;
    for (const QSize& size : icon.availableSizes())
        inked.addPixmap(
            withInk(icon.pixmap(size), QGuiApplication::palette().color(QPalette::ButtonText)));
    return inked;
}

} // namespace desktop
