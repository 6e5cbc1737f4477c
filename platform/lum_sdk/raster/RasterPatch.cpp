#include "lum_sdk/raster/RasterPatch.h"

#include "lum_sdk/raster/PixelWalk.h"

#include <algorithm>
#include <cmath>

namespace lum {

namespace {

const QRgb* lineOf(const QImage& image, int line)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(line)); // NOLINT(*-reinterpret-cast)
}

bool isOpaque(const QImage& image)
{
    return image.format() == QImage::Format_RGB32;
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
    bool isFull = true;
    for (int y = 0; y < image.height(); ++y) {
        const double down = (y + 0.5) / image.height();
        const QPointF left = corners[0] + (corners[2] - corners[0]) * down;
        const QPointF right = corners[1] + (corners[3] - corners[1]) * down;
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y)); // NOLINT(*-reinterpret-cast)
        isFull = sampleLine(left, right, sampling, std::span(line, std::size_t(image.width()))) &&
                 isFull;
    }
    return isFull;
}

bool RasterPatch::sampleLine(const QPointF& left, const QPointF& right, Sampling sampling,
                             std::span<QRgb> line) const
{
    const int length = static_cast<int>(line.size());
    const QPointF step = (right - left) / length;
    const QPointF start = left + step / 2;
    int first = 0;
    int last = length;
    cutTo(start.x(), step.x(), m_level.width(), first, last);
    cutTo(start.y(), step.y(), m_level.height(), first, last);
    last = std::max(first, last);
    std::fill(line.begin(), line.begin() + first, 0);
    std::fill(line.begin() + last, line.end(), 0);

    // Mixed, a pixel's colour belongs to its centre.
    const double centre = sampling == Sampling::Bilinear ? 0.5 : 0;
    const QPointF from = start + step * first - m_area.topLeft() - QPointF(centre, centre);
    constexpr double kOne = 1 << PixelWalk::kShift;
    const PixelWalk walk{m_first,
                         m_stride,
                         static_cast<int>(std::floor(from.x() * kOne)),
                         static_cast<int>(std::floor(from.y() * kOne)),
                         static_cast<int>(std::lround(step.x() * kOne)),
                         static_cast<int>(std::lround(step.y() * kOne))};
    if (sampling == Sampling::Bilinear)
        mixPixels(walk, last - first, line.data() + first);
    else
        copyPixels(walk, last - first, line.data() + first);
    return last - first == length;
}

} // namespace lum
