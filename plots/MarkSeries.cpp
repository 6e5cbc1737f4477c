#include "plots/MarkSeries.h"

#include "lum_sdk/DpiScale.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFinest = 3;             // device pixels to a pixel of what is not a screen
constexpr std::size_t kMostSingly = 5000; // discs on paper

/// Fewer marks are larger.
double radiusFor(std::size_t marks)
{
    return dpi_scaled(marks < 500 ? 3.5 : marks < 5000 ? 2.75 : marks < 50'000 ? 2.0 : 1.5);
}

/// A disc in the middle of a small image, to be copied to whole pixels: several times quicker than
/// `QPainter::drawImage`, which a picture that follows the mouse would feel.
class Disc
{
public:
    /// \param radius device pixels
    Disc(double radius, const QPen& pen, const QColor& color)
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

    [[nodiscard]] int half() const { return m_half; }
    /// \param middle of the place to copy it to, at least `half` pixels away from the edges
    /// \param stride pixels of a line there
    void copyTo(QRgb* middle, std::ptrdiff_t stride) const
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

private:
    /// With a `Half` that the compiler knows the loops are unrolled; 0 stands for any.
    template <int Half>
    void copy(QRgb* middle, std::ptrdiff_t stride) const
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

    static QRgb over(QRgb above, QRgb below)
    {
        const unsigned rest = 255 - (above >> 24);
        if (rest == 0)
            return above;
        const unsigned even = ((below & 0xff00ff) * rest + 0x800080) >> 8 & 0xff00ff;
        const unsigned odd = ((below >> 8 & 0xff00ff) * rest + 0x800080) & 0xff00ff00;
        return above + even + odd;
    }

    int m_half;
    QImage m_image;
};

/// An image on which each pixel is the middle of at most one disc of a colour.
class DiscPainter
{
public:
    /// \param room device pixels that are free around the discs
    DiscPainter(QImage& image, int room)
        : m_pixels(reinterpret_cast<QRgb*>(image.bits())), m_width(image.width()), m_room(room),
          m_right(image.width() - room), m_bottom(image.height() - room),
          m_last(std::size_t(image.width()) * std::size_t(image.height()), 0)
    {
    }

    /// \param at device pixels of the image
    void add(double atX, double atY, const Disc& disc, std::uint8_t color)
    {
        if (!(atX >= m_room && atX < m_right && atY >= m_room && atY < m_bottom))
            return;
        const std::ptrdiff_t pixel = std::ptrdiff_t(atY) * m_width + std::ptrdiff_t(atX);
        std::uint8_t& last = m_last[std::size_t(pixel)];
        if (last == color)
            return;
        last = color;
        disc.copyTo(m_pixels + pixel, m_width);
    }

private:
    QRgb* m_pixels; ///< lines of 32-bit pixels follow each other without a gap
    std::ptrdiff_t m_width;
    double m_room;
    double m_right;
    double m_bottom;
    std::vector<std::uint8_t> m_last; ///< by pixel; 0 for none
};

/// Cuts the y axis into bands, most of which have as many marks as others.
class Bands
{
public:
    static constexpr std::size_t kCount = 64;

    explicit Bands(const std::vector<PlotMark>& marks)
    {
        constexpr std::size_t kSample = 1000;
        std::vector<double> sample;
        sample.reserve(2 * kSample);
        for (std::size_t i = 0; i < marks.size(); i += 1 + marks.size() / kSample)
            sample.push_back(marks[i].y);
        if (sample.empty())
            return;
        std::sort(sample.begin(), sample.end());
        const std::size_t few = sample.size() / 50;
        m_from = sample[few];
        m_perUnit = double(kCount) / std::max(sample[sample.size() - 1 - few] - m_from, 1e-9);
    }
    [[nodiscard]] std::size_t of(const PlotMark& mark) const
    {
        return std::size_t(std::clamp((mark.y - m_from) * m_perUnit, 0.0, double(kCount - 1)));
    }

private:
    double m_from = 0;
    double m_perUnit = 0;
};

/// Colour by colour, and in each band by band: what lies beside each other on the image is then
/// drawn one after the other, while it is in the processor's cache.
std::vector<PlotMark> inDrawingOrder(const std::vector<PlotMark>& marks, std::size_t colors)
{
    const Bands bands(marks);
    const auto groupOf = [&](const PlotMark& mark) {
        return mark.color * Bands::kCount + bands.of(mark);
    };
    std::vector<std::size_t> next(colors * Bands::kCount + 1, 0);
    for (const PlotMark& mark : marks)
        ++next[groupOf(mark) + 1];
    for (std::size_t group = 1; group < next.size(); ++group)
        next[group] += next[group - 1];
    std::vector<PlotMark> ordered(marks.size());
    for (const PlotMark& mark : marks)
        ordered[next[groupOf(mark)]++] = mark;
    return ordered;
}

} // namespace

MarkSeries::MarkSeries(std::vector<PlotMark> marks, std::vector<QColor> colors,
                       const PlotSelection& selection, const QColor& selected, const QColor& ring)
    : m_marks(std::move(marks)), m_colors(std::move(colors)), m_selection(selection),
      m_selected(selected), m_ring(ring), m_radius(radiusFor(m_marks.size()))
{
    m_marks = inDrawingOrder(m_marks, m_colors.size());
}

void MarkSeries::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                      const QRectF& canvas) const
{
    const PlotMaps maps{xMap, yMap};
    const QTransform device = painter->deviceTransform();
    const double scale = std::hypot(device.m11(), device.m12());
    const bool isScreen = painter->paintEngine()->type() == QPaintEngine::Raster;
    if (!isScreen && m_marks.size() <= kMostSingly) {
        drawSingly(*painter, maps, canvas);
        return;
    }
    const double ratio = std::max(1.0, isScreen ? scale : std::min(scale, kFinest));
    const double room = 2 * m_radius + 4; // for discs that reach into the canvas
    const QRectF area = canvas.adjusted(-2 * room, -2 * room, 2 * room, 2 * room);
    QImage image((area.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return;
    image.fill(Qt::transparent);
    drawInto(image, maps, area.topLeft(), ratio, int(room * ratio));
    painter->drawImage(QRectF(area.topLeft(), QSizeF(image.size()) / ratio), image);
}

void MarkSeries::drawInto(QImage& image, const PlotMaps& maps, const QPointF& origin, double ratio,
                          int room) const
{
    std::vector<Disc> discs;
    discs.reserve(m_colors.size());
    for (const QColor& color : m_colors)
        discs.emplace_back(m_radius * ratio, Qt::NoPen, color);
    const Disc selected((m_radius + dpi_scaled(1.5)) * ratio, QPen(m_ring, dpi_scaled(1.0) * ratio),
                        m_selected);
    DiscPainter painter(image, std::max(room, selected.half()));
    const auto add = [&](const PlotMark& mark, const Disc& disc, std::size_t color) {
        painter.add((maps.x.transform(mark.x) - origin.x()) * ratio,
                    (maps.y.transform(mark.y) - origin.y()) * ratio, disc,
                    static_cast<std::uint8_t>(color + 1));
    };
    for (const PlotMark& mark : m_marks)
        add(mark, discs[mark.color], mark.color);
    if (std::find(m_selection.begin(), m_selection.end(), true) == m_selection.end())
        return;
    for (const PlotMark& mark : m_marks) {
        if (isSelected(mark))
            add(mark, selected, m_colors.size());
    }
}

void MarkSeries::drawSingly(QPainter& painter, const PlotMaps& maps, const QRectF& canvas) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto draw = [&](const PlotMark& mark, double radius) {
        const QPointF at = maps.toScreen(mark.x, mark.y);
        if (canvas.contains(at))
            painter.drawEllipse(at, radius, radius);
    };
    painter.setPen(Qt::NoPen);
    for (const PlotMark& mark : m_marks) {
        painter.setBrush(m_colors[mark.color]);
        draw(mark, m_radius);
    }
    painter.setPen(m_ring);
    painter.setBrush(m_selected);
    for (const PlotMark& mark : m_marks) {
        if (isSelected(mark))
            draw(mark, m_radius + dpi_scaled(1.5));
    }
    painter.restore();
}

std::optional<PlotItem::Hit> MarkSeries::hit(const QPointF& at, const PlotMaps& maps,
                                             double reach) const
{
    const PlotMark* nearest = nullptr;
    double least = (reach + m_radius) * (reach + m_radius);
    for (const PlotMark& mark : m_marks) {
        const QPointF away = maps.toScreen(mark.x, mark.y) - at;
        const double square = QPointF::dotProduct(away, away);
        // The later one lies above.
        if (square < least || (square == least && nearest != nullptr)) {
            least = square;
            nearest = &mark;
        }
    }
    if (nearest == nullptr)
        return std::nullopt;
    return Hit{{nearest->place}, QPointF(nearest->x, nearest->y), {}};
}

void MarkSeries::collect(const QRectF& rectangle, const PlotMaps& maps,
                         std::vector<std::uint32_t>& places) const
{
    for (const PlotMark& mark : m_marks) {
        if (rectangle.contains(maps.toScreen(mark.x, mark.y)))
            places.push_back(mark.place);
    }
}

std::size_t MarkSeries::countOutside(const QwtInterval& x, const QwtInterval& y) const
{
    const double left = x.minValue();
    const double right = x.maxValue();
    const double bottom = y.minValue();
    const double top = y.maxValue();
    std::size_t outside = 0;
    for (const PlotMark& mark : m_marks) {
        const bool isInside =
            mark.x >= left && mark.x <= right && mark.y >= bottom && mark.y <= top;
        outside += isInside ? 0U : 1U;
    }
    return outside;
}
