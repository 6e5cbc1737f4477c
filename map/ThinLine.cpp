#include "map/ThinLine.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace {

constexpr double kCap = 0.5;           // the square end of a pen adds half the pen's width
constexpr std::uint32_t kOpaque = 256; // a full cover
constexpr int kFixedBits = 16;
constexpr double kFixedOne = 65536;

/// Mixes `color` into `pixel`, two channels at a time.
/// \param cover share of `color`, of 256
void mix(QRgb& pixel, QRgb color, std::uint32_t cover)
{
    constexpr QRgb kEven = 0x00ff00ff;
    const std::uint32_t rest = kOpaque - cover;
    const QRgb even = ((pixel & kEven) * rest + (color & kEven) * cover) >> 8;
    const QRgb odd = ((pixel >> 8) & kEven) * rest + ((color >> 8) & kEven) * cover;
    pixel = (even & kEven) | (odd & ~kEven);
}

/// The paint engine takes the place of a line half a pixel before or after the middle of a pixel,
/// depending on where the line starts. Without the same shift every second line would differ from
/// the engine's.
double engineShift(double start)
{
    constexpr double kEngineUnits = 64; // a pixel
    const double place = std::floor(start * kEngineUnits + 1e-6) / kEngineUnits;
    return place - std::floor(place) >= kCap ? 0.5 : -0.5;
}

} // namespace

ThinLine::ThinLine(const QPainter& painter, QRgb color, Width width)
    : m_toPixels(painter.deviceTransform()), m_color(color)
{
    const auto most = width == Width::DevicePixel ? QTransform::TxScale : QTransform::TxTranslate;
    if (painter.device()->devType() != QInternal::Image || painter.hasClipping() ||
        m_toPixels.type() > most)
        return;
    auto* const image = static_cast<QImage*>(painter.device());
    if (image->format() != QImage::Format_RGB32 &&
        image->format() != QImage::Format_ARGB32_Premultiplied)
        return;
    m_size = image->size();
    m_lineStep = image->bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    m_pixels = reinterpret_cast<QRgb*>(image->bits());
}

bool ThinLine::draw(const QLineF& line)
{
    if (m_pixels == nullptr)
        return false;
    const QLineF own = m_toPixels.map(line);
    if (std::abs(own.dx()) >= std::abs(own.dy()))
        drawAlong({m_size.width(), m_size.height(), 1, m_lineStep}, own.p1(), own.p2());
    else
        drawAlong({m_size.height(), m_size.width(), m_lineStep, 1}, own.p1().transposed(),
                  own.p2().transposed());
    return true;
}

/// In each step along the longer axis, the colour is shared out between the two pixels of the other
/// axis next to the middle of the line.
void ThinLine::drawAlong(const Axes& axes, QPointF from, QPointF to)
{
    if (std::max(from.y(), to.y()) < -1 || std::min(from.y(), to.y()) > axes.minorSize + 1)
        return; // beside the image, which may be a part of the picture
    if (from.x() > to.x())
        std::swap(from, to);
    const double length = to.x() - from.x();
    const double slope = length > 0 ? (to.y() - from.y()) / length : 0;
    const double start = from.x() - kCap;
    const double end = to.x() + kCap;
    const auto pixel = [&](double edge) {
        return static_cast<int>(std::clamp(edge, 0.0, double(axes.majorSize)));
    };
    const int first = pixel(std::floor(start));
    const int last = pixel(std::ceil(end)) - 1;
    const double shift = engineShift(start);
    const auto minorAt = [&](int major) {
        return from.y() + slope * (major + 0.5 + shift - from.x());
    };
    if (first > last)
        return;
    blend(axes, first, minorAt(first), std::min(end, first + 1.0) - std::max(start, double(first)));
    if (last > first)
        blend(axes, last, minorAt(last), std::min(end, last + 1.0) - last);

    const auto step = static_cast<std::int64_t>(slope * kFixedOne);
    auto minor = static_cast<std::int64_t>((minorAt(first + 1) - 0.5) * kFixedOne);
    QRgb* row = m_pixels + (first + 1) * axes.majorStep;
    for (int major = first + 1; major < last; ++major, minor += step, row += axes.majorStep) {
        const std::int64_t cell = minor >> kFixedBits;
        const auto upper = static_cast<std::uint32_t>(minor >> (kFixedBits - 8)) & 0xff;
        if (cell >= 0 && cell < axes.minorSize)
            mix(row[cell * axes.minorStep], m_color, kOpaque - upper);
        if (cell >= -1 && cell + 1 < axes.minorSize)
            mix(row[(cell + 1) * axes.minorStep], m_color, upper);
    }
}

void ThinLine::blend(const Axes& axes, int major, double minor, double cover)
{
    const double cell = std::floor(minor - 0.5);
    const double upper = minor - 0.5 - cell;
    const auto part = [&](double place, double share) {
        if (place >= 0 && place < axes.minorSize)
            mix(m_pixels[major * axes.majorStep +
                         static_cast<std::ptrdiff_t>(place) * axes.minorStep],
                m_color, static_cast<std::uint32_t>(share * cover * kOpaque));
    };
    part(cell, 1 - upper);
    part(cell + 1, upper);
}
