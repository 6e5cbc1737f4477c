#include "lum_sdk/raster/RasterPatch.h"

#include <algorithm>
#include <cmath>

namespace lum {

namespace {

// Positions within a patch are whole numbers of this part of a pixel.
constexpr int kShift = 16;
constexpr double kOne = 1 << kShift;

const QRgb* lineOf(const QImage& image, int line)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(line)); // NOLINT(*-reinterpret-cast)
}

bool isOpaque(const QImage& image)
{
    return image.format() == QImage::Format_RGB32;
}

/// Mixes four channels at once; `share` of 256 is `b` alone.
QRgb mixed(QRgb a, QRgb b, quint32 share)
{
    constexpr quint32 kEven = 0x00ff00ffU;
    const quint32 rest = 256 - share;
    const quint32 even = (((a & kEven) * rest + (b & kEven) * share) >> 8U) & kEven;
    const quint32 odd = ((a >> 8U) & kEven) * rest + ((b >> 8U) & kEven) * share;
    return even | (odd & ~kEven);
}

/// The part [first, last) of a line of `count` places `start`, `start + step`, ... that lies within
/// [0, limit).
void cutTo(double start, double step, double limit, int& first, int& last)
{
    if (step == 0) {
        if (!(start >= 0 && start < limit))
            last = first;
        return;
    }
    double from = -start / step;
    double to = (limit - start) / step;
    if (step < 0)
        std::swap(from, to);
    const double most = last;
    first = std::max(first, static_cast<int>(std::ceil(std::clamp(from, 0.0, most))));
    last = std::min(last, static_cast<int>(std::ceil(std::clamp(to, 0.0, most))));
}

} // namespace

void RasterPatch::start(const QRect& area, const QSize& level, bool hasGaps)
{
    m_area = area;
    m_level = QRect(QPoint(0, 0), level);
    m_inside = m_area & m_level;
    m_isOpaque = !hasGaps;
    m_whole = QImage();
    m_first = nullptr;
}

bool RasterPatch::takeWhole(const QImage& block, const QRect& place)
{
    if (!place.contains(m_area))
        return false;
    m_whole = block;
    m_isOpaque = lum::isOpaque(block);
    m_stride = block.bytesPerLine() / 4;
    m_first = lineOf(block, m_area.top() - place.top()) + (m_area.left() - place.left());
    return true;
}

void RasterPatch::allocate()
{
    m_pixels.assign(std::size_t(m_area.width()) * std::size_t(m_area.height()), 0);
    m_first = m_pixels.data();
    m_stride = m_area.width();
}

void RasterPatch::add(const QImage& block, const QRect& place)
{
    addStretched(block, place, m_level.size());
}

void RasterPatch::addStretched(const QImage& block, const QRect& place, const QSize& otherLevel)
{
    if (m_first == nullptr)
        allocate();
    const double stepX = double(otherLevel.width()) / m_level.width();
    const double stepY = double(otherLevel.height()) / m_level.height();
    const QRectF covered(QPointF(place.left() / stepX, place.top() / stepY),
                         QPointF((place.right() + 1) / stepX, (place.bottom() + 1) / stepY));
    const QRect target = m_inside & covered.toAlignedRect();
    m_isOpaque = m_isOpaque && lum::isOpaque(block);
    const bool isSame = otherLevel == m_level.size();
    const auto inBlock = [](int pixel, double step, int first, int count) {
        return std::clamp(static_cast<int>((pixel + 0.5) * step) - first, 0, count - 1);
    };
    for (int y = target.top(); y <= target.bottom(); ++y) {
        const QRgb* const from = lineOf(block, inBlock(y, stepY, place.top(), block.height()));
        QRgb* const to = m_pixels.data() + std::ptrdiff_t(y - m_area.top()) * m_stride +
                         (target.left() - m_area.left());
        if (isSame) {
            std::copy_n(from + (target.left() - place.left()), target.width(), to);
            continue;
        }
        for (int x = 0; x < target.width(); ++x)
            to[x] = from[inBlock(target.left() + x, stepX, place.left(), block.width())];
    }
}

void RasterPatch::finish()
{
    if (m_first == nullptr)
        allocate(); // there was not a single block
    if (!m_whole.isNull() || m_inside == m_area || m_inside.isEmpty())
        return;
    const QRect inside = m_inside.translated(-m_area.topLeft());
    const auto line = [&](int y) { return m_pixels.begin() + std::ptrdiff_t(y) * m_stride; };
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        std::fill_n(line(y), inside.left(), line(y)[inside.left()]);
        std::fill(line(y) + inside.right(), line(y) + m_area.width(), line(y)[inside.right()]);
    }
    for (int y = 0; y < inside.top(); ++y)
        std::copy_n(line(inside.top()), m_area.width(), line(y));
    for (int y = inside.bottom() + 1; y < m_area.height(); ++y)
        std::copy_n(line(inside.bottom()), m_area.width(), line(y));
}

bool RasterPatch::sample(const std::array<QPointF, 4>& corners, Sampling sampling,
                         QImage& image) const
{
    return sampling == Sampling::Bilinear ? sampleLines<Sampling::Bilinear>(corners, image)
                                          : sampleLines<Sampling::Nearest>(corners, image);
}

template <RasterPatch::Sampling sampling>
bool RasterPatch::sampleLines(const std::array<QPointF, 4>& corners, QImage& image) const
{
    // Bilinear, a pixel's colour belongs to its centre.
    constexpr double kCentre = sampling == Sampling::Bilinear ? 0.5 : 0;
    const int side = image.width();
    bool isFull = true;
    for (int y = 0; y < image.height(); ++y) {
        const double down = (y + 0.5) / image.height();
        const QPointF left = corners[0] + (corners[2] - corners[0]) * down;
        const QPointF right = corners[1] + (corners[3] - corners[1]) * down;
        const QPointF step = (right - left) / side;
        const QPointF start = left + step / 2;
        int first = 0;
        int last = side;
        cutTo(start.x(), step.x(), m_level.width(), first, last);
        cutTo(start.y(), step.y(), m_level.height(), first, last);
        last = std::max(first, last);
        isFull = isFull && first == 0 && last == side;

        auto* const out = reinterpret_cast<QRgb*>(image.scanLine(y)); // NOLINT(*-reinterpret-cast)
        std::fill(out, out + first, 0);
        std::fill(out + last, out + side, 0);
        const QPointF from = start + step * first - m_area.topLeft() - QPointF(kCentre, kCentre);
        auto u = static_cast<qint32>(std::floor(from.x() * kOne));
        auto v = static_cast<qint32>(std::floor(from.y() * kOne));
        const auto du = static_cast<qint32>(std::lround(step.x() * kOne));
        const auto dv = static_cast<qint32>(std::lround(step.y() * kOne));
        for (int x = first; x < last; ++x, u += du, v += dv) {
            const QRgb* const pixel = m_first + (v >> kShift) * m_stride + (u >> kShift);
            if constexpr (sampling == Sampling::Bilinear) {
                const quint32 shareX = (static_cast<quint32>(u) >> 8U) & 0xffU;
                const quint32 shareY = (static_cast<quint32>(v) >> 8U) & 0xffU;
                out[x] = mixed(mixed(pixel[0], pixel[1], shareX),
                               mixed(pixel[m_stride], pixel[m_stride + 1], shareX), shareY);
            } else {
                out[x] = *pixel;
            }
        }
    }
    return isFull;
}

} // namespace lum
