#include "plots/DiscStamps.h"

#include <QPainter>

#include <cmath>

namespace {

QRgb over(QRgb above, QRgb below)
{
    const unsigned rest = 255 - (above >> 24);
    if (rest == 0)
        return above;
    const unsigned even = ((below & 0xff00ff) * rest + 0x800080) >> 8 & 0xff00ff;
    const unsigned odd = ((below >> 8 & 0xff00ff) * rest + 0x800080) & 0xff00ff00;
    return above + even + odd;
}

} // namespace

Disc::Disc(double radius, const QPen& pen, const QColor& color)
    : m_half(int(std::ceil(radius + pen.widthF() / 2 - 0.5))),
      m_image(2 * m_half + 1, 2 * m_half + 1, QImage::Format_ARGB32_Premultiplied)
{
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(m_half + 0.5, m_half + 0.5), radius, radius);
}

void Disc::copyTo(QRgb* middle, std::ptrdiff_t stride) const
{
    switch (m_half) {
    case 1:
        return copy<1>(middle, stride);
    case 2:
        return copy<2>(middle, stride);
    case 3:
        return copy<3>(middle, stride);
    default:
        return copy<0>(middle, stride);
    }
}

template <int Half>
void Disc::copy(QRgb* middle, std::ptrdiff_t stride) const
{
    const int half = Half > 0 ? Half : m_half;
    const int side = 2 * half + 1;
    const auto* from = reinterpret_cast<const QRgb*>(m_image.constBits());
    QRgb* to = middle - half * stride - half;
    for (int row = 0; row < side; ++row, to += stride, from += side) {
        for (int column = 0; column < side; ++column)
            to[column] = over(from[column], to[column]);
    }
}

DiscPainter::DiscPainter(QImage& image, int room)
    : m_pixels(reinterpret_cast<QRgb*>(image.bits())), m_width(image.width()), m_room(room),
      m_right(image.width() - room), m_bottom(image.height() - room),
      m_last(std::size_t(image.width()) * std::size_t(image.height()), 0)
{
}
