#include "plots/MarkSeries.h"

#include "lum_sdk/DpiScale.h"
#include "plots/DiscStamps.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double kFinest = 3;             // device pixels to a pixel of what is not a screen
constexpr std::size_t kMostSingly = 5000; // discs on paper

/// Fewer marks are larger.
double radiusFor(std::size_t marks)
{
    return dpi_scaled(marks < 500 ? 3.5 : marks < 5000 ? 2.75 : marks < 50'000 ? 2.0 : 1.5);
}

PixelScale pixelsOf(const QwtScaleMap& map, double origin, double ratio)
{
    return {map.s1(), (map.p1() - origin) * ratio,
            (map.p2() - map.p1()) / (map.s2() - map.s1()) * ratio};
}

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

/// A step that visits all of `count` places, with those beside each other far apart.
std::size_t mixingStep(std::size_t count)
{
    constexpr double kGoldenRatio = 0.618034;
    std::size_t step = 1 + std::size_t(double(count) * kGoldenRatio);
    while (std::gcd(step, count) > 1)
        ++step;
    return step;
}

/// Level by level, and in each band by band: what lies beside each other on the image is then
/// drawn one after the other, while it is in the processor's cache.
std::vector<PlotMark> inDrawingOrder(const std::vector<PlotMark>& marks, std::size_t colors,
                                     MarkSeries::Order order)
{
    const Bands bands(marks);
    const auto groupOf = [&](const PlotMark& mark) {
        const std::size_t level = order == MarkSeries::Order::ByColor ? mark.color
                                  : mark.color > 0                    ? 1
                                                                      : 0;
        return level * Bands::kCount + bands.of(mark);
    };
    std::vector<std::size_t> next(colors * Bands::kCount + 1, 0);
    for (const PlotMark& mark : marks)
        ++next[groupOf(mark) + 1];
    for (std::size_t group = 1; group < next.size(); ++group)
        next[group] += next[group - 1];
    std::vector<PlotMark> ordered(marks.size());
    const std::size_t step = order == MarkSeries::Order::Mixed ? mixingStep(marks.size()) : 1;
    for (std::size_t i = 0, at = 0; i < marks.size(); ++i, at = (at + step) % marks.size())
        ordered[next[groupOf(marks[at])]++] = marks[at];
    return ordered;
}

} // namespace

MarkSeries::MarkSeries(std::vector<PlotMark> marks, std::vector<QColor> colors,
                       const PlotSelection& selection, const QColor& selected, const QColor& ring,
                       Order order)
    : m_marks(std::move(marks)), m_colors(std::move(colors)), m_selection(selection),
      m_selected(selected), m_ring(ring), m_radius(radiusFor(m_marks.size()))
{
    m_marks = inDrawingOrder(m_marks, m_colors.size(), order);
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
    drawPicture(*painter, maps, canvas, std::max(1.0, isScreen ? scale : std::min(scale, kFinest)));
}

void MarkSeries::drawPicture(QPainter& painter, const PlotMaps& maps, const QRectF& canvas,
                             double ratio) const
{
    std::vector<Disc> discs;
    discs.reserve(m_colors.size() + 1);
    for (const QColor& color : m_colors)
        discs.emplace_back(m_radius * ratio, Qt::NoPen, color);
    discs.emplace_back((m_radius + dpi_scaled(1.5)) * ratio, QPen(m_ring, dpi_scaled(1.0) * ratio),
                       m_selected);
    const int room = discs.back().half();
    const int margin = 2 * room; // a disc in it reaches into the canvas, and is whole
    const QSize size = (canvas.size() * ratio).toSize();
    const MarkPicture::Place place{size + QSize(2 * margin, 2 * margin),
                                   pixelsOf(maps.x, canvas.left(), ratio).moved(margin),
                                   pixelsOf(maps.y, canvas.top(), ratio).moved(margin)};
    if (m_selection != m_drawnSelection) {
        m_picture.forget();
        m_drawnSelection = m_selection;
    }
    const QImage& picture =
        m_picture.at(place, margin, [&](QImage& part, const PixelScale& x, const PixelScale& y) {
            drawInto(part, x, y, discs);
        });
    painter.drawImage(QRectF(canvas.topLeft(), QSizeF(size) / ratio), picture,
                      QRectF(QPointF(margin, margin), size));
}

void MarkSeries::drawInto(QImage& image, const PixelScale& x, const PixelScale& y,
                          const std::vector<Disc>& discs) const
{
    DiscPainter painter(image, discs.back().half());
    const auto add = [&](const PlotMark& mark, std::size_t disc) {
        painter.add(x(mark.x), y(mark.y), discs[disc], static_cast<std::uint8_t>(disc + 1));
    };
    for (const PlotMark& mark : m_marks)
        add(mark, mark.color);
    if (std::find(m_selection.begin(), m_selection.end(), true) == m_selection.end())
        return;
    for (const PlotMark& mark : m_marks) {
        if (isSelected(mark))
            add(mark, m_colors.size());
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
