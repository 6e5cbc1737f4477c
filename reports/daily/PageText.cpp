#include "reports/daily/PageText.h"

#include <QFontMetricsF>
#include <QPainter>

namespace pagetext {

double lineHeight(const QFont& font)
{
    return QFontMetricsF(font).lineSpacing();
}

QString elided(const QString& text, const QFont& font, double width)
{
    return QFontMetricsF(font).elidedText(text.simplified(), Qt::ElideMiddle, width);
}

void drawLine(QPainter& painter, const QRectF& place, const QFont& font, const QString& text,
              Qt::Alignment alignment, const QColor& color)
{
    const QFontMetricsF metrics(font);
    double left = place.left();
    if (alignment != Qt::AlignLeft)
        left += (place.width() - metrics.horizontalAdvance(text)) *
                (alignment == Qt::AlignRight ? 1 : 0.5);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QPointF(left, place.top() + metrics.ascent()), text);
}

} // namespace pagetext
