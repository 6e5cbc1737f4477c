#include "lum_sdk/raster/ScreenMapping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lum {

namespace {

constexpr int kCell = 64;            // device pixels
constexpr int kStart = 512;          // the side of the squares that are looked at first
constexpr double kUnknownStep = 1e9; // asks for the coarsest level
constexpr int kLeastUnknown = 16;    // a smaller square without an answer is not searched for one

// How far the middles may be from where they are, in device pixels. Half of what is promised, since
// only some places of a square are looked at. A large one must be all but straight, so that nothing
// bends or ends between its middles.
constexpr double kMostMissed = 0.25;
constexpr double kMostMissedIfLarge = 0.02;

/// The corners, the middles of the sides and the centre of a square, line by line.
using Nine = std::array<QPointF, 9>;

bool isGood(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

double length(const QPointF& vector)
{
    return std::hypot(vector.x(), vector.y());
}

/// Raster pixels to one of the picture, from the area of the four-sided figure.
double stepOf(const Nine& points, int side)
{
    const QPointF across = points[8] - points[0];
    const QPointF down = points[6] - points[2];
    const double doubleArea = std::abs(across.x() * down.y() - across.y() * down.x());
    return std::sqrt(doubleArea / 2) / side;
}

/// The same where the figure is torn or has holes: from the two closest neighbours.
/// \returns `fallback` when there are none
double stepOfPart(const Nine& points, int side, double fallback)
{
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isLast = i % 3 == 2;
        if (!isLast && isGood(points[i]) && isGood(points[i + 1]))
            least = std::min(least, length(points[i + 1] - points[i]));
        if (i < 6 && isGood(points[i]) && isGood(points[i + 3]))
            least = std::min(least, length(points[i + 3] - points[i]));
    }
    return std::isfinite(least) ? least * 2 / side : fallback;
}

bool isExact(const Nine& p, int side, double step)
{
    const double most = (side > kCell ? kMostMissedIfLarge : kMostMissed) * step;
    return length((p[0] + p[2]) / 2 - p[1]) <= most && length((p[0] + p[6]) / 2 - p[3]) <= most &&
           length((p[2] + p[8]) / 2 - p[5]) <= most && length((p[6] + p[8]) / 2 - p[7]) <= most &&
           length((p[0] + p[2] + p[6] + p[8]) / 4 - p[4]) <= most;
}

class Mapper
{
public:
    Mapper(const RasterView& view, const RasterPlace& place)
        : m_view(view), m_place(place), m_raster(QPointF(0, 0), QSizeF(place.info().size)),
          m_picture(QPoint(0, 0), view.pixels()), m_reach(onScreen(place.reach()))
    {
    }

    std::vector<MappedCell> run()
    {
        const QRect squares = squaresToLookAt(m_view.pixels());
        for (int row = squares.top(); row <= squares.bottom(); ++row) {
            for (int column = squares.left(); column <= squares.right(); ++column)
                start(QRect(column * kStart, row * kStart, kStart, kStart));
        }
        return std::move(m_cells);
    }

private:
    [[nodiscard]] QRectF onScreen(const QRectF& map) const
    {
        const double ratio = m_view.pixelRatio;
        return QRectF(m_view.transform.SurveyToScreen(map.topLeft()) * ratio,
                      m_view.transform.SurveyToScreen(map.bottomRight()) * ratio)
            .normalized();
    }

    [[nodiscard]] QRect squaresToLookAt(const QSize& size) const
    {
        const QRect all(0, 0, (size.width() + kStart - 1) / kStart,
                        (size.height() + kStart - 1) / kStart);
        if (!m_place.isWhole())
            return all;
        const QRectF shown = m_reach & QRectF(QPointF(-1, -1), QSizeF(size) + QSizeF(2, 2));
        if (m_place.extent().isNull() || shown.isEmpty())
            return {};
        const QRect touched = shown.toAlignedRect();
        return all & QRect(QPoint(touched.left() / kStart, touched.top() / kStart),
                           QPoint(touched.right() / kStart, touched.bottom() / kStart));
    }

    /// The places in the raster of a square of points, `count` in each direction.
    [[nodiscard]] std::vector<QPointF> transformed(const QPointF& corner, double spacing,
                                                   int count) const
    {
        std::vector<QPointF> points;
        points.reserve(std::size_t(count) * std::size_t(count));
        for (int row = 0; row < count; ++row) {
            for (int column = 0; column < count; ++column) {
                const QPointF pixel = corner + QPointF(column, row) * spacing;
                points.push_back(m_view.transform.ScreenToSurvey(pixel / m_view.pixelRatio));
            }
        }
        m_place.toPixels(points);
        return points;
    }

    void start(const QRect& area)
    {
        const std::vector<QPointF> points = transformed(area.topLeft(), area.width() / 2.0, 3);
        settle(area, nineOf(points, 3, 0, 0), kUnknownStep);
    }

    static Nine nineOf(const std::vector<QPointF>& points, std::size_t columns, std::size_t column,
                       std::size_t row)
    {
        Nine nine;
        for (std::size_t i = 0; i < nine.size(); ++i)
            nine[i] = points[(row + i / 3) * columns + column + i % 3];
        return nine;
    }

    /// \param roughStep  that of the square which this one is a quarter of
    void settle(const QRect& area, const Nine& points, double roughStep)
    {
        const auto good = std::count_if(points.begin(), points.end(), isGood);
        const int side = area.width();
        const double step = good == 9 ? stepOf(points, side) : 0;
        if (good == 9 && isExact(points, side, step)) {
            add(area, {points[0], points[2], points[6], points[8]}, step);
        } else if (side == 1) {
            if (isGood(points[4]))
                add(area, {points[4], points[4], points[4], points[4]},
                    stepOfPart(points, side, roughStep));
        } else if (good > 0 || (side > kLeastUnknown && m_reach.intersects(QRectF(area)))) {
            quarter(area, stepOfPart(points, side, roughStep));
        }
    }

    void quarter(const QRect& area, double step)
    {
        if (m_view.isCancelled())
            return;
        const int half = area.width() / 2;
        const std::vector<QPointF> points = transformed(area.topLeft(), half / 2.0, 5);
        for (int i = 0; i < 4; ++i) {
            const QPoint place(i % 2, i / 2);
            settle(QRect(area.topLeft() + place * half, QSize(half, half)),
                   nineOf(points, 5, 2 * std::size_t(place.x()), 2 * std::size_t(place.y())), step);
        }
    }

    void add(const QRect& area, const std::array<QPointF, 4>& corners, double step)
    {
        const MappedCell whole{area, corners, step};
        if (area.width() <= kCell) {
            addIfSeen(whole);
            return;
        }
        for (int y = area.top(); y < area.bottom(); y += kCell) {
            for (int x = area.left(); x < area.right(); x += kCell)
                addIfSeen({QRect(x, y, kCell, kCell),
                           {whole.at(x, y), whole.at(x + kCell, y), whole.at(x, y + kCell),
                            whole.at(x + kCell, y + kCell)},
                           step});
        }
    }

    void addIfSeen(const MappedCell& cell)
    {
        const QRectF footprint = cell.footprint();
        if (cell.area.intersects(m_picture) && footprint.left() < m_raster.right() &&
            footprint.right() >= 0 && footprint.top() < m_raster.bottom() &&
            footprint.bottom() >= 0)
            m_cells.push_back(cell);
    }

    const RasterView& m_view;
    const RasterPlace& m_place;
    QRectF m_raster;
    QRect m_picture; ///< device pixels
    QRectF m_reach;  ///< device pixels
    std::vector<MappedCell> m_cells;
};

} // namespace

QPointF MappedCell::at(double x, double y) const
{
    const double across = (x - area.x()) / area.width();
    const double down = (y - area.y()) / area.height();
    const QPointF above = corners[0] + (corners[1] - corners[0]) * across;
    const QPointF below = corners[2] + (corners[3] - corners[2]) * across;
    return above + (below - above) * down;
}

QRectF MappedCell::footprint() const
{
    const auto [left, right] =
        std::minmax({corners[0].x(), corners[1].x(), corners[2].x(), corners[3].x()});
    const auto [top, bottom] =
        std::minmax({corners[0].y(), corners[1].y(), corners[2].y(), corners[3].y()});
    return {QPointF(left, top), QPointF(right, bottom)};
}

std::vector<MappedCell> mapScreen(const RasterView& view, const RasterPlace& place)
{
    return Mapper(view, place).run();
}

} // namespace lum
