#include "lum_sdk/raster/RasterPainting.h"

#include "lum_sdk/raster/RasterPatch.h"
#include "lum_sdk/raster/ScreenMapping.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace lum {

namespace {

// A level with up to so many device pixels to one of its own still looks sharp.
constexpr double kMostEnlarged = 1.2;
constexpr double kSinglePixels = 0.5; // level pixels to a device pixel, from which on they are seen
// A square that needs more of the coarsest level than this is left out: the raster is too fine for
// what can be seen of it, and nothing coarser is there.
constexpr int kMostPatch = 1024;
constexpr int kMargin = 2; // pixels around a patch, for mixing and for rounding

/// What a square of the picture is made from.
struct Piece
{
    MappedCell cell; ///< corners in pixels of the level
    std::size_t level = 0;
    QRect patch; ///< pixels of the level, with a margin
    RasterPatch::Sampling sampling = RasterPatch::Sampling::Nearest;
};

using Key = quint64;

Key keyOf(const RasterBlockId& id)
{
    return (Key(id.level) << 56U) | (Key(quint32(id.row)) << 28U) | Key(quint32(id.column));
}

std::size_t levelFor(const RasterInfo& info, double step)
{
    std::size_t chosen = info.levels.size() - 1;
    const double finest = info.size.width();
    while (chosen > 0 && step * info.levels[chosen].size.width() / finest < 1 / kMostEnlarged)
        --chosen;
    return chosen;
}

/// Whether the raster lies so that its pixels can be copied one to one.
bool isCopy(const std::array<QPointF, 4>& corners, int side)
{
    const QPointF across = (corners[1] - corners[0]) / side;
    const QPointF down = (corners[2] - corners[0]) / side;
    constexpr double kSame = 1.0 / 256; // a quarter of a pixel over a square
    return std::abs(std::abs(across.x()) - 1) < kSame && std::abs(across.y()) < kSame &&
           std::abs(std::abs(down.y()) - 1) < kSame && std::abs(down.x()) < kSame;
}

Piece pieceOf(const RasterInfo& info, const MappedCell& cell)
{
    Piece piece{cell, levelFor(info, cell.step), {}};
    const QSize size = info.levels[piece.level].size;
    const double scaleX = double(size.width()) / info.size.width();
    const double scaleY = double(size.height()) / info.size.height();
    for (QPointF& corner : piece.cell.corners)
        corner = {corner.x() * scaleX, corner.y() * scaleY};
    piece.cell.step *= std::sqrt(scaleX * scaleY);
    if (piece.cell.step > kSinglePixels && !isCopy(piece.cell.corners, cell.area.width()))
        piece.sampling = RasterPatch::Sampling::Bilinear;
    const QRectF all(QPointF(-kMargin, -kMargin), QSizeF(size) + QSizeF(2 * kMargin, 2 * kMargin));
    piece.patch = (piece.cell.footprint().adjusted(-kMargin, -kMargin, kMargin, kMargin) & all)
                      .toAlignedRect();
    return piece;
}

/// Calls `visit(id, place)` for the blocks of a level that touch an area.
template <class Visit>
void forEachBlock(const RasterLevel& level, std::size_t number, const QRect& area, Visit visit)
{
    const QRect inside = area & QRect(QPoint(0, 0), level.size);
    if (inside.isEmpty())
        return;
    const QSize block = level.block;
    for (int row = inside.top() / block.height(); row <= inside.bottom() / block.height(); ++row) {
        for (int column = inside.left() / block.width(); column <= inside.right() / block.width();
             ++column)
            visit(RasterBlockId{number, column, row}, level.blockArea(column, row));
    }
}

class Painting
{
public:
    Painting(const RasterView& view, const RasterPlace& place, IRasterBlocks& blocks)
        : m_view(view), m_info(place.info()), m_blocks(blocks)
    {
        for (const MappedCell& cell : mapScreen(view, place)) {
            const Piece piece = pieceOf(m_info, cell);
            if (piece.patch.width() <= kMostPatch && piece.patch.height() <= kMostPatch)
                m_pieces.push_back(piece);
        }
    }

    /// \returns false when the view was cancelled
    bool fetch()
    {
        const std::vector<RasterBlockId> wanted = blocksByDistance();
        if (m_view.isCancelled())
            return false;
        m_blocks.want(wanted);
        for (const RasterBlockId& id : wanted) {
            QImage block = m_blocks.block(id);
            if (m_view.isCancelled())
                return false;
            m_isComplete = m_isComplete && !block.isNull();
            m_held.emplace(keyOf(id), std::move(block));
        }
        return true;
    }

    /// \returns false when the view was cancelled
    bool draw(QPainter& painter)
    {
        for (const Piece& piece : m_pieces) {
            if (m_view.isCancelled())
                return false;
            fillPatch(piece);
            drawPiece(piece, painter);
        }
        return true;
    }

    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    [[nodiscard]] std::vector<RasterBlockId> blocksByDistance() const
    {
        struct Wanted
        {
            double distance;
            RasterBlockId id;
        };
        std::unordered_map<Key, Wanted> nearest;
        const QPointF center(m_view.pixels().width() / 2.0, m_view.pixels().height() / 2.0);
        for (const Piece& piece : m_pieces) {
            const QPointF gap = QRectF(piece.cell.area).center() - center;
            const double distance = std::hypot(gap.x(), gap.y());
            forEachBlock(m_info.levels[piece.level], piece.level, piece.patch,
                         [&](const RasterBlockId& id, const QRect& /*place*/) {
                             Wanted& wanted =
                                 nearest.try_emplace(keyOf(id), Wanted{distance, id}).first->second;
                             wanted.distance = std::min(wanted.distance, distance);
                         });
        }
        std::vector<Wanted> sorted;
        sorted.reserve(nearest.size());
        for (const auto& [key, wanted] : nearest)
            sorted.push_back(wanted);
        std::sort(sorted.begin(), sorted.end(), [](const Wanted& a, const Wanted& b) {
            return a.distance != b.distance ? a.distance < b.distance : keyOf(a.id) < keyOf(b.id);
        });
        std::vector<RasterBlockId> ids;
        ids.reserve(sorted.size());
        for (const Wanted& wanted : sorted)
            ids.push_back(wanted.id);
        return ids;
    }

    void fillPatch(const Piece& piece)
    {
        const RasterLevel& level = m_info.levels[piece.level];
        bool isMissing = false;
        forEachBlock(level, piece.level, piece.patch,
                     [&](const RasterBlockId& id, const QRect& /*place*/) {
                         isMissing = isMissing || m_held[keyOf(id)].isNull();
                     });
        m_patch.start(piece.patch, level.size, isMissing);
        if (isMissing)
            addSubstitutes(piece);
        forEachBlock(level, piece.level, piece.patch,
                     [&](const RasterBlockId& id, const QRect& place) {
                         const QImage& block = m_held[keyOf(id)];
                         if (!block.isNull() && !m_patch.takeWhole(block, place))
                             m_patch.add(block, place);
                     });
        m_patch.finish();
    }

    /// From the coarsest to the finest, so that the best there is comes last.
    void addSubstitutes(const Piece& piece)
    {
        const QSize size = m_info.levels[piece.level].size;
        for (std::size_t number = m_info.levels.size() - 1; number > piece.level; --number) {
            const RasterLevel& level = m_info.levels[number];
            const double scaleX = double(level.size.width()) / size.width();
            const double scaleY = double(level.size.height()) / size.height();
            const QRectF area(piece.patch.x() * scaleX, piece.patch.y() * scaleY,
                              piece.patch.width() * scaleX, piece.patch.height() * scaleY);
            forEachBlock(level, number, area.toAlignedRect(),
                         [&](const RasterBlockId& id, const QRect& place) {
                             const QImage block = substitute(id);
                             if (!block.isNull())
                                 m_patch.addStretched(block, place, level.size);
                         });
        }
    }

    QImage substitute(const RasterBlockId& id)
    {
        const auto [found, isNew] = m_substitutes.try_emplace(keyOf(id));
        if (isNew)
            found->second = m_blocks.substitute(id);
        return found->second;
    }

    void drawPiece(const Piece& piece, QPainter& painter)
    {
        const QRect& area = piece.cell.area;
        if (m_picture.size() != area.size())
            m_picture = QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
        const bool isFull = m_patch.sample(piece.cell.corners, piece.sampling, m_picture);
        const bool isOpaque = isFull && m_patch.isOpaque();
        m_picture.reinterpretAsFormat(isOpaque ? QImage::Format_RGB32
                                               : QImage::Format_ARGB32_Premultiplied);
        painter.drawImage(area.topLeft(), m_picture);
    }

    const RasterView& m_view;
    const RasterInfo& m_info;
    IRasterBlocks& m_blocks;
    std::vector<Piece> m_pieces;
    std::unordered_map<Key, QImage> m_held; ///< null where a block is missing
    std::unordered_map<Key, QImage> m_substitutes;
    bool m_isComplete = true;
    RasterPatch m_patch;
    QImage m_picture; ///< of one piece
};

} // namespace

RasterPainted paintRaster(const RasterView& view, const RasterPlace& place, IRasterBlocks& blocks,
                          QPainter& painter, double opacity)
{
    Painting painting(view, place, blocks);
    if (!painting.fetch())
        return RasterPainted::Nothing;
    painter.save();
    painter.setOpacity(painter.opacity() * opacity);
    const double pixel = 1 / view.pixelRatio;
    painter.setWorldTransform(QTransform::fromScale(pixel, pixel), true);
    const bool isDrawn = painting.draw(painter);
    painter.restore();
    if (!isDrawn)
        return RasterPainted::Nothing;
    return painting.isComplete() ? RasterPainted::Everything : RasterPainted::SomeMissing;
}

} // namespace lum
