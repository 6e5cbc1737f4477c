#include "lum_sdk/raster/ScreenMapping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lum {

namespace {

constexpr int kCell = 64;            // device pixels
constexpr double kUnknownStep = 1e9; // asks for the coarsest level
constexpr int kLeastUnknown = 16;    // a smaller square without an answer is not searched for one
constexpr double kMostMissed = 0.25; // device pixels; half of what is promised, since only some
                                     // places of a square are looked at

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

/// The same where the figure is torn or has holes: from the two neighbours that lie closest
/// together. \returns `fallback` when there are none
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

bool isExact(const Nine& p, double step)
{
    const double most = kMostMissed * step;
    return length((p[0] + p[2]) / 2 - p[1]) <= most && length((p[0] + p[6]) / 2 - p[3]) <= most &&
           length((p[2] + p[8]) / 2 - p[5]) <= most && length((p[6] + p[8]) / 2 - p[7]) <= most &&
           length((p[0] + p[2] + p[6] + p[8]) / 4 - p[4]) <= most;
}

class Mapper
{
public:
    Mapper(const RasterView& view, const RasterPlace& place)
        : m_view(view), m_place(place), m_raster(QPointF(0, 0), QSizeF(place.info().size)),
          m_reach(onScreen(place.reach()))
    {
    }

    std::vector<MappedCell> run()
    {
        const QSize size = m_view.pixels();
        const QRect cells = cellsToLookAt(size);
        for (int row = cells.top(); row <= cells.bottom(); ++row) {
            if (m_view.isCancelled())
                break;
            addRow(row, cells.left(), cells.width());
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

    [[nodiscard]] QRect cellsToLookAt(const QSize& size) const
    {
        const QRect all(0, 0, (size.width() + kCell - 1) / kCell,
                        (size.height() + kCell - 1) / kCell);
        if (!m_place.isWhole())
            return all;
        const QRectF shown = m_reach & QRectF(QPointF(-1, -1), QSizeF(size) + QSizeF(2, 2));
        if (m_place.extent().isNull() || shown.isEmpty())
            return {};
        const QRect touched = shown.toAlignedRect();
        return all & QRect(QPoint(touched.left() / kCell, touched.top() / kCell),
                           QPoint(touched.right() / kCell, touched.bottom() / kCell));
    }

    /// The places of a grid of points in the raster.
    [[nodiscard]] std::vector<QPointF> transformed(const QPointF& corner, double spacing,
                                                   int columns, int rows) const
    {
        std::vector<QPointF> points;
        points.reserve(std::size_t(columns) * std::size_t(rows));
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const QPointF pixel = corner + QPointF(column, row) * spacing;
                points.push_back(m_view.transform.ScreenToSurvey(pixel / m_view.pixelRatio));
            }
        }
        m_place.toPixels(points);
        return points;
    }

    void addRow(int row, int firstColumn, int count)
    {
        const int columns = 2 * count + 1;
        const QPoint corner(firstColumn * kCell, row * kCell);
        const std::vector<QPointF> points = transformed(corner, kCell / 2.0, columns, 3);
        for (int i = 0; i < count; ++i)
            settle(QRect(corner + QPoint(i * kCell, 0), QSize(kCell, kCell)),
                   nineOf(points, columns, 2 * i, 0), kUnknownStep);
    }

    static Nine nineOf(const std::vector<QPointF>& points, int columns, int column, int row)
    {
        Nine nine;
        for (int i = 0; i < 9; ++i)
            nine[std::size_t(i)] = points[std::size_t((row + i / 3) * columns + column + i % 3)];
        return nine;
    }

    /// \param roughStep  that of the square which this one is a quarter of
    void settle(const QRect& area, const Nine& points, double roughStep)
    {
        const auto good = std::count_if(points.begin(), points.end(), isGood);
        const int side = area.width();
        const double step = good == 9 ? stepOf(points, side) : 0;
        if (good == 9 && isExact(points, step)) {
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
        const std::vector<QPointF> points = transformed(area.topLeft(), half / 2.0, 5, 5);
        for (int i = 0; i < 4; ++i) {
            const QPoint place(i % 2, i / 2);
            settle(QRect(area.topLeft() + place * half, QSize(half, half)),
                   nineOf(points, 5, 2 * place.x(), 2 * place.y()), step);
        }
    }

    void add(const QRect& area, const std::array<QPointF, 4>& corners, double step)
    {
        const MappedCell cell{area, corners, step};
        const QRectF footprint = cell.footprint();
        if (footprint.left() < m_raster.right() && footprint.right() >= 0 &&
            footprint.top() < m_raster.bottom() && footprint.bottom() >= 0)
            m_cells.push_back(cell);
    }

    const RasterView& m_view;
    const RasterPlace& m_place;
    QRectF m_raster;
    QRectF m_reach; ///< device pixels
    std::vector<MappedCell> m_cells;
};

} // namespace

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
