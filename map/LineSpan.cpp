#include "map/LineSpan.h"

#include "lum_sdk/Transform.h"

namespace {

enum class Side
{
    Inside,
    Outside,
    Both
};

/// Whether the marks of a block lie in `area`. The transform keeps the order of coordinates, so
/// that the marks lie between the transformed corners of the bounds.
Side sideOf(const Bounds& bounds, const Transform& transform, const QRectF& area)
{
    const QPointF a = transform.SurveyToScreen(bounds.minX, bounds.maxY);
    const QPointF b = transform.SurveyToScreen(bounds.maxX, bounds.minY);
    if (area.contains(a) && area.contains(b))
        return Side::Inside;
    if (b.x() < area.left() || a.x() > area.right() || b.y() < area.top() || a.y() > area.bottom())
        return Side::Outside;
    return Side::Both;
}

/// Finds the two ends of the segment on a walk along the line, mark by mark or block by block.
class SpanWalk
{
public:
    explicit SpanWalk(MarkTable::Index first) : m_start(first), m_end(first) {}

    /// Passes the marks from `first` to `last`, which are all inside or all outside.
    /// \returns true when the end has been found
    bool pass(MarkTable::Index first, MarkTable::Index last, bool isInside)
    {
        m_end = last;
        if (isInside) {
            m_hasEntered = true;
        } else if (m_hasEntered) {
            m_end = first;
            return true;
        } else {
            m_start = last;
        }
        return false;
    }

    [[nodiscard]] MarkTable::Index start() const { return m_start; }
    [[nodiscard]] MarkTable::Index end() const { return m_end; }

private:
    MarkTable::Index m_start;
    MarkTable::Index m_end;
    bool m_hasEntered = false;
};

/// \returns true when the end has been found
bool walkBlock(SpanWalk& walk, const MarkTable& marks, const MarkTable::Block& block,
               const Transform& transform, const QRectF& area)
{
    const Side side = sideOf(block.seen, transform, area);
    if (side != Side::Both)
        return walk.pass(block.first, block.end - 1, side == Side::Inside);
    for (MarkTable::Index mark = block.first; mark < block.end; ++mark) {
        if (walk.pass(mark, mark, area.contains(transform.SurveyToScreen(marks.place(mark)))))
            return true;
    }
    return false;
}

} // namespace

QLineF lineSpan(const MarkTable& marks, const MarkTable::Line& line, const Transform& transform,
                const QRectF& area)
{
    SpanWalk walk(marks.firstOf(line));
    for (MarkTable::Index i = line.firstBlock; i < line.endBlock; ++i) {
        if (walkBlock(walk, marks, marks.block(i), transform, area))
            break;
    }
    return {transform.SurveyToScreen(marks.place(walk.start())),
            transform.SurveyToScreen(marks.place(walk.end()))};
}
