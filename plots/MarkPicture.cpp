#include "plots/MarkPicture.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr double kSamePixel = 0.05; // what two scales may differ at the far end of a picture
constexpr double kFarPixels = 1e6;  // beyond it pixels are no whole numbers that can be added

QImage emptyPicture(const QSize& size)
{
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    return picture;
}

bool isSame(const PixelScale& a, const PixelScale& b, int pixels)
{
    return std::fabs(a.perUnit / b.perUnit - 1) * pixels < kSamePixel &&
           std::fabs(a(b.from) - b.at) < kFarPixels;
}

/// How far the values of one scale are from where they are on the other.
int pixelsBetween(const PixelScale& from, const PixelScale& to)
{
    return int(std::lround(to.at - from(to.from)));
}

/// Moves what is on a picture; what comes into it is not defined.
void scroll(QImage& picture, const QPoint& by)
{
    const int width = picture.width() - std::abs(by.x());
    const int height = picture.height() - std::abs(by.y());
    const auto lineAt = [&](int row, int column) {
        return reinterpret_cast<QRgb*>(picture.scanLine(row)) + std::max(0, column);
    };
    for (int i = 0; i < height; ++i) {
        const int row = by.y() > 0 ? height - 1 - i : i - by.y(); // not overwritten yet
        std::memmove(lineAt(row + by.y(), by.x()), lineAt(row, -by.x()),
                     std::size_t(width) * sizeof(QRgb));
    }
}

} // namespace

bool MarkPicture::hasSameScale(const Place& place) const
{
    return place.size == m_place.size && isSame(m_place.x, place.x, place.size.width()) &&
           isSame(m_place.y, place.y, place.size.height());
}

const QImage& MarkPicture::at(const Place& place, int margin, const Draw& draw)
{
    if (!m_picture.isNull() && hasSameScale(place)) {
        const QPoint shift(pixelsBetween(m_place.x, place.x), pixelsBetween(m_place.y, place.y));
        const QPoint by = shift - m_shift;
        // Where more than the half is new, all of it is drawn as quickly.
        if (2 * std::abs(by.x()) < place.size.width() &&
            2 * std::abs(by.y()) < place.size.height()) {
            moveTo(shift, margin, draw);
            return m_picture;
        }
    }
    m_picture = emptyPicture(place.size);
    m_place = place;
    m_shift = {};
    if (!m_picture.isNull())
        draw(m_picture, place.x, place.y);
    return m_picture;
}

void MarkPicture::moveTo(const QPoint& shift, int margin, const Draw& draw)
{
    const QPoint by = shift - m_shift;
    if (by.isNull())
        return;
    scroll(m_picture, by);
    m_shift = shift;
    const QRect whole = m_picture.rect().adjusted(margin, margin, -margin, -margin);
    QRect side = whole;
    by.x() > 0 ? side.setWidth(by.x()) : side.setLeft(whole.right() + 1 + by.x());
    if (by.x() != 0)
        renew(side, margin, draw);
    QRect end = whole;
    by.y() > 0 ? end.setHeight(by.y()) : end.setTop(whole.bottom() + 1 + by.y());
    if (by.y() != 0)
        renew(end, margin, draw);
}

void MarkPicture::renew(const QRect& part, int margin, const Draw& draw)
{
    const QRect drawn = part.adjusted(-margin, -margin, margin, margin);
    QImage picture = emptyPicture(drawn.size());
    draw(picture, m_place.x.moved(m_shift.x() - drawn.left()),
         m_place.y.moved(m_shift.y() - drawn.top()));
    const std::size_t bytes = std::size_t(part.width()) * sizeof(QRgb);
    for (int row = 0; row < part.height(); ++row)
        std::memcpy(reinterpret_cast<QRgb*>(m_picture.scanLine(part.top() + row)) + part.left(),
                    reinterpret_cast<const QRgb*>(picture.constScanLine(margin + row)) + margin,
                    bytes);
}
