#pragma once

#include <QProxyStyle>

namespace desktop {

/// Fusion, with what it leaves unclear: who has the keyboard focus, the outlines of fields, boxes,
/// buttons and the arrow of a short tool bar on a dark ground, icons on the colour of a selection
/// and disabled ones, and which entries of a menu exclude one another.
class DesktopStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    DesktopStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
    [[nodiscard]] QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                              const QStyleOption* option) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap kind, const QStyleOption* option = nullptr,
                                     const QWidget* widget = nullptr) const override;
};

} // namespace desktop
