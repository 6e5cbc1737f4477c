#pragma once

#include <QProxyStyle>

namespace desktop {

/// Fusion, with what it leaves unclear: who has the keyboard focus, the outlines of fields, boxes,
/// buttons and menus on a dark ground, icons on the colour of a selection and disabled ones, that a
/// tool bar has more buttons, which entries of a menu exclude one another, and where a column of
/// numbers ends beside one of names.
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
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                                  const QWidget* widget = nullptr) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                                const QWidget* widget = nullptr,
                                QStyleHintReturn* returned = nullptr) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption* option,
                                       const QWidget* widget = nullptr) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap standard, const QStyleOption* option = nullptr,
                                     const QWidget* widget = nullptr) const override;
    [[nodiscard]] QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                              const QStyleOption* option) const override;
};

} // namespace desktop
