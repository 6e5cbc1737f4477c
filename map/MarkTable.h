#pragma once

#include "map/Bounds.h"

#include <QPointF>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A place on the project grid, in its own unit.
struct GridPlace
{
    double north = 0;
    double east = 0;
};

/// The named marks of a picture, line after line, for painting, picking and looking up.
///
/// The arrays are flat and filled in order. Each line is cut into short blocks with bounds, so that
/// painting and picking can skip a block that is far away.
class MarkTable
{
public:
    using Index = std::uint32_t;

    struct Block
    {
        Index first = 0;
        Index end = 0;
        Bounds grid; ///< of the marks; x is northing, y is easting
        Bounds seen; ///< of the marks and all that is drawn for them, map coordinates
    };
    struct Line
    {
        std::string number;
        Index firstBlock = 0;
        Index endBlock = 0;
        Bounds seen;
    };
    struct Nearest
    {
        Index mark = 0;
        double distance = 0; ///< in the unit of the grid
    };

    void reserve(std::size_t marks);

    /// Marks added from now on belong to this line. `endLine` drops a line without marks.
    void beginLine(std::string_view number);
    /// Adds a mark. The names of a line must come in byte order.
    /// \returns false, and adds nothing, when a coordinate is not finite
    bool add(std::string_view name, const GridPlace& grid, const QPointF& map);
    /// Widens the bounds of what is drawn for the last mark to this place; ignores a place that is
    /// not finite.
    void alsoSeenAt(const QPointF& map);
    void endLine();

    [[nodiscard]] std::size_t size() const { return m_grid.size(); }
    [[nodiscard]] const std::vector<Line>& lines() const { return m_lines; }
    [[nodiscard]] const Block& block(Index index) const { return m_blocks[index]; }
    /// The first mark of a line, and the one behind its last.
    [[nodiscard]] Index firstOf(const Line& line) const { return m_blocks[line.firstBlock].first; }
    [[nodiscard]] Index endOf(const Line& line) const { return m_blocks[line.endBlock - 1].end; }

    [[nodiscard]] const GridPlace& grid(Index mark) const { return m_grid[mark]; }
    [[nodiscard]] const QPointF& place(Index mark) const { return m_map[mark]; }
    [[nodiscard]] std::string_view name(Index mark) const;
    /// The length of the longest name, bytes.
    [[nodiscard]] std::size_t longestName() const { return m_longestName; }
    /// The bounds of all marks on the grid; x is northing, y is easting.
    [[nodiscard]] Bounds gridBounds() const;

    /// The nearest mark less than `reach` away; of several equally near ones the first.
    [[nodiscard]] std::optional<Nearest> nearest(const GridPlace& to, double reach) const;
    /// Whether a mark lies in this rectangle, map coordinates.
    [[nodiscard]] bool hasMarkIn(const QRectF& map) const;
    /// The first mark of this name.
    [[nodiscard]] std::optional<Index> find(std::string_view name) const;
    [[nodiscard]] const Line& lineOf(Index mark) const;

private:
    std::vector<Line> m_lines;
    std::vector<Block> m_blocks;
    std::vector<GridPlace> m_grid;
    std::vector<QPointF> m_map;
    std::string m_names;              ///< all names, one behind the other
    std::vector<Index> m_nameEnds{0}; ///< in `m_names`; entry 0 is where the first name begins
    std::size_t m_longestName = 0;
};
