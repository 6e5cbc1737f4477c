#pragma once

#include <QColor>

class QFont;
class QPainter;
class QRectF;
class QString;

/// Texts on a page of the daily report, in pixels of 1/96 inch.
namespace pagetext {

inline constexpr double kPadding = 3; ///< between a text and what is beside it
inline constexpr double kRuleWidth = 0.7;
inline const QColor kRule(0xb0, 0xb0, 0xb0);
inline const QColor kGround(0xea, 0xee, 0xf2); ///< of headings

[[nodiscard]] double lineHeight(const QFont& font);
/// In one line; what has no room in its middle is left out.
[[nodiscard]] QString elided(const QString& text, const QFont& font, double width);
/// Draws one line of text, its upper edge at the top of a place.
void drawLine(QPainter& painter, const QRectF& place, const QFont& font, const QString& text,
              Qt::Alignment alignment = Qt::AlignLeft, const QColor& color = Qt::black);

} // namespace pagetext
