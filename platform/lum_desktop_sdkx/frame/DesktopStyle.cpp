#include "lum_desktop_sdkx/frame/DesktopStyle.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPolygonF>
#include <QStyleOption>
#include <QTableView>
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

/// Draws a line along the inner side of `rect`. It is smoothed: at a scale like 1.25 a sharp one
/// falls behind the content on two sides.
void drawEdge(QPainter& painter, const QRect& rect, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5));
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

/// The two arrow heads of a tool bar that has more buttons than room. Fusion's are black for ever.
QPixmap moreButtons(int side, bool isVertical, const QColor& ink)
{
    constexpr double kReach = 0.22; // of an arrow head, as a share of the side
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, side / 10.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(side / 2.0, side / 2.0);
    if (isVertical)
        painter.rotate(90);
    const double reach = side * kReach;
    for (const double tip : {0.0, 1.6 * reach})
        painter.drawPolyline(QPolygonF({{tip - reach, -reach}, {tip, 0}, {tip - reach, reach}}));
    return pixmap;
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
        drawRing(*painter, option->rect, outlineOf(option->palette), 1);
        break;
    case PE_PanelButtonCommand: // also around the icon of a checked entry of a menu
        drawRing(*painter, option->rect,
                 option->state.testFlag(State_Selected)
                     ? option->palette.color(QPalette::HighlightedText)
                     : outlineOf(option->palette),
                 1);
        break;
    case PE_PanelMenu:
        drawEdge(*painter, option->rect, option->palette.color(QPalette::Mid));
        break;
    case PE_IndicatorRadioButton:
        drawCircle(*painter, QRectF(option->rect).center(), (option->rect.width() - 1) / 2.0,
                   outlineOf(option->palette));
        break;
    case PE_Frame: // of a view or a text
        drawEdge(*painter, option->rect,
                 option->palette.color(hasFocus(*option) ? QPalette::Highlight : QPalette::Mid));
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
    if (item != nullptr && item->checkType == QStyleOptionMenuItem::Exclusive) {
        QStyleOptionMenuItem choice(*item);
        choice.icon = {}; // the mark stands in its place
        QProxyStyle::drawControl(element, &choice, painter, widget);
        drawMenuCircle(*painter, *item);
        return;
    }
    const bool isChosen = item != nullptr && item->state.testFlag(State_Selected) &&
                          item->state.testFlag(State_Enabled) && !item->icon.isNull();
    if (isChosen) {
        QStyleOptionMenuItem light(*item);
        light.icon = chosenIcon(*item, pixelMetric(PM_SmallIconSize, option, widget), widget);
        QProxyStyle::drawControl(element, &light, painter, widget);
        return;
    }
    if (item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator &&
        item->text.isEmpty()) {
        constexpr int kMargin = 5;
        const int y = item->rect.center().y();
        painter->fillRect(
            QRect(QPoint(item->rect.left() + kMargin, y), QPoint(item->rect.right() - kMargin, y)),
            item->palette.color(QPalette::Mid));
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && hasFocus(*option))
        drawRing(*painter, option->rect, option->palette.color(QPalette::Highlight), kFocusLine);
    if (element == CE_TabBarTabLabel && hasFocus(*option))
        drawRing(*painter, option->rect.adjusted(3, 3, -3, -3),
                 option->palette.color(QPalette::Highlight), kFocusLine);
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

int DesktopStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const
{
    constexpr int kMoreBesideCells = 3;
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool isOfCells =
        metric == PM_FocusFrameHMargin && qobject_cast<const QTableView*>(widget) != nullptr;
    return isOfCells ? usual + kMoreBesideCells : usual;
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returned) const
{
    if (hint == SH_EtchDisabledText) // a second print beside the text, which blurs it in the dark
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QRect DesktopStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const
{
    if (element == SE_ItemViewItemFocusRect) // Fusion leaves icon and box outside
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QIcon DesktopStyle::standardIcon(StandardPixmap standard, const QStyleOption* option,
                                 const QWidget* widget) const
{
    const bool isVertical = standard == SP_ToolBarVerticalExtensionButton;
    if (!isVertical && standard != SP_ToolBarHorizontalExtensionButton)
        return QProxyStyle::standardIcon(standard, option, widget);
    QIcon icon;
    for (const int side : {12, 16, 24, 32, 48})
        icon.addPixmap(
            moreButtons(side, isVertical, QGuiApplication::palette().color(QPalette::ButtonText)));
    return icon;
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

} // namespace desktop
