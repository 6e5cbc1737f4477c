#include "lum_sdk/raster/RasterPainting.h"

#include "lum_sdk/raster/RasterPatch.h"
#include "lum_sdk/raster/ScreenMapping.h"
#include "lum_sdk/raster/TwoThreads.h"

#include <QPainter>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <unordered_map>

namespace lum {

namespace {

// A level with up to so many device pixels to one of its own still looks sharp.
constexpr double kMostEnlarged = 1.2;
constexpr double kSinglePixels = 0.5; // level pixels to a device pixel, from which on they are seen
constexpr double kNearlyOne = 0.02;   // so close to one to one, mixing would only blur
// A square that needs more of the coarsest level than this is left out: the raster is too fine for
// what can be seen of it, and nothing coarser is there.
constexpr int kMostPatch = 1024;
constexpr std::size_t kLeastForTwo = 32; // pieces, for which a second thread is started
constexpr int kMargin = 2;               // pixels around a patch, for mixing and for rounding

/// What a square of the picture is made from.
struct Piece
{
    MappedCell cell; ///< corners in pixels of the level
    std::size_t level = 0;
    QRect patch; ///< pixels of the level, with a margin
    RasterPatch::Sampling sampling = RasterPatch::Sampling::Nearest;
    bool isCopy = false;
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

/// Whether the pixels of a square are those of the level, one to one.
bool isCopy(const MappedCell& cell)
{
    const QPointF size(cell.area.width(), cell.area.height());
    constexpr double kMost = 0.2; // of a pixel, from one side of the square to the other
    const auto isNear = [&](const QPointF& a, const QPointF& b) {
        return std::abs(a.x() - b.x()) < kMost && std::abs(a.y() - b.y()) < kMost;
    };
    const QPointF corner = cell.corners[0];
    return isNear(cell.corners[1], corner + QPointF(size.x(), 0)) &&
           isNear(cell.corners[2], corner + QPointF(0, size.y())) &&
           isNear(cell.corners[3], corner + size);
}

/// The pixel of the level that is copied to the upper left of a square.
QPoint firstOf(const MappedCell& cell)
{
    return {static_cast<int>(std::floor(cell.corners[0].x() + 0.5)),
            static_cast<int>(std::floor(cell.corners[0].y() + 0.5))};
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
    piece.isCopy = isCopy(piece.cell);
    const double step = piece.cell.step;
    if (step > kSinglePixels && std::abs(step - 1) > kNearlyOne)
        piece.sampling = RasterPatch::Sampling::Bilinear;
    const int margin = piece.isCopy ? 0 : kMargin;
    const QRectF all(QPointF(-margin, -margin), QSizeF(size) + QSizeF(2 * margin, 2 * margin));
    const QRectF wanted = piece.isCopy ? QRectF(QRect(firstOf(piece.cell), cell.area.size()))
                                       : piece.cell.footprint();
    piece.patch = (wanted.adjusted(-margin, -margin, margin, margin) & all).toAlignedRect();
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
            if (m_view.isCancelled())
                return false;
            QImage block = m_blocks.block(id);
            m_isComplete = m_isComplete && !block.isNull();
            m_held.emplace(keyOf(id), std::move(block));
        }
        return !m_view.isCancelled();
    }

    /// \returns false when the view was cancelled
    bool draw(QPainter& painter)
    {
        if (m_isComplete)
            joinCopies();
        std::atomic<std::size_t> next = 0;
        const auto drawPieces = [&](int /*thread*/) {
            RasterPatch patch;
            QImage picture;
            for (std::size_t i = next++; i < m_pieces.size(); i = next++) {
                if (m_view.isCancelled())
                    return;
                drawPiece(m_pieces[i], patch, picture, painter);
            }
        };
        if (m_pieces.size() >= kLeastForTwo)
            onTwoThreads(drawPieces);
        else
            drawPieces(0);
        return !m_view.isCancelled();
    }

    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    /// Squares that are all copied with one shift, and fill a rectangle, become one: then whole
    /// blocks are copied.
    void joinCopies()
    {
        QRect all;
        qint64 pixels = 0;
        for (const Piece& piece : m_pieces) {
            const Piece& first = m_pieces.front();
            if (!piece.isCopy || piece.level != first.level || shiftOf(piece) != shiftOf(first))
                return;
            all |= piece.cell.area;
            pixels += qint64(piece.cell.area.width()) * piece.cell.area.height();
        }
        if (m_pieces.size() < 2 || pixels != qint64(all.width()) * all.height())
            return;
        Piece joined = m_pieces.front();
        const QPoint first = all.topLeft() + shiftOf(joined);
        joined.cell.area = all;
        joined.cell.corners[0] = first;
        joined.patch = QRect(first, all.size());
        m_pieces.assign(1, joined);
    }

    /// From a pixel of the picture to that of the level that is copied there.
    [[nodiscard]] static QPoint shiftOf(const Piece& piece)
    {
        return firstOf(piece.cell) - piece.cell.area.topLeft();
    }

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

    void drawPiece(const Piece& piece, RasterPatch& patch, QImage& picture, QPainter& painter)
    {
        const bool isMissing = isPartMissing(piece);
        if (piece.isCopy && !isMissing) {
            const std::lock_guard lock(m_mutex);
            copyBlocks(piece, painter);
            return;
        }
        fillPatch(piece, isMissing, patch);
        const QSize size = piece.cell.area.size();
        if (picture.size() != size)
            picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        const bool isFull = patch.sample(piece.cell.corners, piece.sampling, picture);
        picture.reinterpretAsFormat(isFull && patch.isOpaque()
                                        ? QImage::Format_RGB32
                                        : QImage::Format_ARGB32_Premultiplied);
        const std::lock_guard lock(m_mutex);
        painter.drawImage(piece.cell.area.topLeft(), picture);
    }

    [[nodiscard]] bool isPartMissing(const Piece& piece) const
    {
        bool isMissing = false;
        forEachBlock(m_info.levels[piece.level], piece.level, piece.patch,
                     [&](const RasterBlockId& id, const QRect& /*place*/) {
                         isMissing = isMissing || m_held.at(keyOf(id)).isNull();
                     });
        return isMissing;
    }

    void copyBlocks(const Piece& piece, QPainter& painter) const
    {
        const QPoint first = firstOf(piece.cell);
        const QRect wanted(first, piece.cell.area.size());
        forEachBlock(m_info.levels[piece.level], piece.level, wanted,
                     [&](const RasterBlockId& id, const QRect& place) {
                         const QRect part = wanted & place;
                         painter.drawImage(piece.cell.area.topLeft() + part.topLeft() - first,
                                           m_held.at(keyOf(id)), part.translated(-place.topLeft()));
                     });
    }

    void fillPatch(const Piece& piece, bool isMissing, RasterPatch& patch)
    {
        const RasterLevel& level = m_info.levels[piece.level];
        patch.start(piece.patch, level.size, isMissing);
        if (isMissing)
            addSubstitutes(piece, patch);
        forEachBlock(level, piece.level, piece.patch,
                     [&](const RasterBlockId& id, const QRect& place) {
                         const QImage& block = m_held.at(keyOf(id));
                         if (!block.isNull() && !patch.takeWhole(block, place))
                             patch.add(block, place);
                     });
        patch.finish();
    }

    /// From the coarsest to the finest, so that the best there is comes last.
    void addSubstitutes(const Piece& piece, RasterPatch& patch)
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
                                 patch.addStretched(block, place, level.size);
                         });
        }
    }

    QImage substitute(const RasterBlockId& id)
    {
        const std::lock_guard lock(m_mutex);
        const auto [found, isNew] = m_substitutes.try_emplace(keyOf(id));
        if (isNew)
            found->second = m_blocks.substitute(id);
        return found->second;
    }

    const RasterView& m_view;
    const RasterInfo& m_info;
    IRasterBlocks& m_blocks;
    std::vector<Piece> m_pieces;
    std::unordered_map<Key, QImage> m_held; ///< null where a block is missing
    std::unordered_map<Key, QImage> m_substitutes;
    bool m_isComplete = true;
    std::mutex m_mutex; ///< guards the painter and the substitutes while two threads draw
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
