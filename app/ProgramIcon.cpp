#include "app/ProgramIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

constexpr double kUnits = 64; ///< width and height of the square that is drawn on

void paintGround(QPainter& painter)
{
    QLinearGradient sky(0, 0, 0, kUnits);
    sky.setColorAt(0, QColor(0x2f, 0x7f, 0xb8));
    sky.setColorAt(1, QColor(0x17, 0x4a, 0x7c));
    painter.setPen(Qt::NoPen);
    painter.setBrush(sky);
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);
}

/// Three receiver lines with their points.
void paintGrid(QPainter& painter)
{
    painter.setPen(QPen(QColor(255, 255, 255, 90), 1.4));
    for (const double y : {19.0, 33.0, 47.0})
        painter.drawLine(QPointF(9, y), QPointF(55, y));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 210));
    for (const double y : {19.0, 33.0, 47.0}) {
        for (const double x : {14.0, 26.0, 38.0, 50.0})
            painter.drawEllipse(QPointF(x, y), 2.2, 2.2);
    }
}

void paintFlag(QPainter& painter)
{
    QPainterPath cloth(QPointF(26, 9));
    cloth.cubicTo(QPointF(34, 5), QPointF(40, 15), QPointF(51, 11));
    cloth.lineTo(QPointF(51, 27));
    cloth.cubicTo(QPointF(40, 31), QPointF(34, 21), QPointF(26, 25));
    cloth.closeSubpath();
    painter.setBrush(QColor(0xf2, 0x6b, 0x38));
    painter.drawPath(cloth);
    painter.setPen(QPen(QColor(0xf8, 0xf4, 0xea), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(26, 8.5), QPointF(26, 47));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xf8, 0xf4, 0xea));
    painter.drawEllipse(QPointF(26, 47), 4.2, 4.2);
}

QPixmap pixmapOf(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / kUnits, size / kUnits);
    paintGround(painter);
    paintGrid(painter);
    paintFlag(painter);
    return pixmap;
}

} // namespace

QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(pixmapOf(size));
    return icon;
}
