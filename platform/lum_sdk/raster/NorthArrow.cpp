#include "lum_sdk/raster/NorthArrow.h"

#include "lum_sdk/Transform.h"

#include <QCoreApplication>
#include <QPainter>

namespace lum {

namespace {

// screen pixels
constexpr int kSmallestScreen = 200;
constexpr int kMargin = 12;
constexpr int kWidth = 26;
constexpr int kNeedle = 34;

constexpr int kPaperAlpha = 210; // lets a little of the map show through

/// Draws a needle, half black and half white, with its tip at the top of `area`.
void drawNeedle(QPainter& painter, const QRectF& area)
{
    const QPointF tip(area.center().x(), area.top());
    const QPointF notch(area.center().x(), area.bottom() - area.height() / 4);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF(QVector<QPointF>{tip, notch, area.bottomLeft()}));
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygonF(QVector<QPointF>{tip, area.bottomRight(), notch}));
}

} // namespace

void drawNorthArrow(QPainter& painter, const Transform& view)
{
    const QSize screen = view.size();
    if (screen.width() < kSmallestScreen || screen.height() < kSmallestScreen)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const int textHeight = painter.fontMetrics().height();
    const QRect paper(screen.width() - kMargin - kWidth, kMargin, kWidth, textHeight + kNeedle);
    painter.fillRect(paper, QColor(255, 255, 255, kPaperAlpha));
    painter.setPen(Qt::black);
    painter.drawText(QRect(paper.topLeft(), QSize(kWidth, textHeight)), Qt::AlignCenter,
                     QCoreApplication::translate("NorthArrow", "N"));
    drawNeedle(painter, QRectF(paper).adjusted(5, textHeight, -5, -5));
    painter.restore();
}

} // namespace lum
