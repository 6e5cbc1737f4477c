#include "lum_sdk/raster/Attribution.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace lum {

namespace {

// screen pixels
constexpr int kMargin = 12;
constexpr int kPadding = 4;

constexpr double kFontShare = 0.85; // of the map's font
constexpr int kPaperAlpha = 210;    // lets a little of the map show through
constexpr int kBroken = Qt::TextWordWrap;

QFont smaller(QFont font)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * kFontShare)));
    else
        font.setPointSizeF(font.pointSizeF() * kFontShare);
    return font;
}

} // namespace

void drawAttribution(QPainter& painter, const QSize& screen, const QString& text,
                     const QRect& taken)
{
    if (text.isEmpty())
        return;
    painter.save();
    painter.setFont(smaller(painter.font()));
    const QFontMetrics metrics = painter.fontMetrics();
    const auto sizeIn = [&](int width) {
        return metrics.boundingRect(QRect(0, 0, std::max(1, width), screen.height()), kBroken, text)
            .size();
    };
    const int whole = screen.width() - 2 * (kMargin + kPadding);
    const int beside = taken.isEmpty() ? whole : whole - taken.right() - 1;
    const bool isBeside = metrics.horizontalAdvance(text) <= beside || beside >= whole / 2;
    const QSize size = sizeIn(isBeside ? beside : whole);
    const int bottom = isBeside ? screen.height() - kMargin : taken.top() - kMargin;
    const QPoint corner(screen.width() - kMargin - kPadding, bottom - kPadding);
    const QRect written(corner - QPoint(size.width(), size.height()), size);
    painter.fillRect(written.adjusted(-kPadding, -kPadding, kPadding, kPadding),
                     QColor(255, 255, 255, kPaperAlpha));
    painter.setPen(Qt::black);
    painter.drawText(written, Qt::AlignRight | kBroken, text);
    painter.restore();
}

} // namespace lum
