#include "plots/MarkSeries.h"

#include "lum_sdk/DpiScale.h"
#include "map/CircleStamp.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFinest = 3;             // device pixels to a pixel of what is not a screen
constexpr std::size_t kMostSingly = 5000; // discs on paper
constexpr int kOpacity = 200;

/// Fewer marks are larger.
double radiusFor(std::size_t marks)
{
    return dpi_scaled(marks < 500 ? 3.5 : marks < 5000 ? 2.75 : marks < 50'000 ? 2.0 : 1.5);
}

/// Remembers which pixels of an image have the centre of a disc.
class Stamped
{
public:
    Stamped(const QRectF& canvas, double ratio)
        : m_origin(canvas.topLeft()), m_ratio(ratio), m_width(int(canvas.width() * ratio) + 1),
          m_height(int(canvas.height() * ratio) + 1),
          m_last(std::size_t(m_width) * std::size_t(m_height), 0)
    {
    }

    /// Whether this is the first of its colour there, and on the canvas at all.
    bool add(const QPointF& at, unsigned color)
    {
        const int x = int((at.x() - m_origin.x()) * m_ratio);
        const int y = int((at.y() - m_origin.y()) * m_ratio);
        if (x < 0 || y < 0 || x >= m_width || y >= m_height)
            return false;
        std::uint8_t& last = m_last[std::size_t(y) * std::size_t(m_width) + std::size_t(x)];
        const bool isNew = last != color + 1;
        last = static_cast<std::uint8_t>(color + 1);
        return isNew;
    }

private:
    QPointF m_origin;
    double m_ratio;
    int m_width;
    int m_height;
    std::vector<std::uint8_t> m_last; ///< by pixel; 0 for none
};

QColor translucent(QColor color)
{
    color.setAlpha(kOpacity);
    return color;
}

} // namespace

MarkSeries::MarkSeries(std::vector<PlotMark> marks, std::vector<QColor> colors,
                       const PlotSelection& selection, const QColor& selected, const QColor& ring)
    : m_marks(std::move(marks)), m_colors(std::move(colors)), m_selection(selection),
      m_selected(selected), m_ring(ring), m_radius(radiusFor(m_marks.size()))
{
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
    const double room = 2 * m_radius;
    const QRectF area = canvas.adjusted(-room, -room, room, room);
    QImage image((area.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return;
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter onImage(&image);
    stamp(onImage, maps, area, ratio);
    onImage.end();
    painter->drawImage(QRectF(area.topLeft(), QSizeF(image.size()) / ratio), image);
}

void MarkSeries::stamp(QPainter& painter, const PlotMaps& maps, const QRectF& canvas,
                       double ratio) const
{
    const QPointF origin = canvas.topLeft();
    Stamped stamped(canvas, ratio);
    const auto drawAll = [&](const CircleStamp& disc, unsigned color, auto isWanted) {
        for (const PlotMark& mark : m_marks) {
            if (!isWanted(mark))
                continue;
            const QPointF at = maps.toScreen(mark.x, mark.y);
            if (canvas.contains(at) && stamped.add(at, color))
                disc.draw(painter, at - origin);
        }
    };
    for (unsigned color = 0; color < m_colors.size(); ++color)
        drawAll({m_radius, Qt::NoPen, translucent(m_colors[color]), ratio}, color,
                [color](const PlotMark& mark) { return mark.color == color; });
    if (std::find(m_selection.begin(), m_selection.end(), true) != m_selection.end())
        drawAll({m_radius + dpi_scaled(1.5), QPen(m_ring, dpi_scaled(1.0)), m_selected, ratio},
                unsigned(m_colors.size()),
                [this](const PlotMark& mark) { return isSelected(mark); });
}

void MarkSeries::drawSingly(QPainter& painter, const PlotMaps& maps, const QRectF& canvas) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const auto drawAll = [&](double radius, auto isWanted) {
        for (const PlotMark& mark : m_marks) {
            const QPointF at = maps.toScreen(mark.x, mark.y);
            if (isWanted(mark) && canvas.contains(at))
                painter.drawEllipse(at, radius, radius);
        }
    };
    painter.setPen(Qt::NoPen);
    for (unsigned color = 0; color < m_colors.size(); ++color) {
        painter.setBrush(translucent(m_colors[color]));
        drawAll(m_radius, [color](const PlotMark& mark) { return mark.color == color; });
    }
    painter.setPen(m_ring);
    painter.setBrush(m_selected);
    drawAll(m_radius + dpi_scaled(1.5), [this](const PlotMark& mark) { return isSelected(mark); });
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
    return std::size_t(std::count_if(m_marks.begin(), m_marks.end(), [&](const PlotMark& mark) {
        return !x.contains(mark.x) || !y.contains(mark.y);
    }));
}
