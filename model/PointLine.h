#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// For walks over all points, which are longer than a processor foresees: asks the memory for the
/// numbers of a point some places behind this one. Where no such point is, nothing happens.
template <class Point>
void fetchAhead(const Point& point)
{
    constexpr std::uintptr_t kPlaces = 8; // NOLINTNEXTLINE(performance-no-int-to-ptr): never read
    __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(&point) +
                                                     kPlaces * sizeof(Point)));
}

/// The points of one line, ordered by the bytes of their numbers, each number once.
///
/// An ordered map that keeps its points in short sorted blocks. A point that comes in order is
/// appended, any other moves at most the points of its block. A caller may change a point through
/// an iterator, but not its number. Pointers and iterators are valid until points are added or
/// taken away.
template <class Point>
class PointLine
{
    using Block = std::vector<Point>;
    static constexpr std::size_t kBlockSize = 128;
    static_assert(std::is_nothrow_move_constructible_v<Point> &&
                  std::is_nothrow_move_assignable_v<Point>);

    template <bool isConst>
    class Iterator
    {
        using Blocks = std::conditional_t<isConst, const std::vector<Block>, std::vector<Block>>;

    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = Point;
        using difference_type = std::ptrdiff_t;
        using reference = std::conditional_t<isConst, const Point&, Point&>;
        using pointer = std::conditional_t<isConst, const Point*, Point*>;

        Iterator() = default;
        Iterator(Blocks& blocks, std::size_t block) : m_blocks(&blocks), m_block(block) {}

        reference operator*() const { return (*m_blocks)[m_block][m_place]; }
        pointer operator->() const { return &**this; }
        Iterator& operator++()
        {
            if (++m_place == (*m_blocks)[m_block].size()) {
                ++m_block;
                m_place = 0;
            }
            return *this;
        }
        Iterator operator++(int) { return std::exchange(*this, std::next(*this)); }
        Iterator& operator--()
        {
            if (m_place == 0)
                m_place = (*m_blocks)[--m_block].size();
            --m_place;
            return *this;
        }
        Iterator operator--(int) { return std::exchange(*this, std::prev(*this)); }
        friend bool operator==(const Iterator& a, const Iterator& b)
        {
            return a.m_block == b.m_block && a.m_place == b.m_place;
        }

    private:
        Blocks* m_blocks = nullptr;
        std::size_t m_block = 0;
        std::size_t m_place = 0;
    };

public:
    using iterator = Iterator<false>;
    using const_iterator = Iterator<true>;

    [[nodiscard]] iterator begin() { return {m_blocks, 0}; }
    [[nodiscard]] iterator end() { return {m_blocks, m_blocks.size()}; }
    [[nodiscard]] const_iterator begin() const { return {m_blocks, 0}; }
    [[nodiscard]] const_iterator end() const { return {m_blocks, m_blocks.size()}; }
    [[nodiscard]] std::size_t size() const { return m_size; }
    [[nodiscard]] bool empty() const { return m_size == 0; }

    /// Null when the line has no such point.
    [[nodiscard]] const Point* find(std::string_view pointNumber) const
    {
        return const_cast<PointLine*>(this)->find(pointNumber);
    }
    [[nodiscard]] Point* find(std::string_view pointNumber)
    {
        const auto [block, place] = placeOf(pointNumber);
        return isAt(block, place, pointNumber) ? &m_blocks[block][place] : nullptr;
    }

    /// Files the point under its number, over the one that stands there. An exception (no memory)
    /// leaves line and point as they were.
    Point& set(Point&& point)
    {
        auto [block, place] = placeOf(point.pointNumber);
        if (isAt(block, place, point.pointNumber))
            return m_blocks[block][place] = std::move(point);
        if (m_blocks.empty())
            m_blocks = roomFor(1);
        else if (m_blocks[block].size() == kBlockSize)
            makeRoom(block, place);
        Block& target = m_blocks[block];
        const auto filed = target.insert(target.begin() + std::ptrdiff_t(place), std::move(point));
        ++m_size;
        return *filed;
    }

    /// \returns false when the line has no such point
    bool erase(std::string_view pointNumber)
    {
        const auto [block, place] = placeOf(pointNumber);
        if (!isAt(block, place, pointNumber))
            return false;
        m_blocks[block].erase(m_blocks[block].begin() + std::ptrdiff_t(place));
        if (m_blocks[block].empty())
            m_blocks.erase(m_blocks.begin() + std::ptrdiff_t(block));
        --m_size;
        return true;
    }

    void clear()
    {
        m_blocks.clear();
        m_size = 0;
    }

    /// What `merge` needs beforehand, since it must not fail.
    struct Merging
    {
        std::size_t replaced = 0;   ///< points of this line that are in the later one, too
        std::vector<Block> newRoom; ///< for the points of both lines; none when all are replaced
    };
    [[nodiscard]] Merging prepareMerge(const PointLine& later) const
    {
        Merging merging;
        for (const Point& point : later)
            merging.replaced += find(point.pointNumber) != nullptr ? 1U : 0U;
        if (merging.replaced == later.size())
            return merging;
        const std::size_t size = m_size + later.m_size - merging.replaced;
        merging.newRoom = roomFor(size);
        return merging;
    }
    /// Takes over all points of `later`, which then holds the points that stood here in their
    /// place. \param merging from `prepareMerge(later)`, with both lines unchanged since
    void merge(PointLine& later, Merging&& merging) noexcept
    {
        if (merging.newRoom.empty()) {
            for (Point& point : later)
                std::swap(*find(point.pointNumber), point);
        } else {
            moveBoth(later, merging.newRoom);
        }
    }

    /// What `extract` and `mergeOthers` need beforehand, since they must not fail.
    using Room = std::vector<Block>;
    [[nodiscard]] static Room roomFor(std::size_t count)
    {
        Room room((count + kBlockSize - 1) / kBlockSize);
        for (Block& block : room) {
            const std::size_t places = std::min(count, kBlockSize);
            block.reserve(places);
            count -= places;
        }
        return room;
    }
    /// Takes over all points of `later`, none of whose numbers stands here.
    /// \param room  for the points of both
    void mergeOthers(PointLine& later, Room&& room) noexcept { moveBoth(later, room); }
    /// Moves the points of these numbers to `to`, which is empty. Numbers that the line has not are
    /// passed over.
    /// \param numbers in ascending order
    /// \param room    for as many points as there are numbers
    template <class Numbers>
    void extract(const Numbers& numbers, PointLine& to, Room&& room) noexcept
    {
        to.m_blocks = std::move(room);
        auto target = to.m_blocks.begin();
        auto number = std::begin(numbers);
        const auto stays = [&](Point& point) {
            while (number != std::end(numbers) && *number < point.pointNumber)
                ++number;
            if (number == std::end(numbers) || *number != point.pointNumber)
                return true;
            if (target->size() == kBlockSize)
                ++target;
            target->push_back(std::move(point));
            return false;
        };
        for (Block& block : m_blocks) {
            if (number == std::end(numbers))
                break;
            if (!(block.back().pointNumber < *number))
                filter(block, stays);
        }
        dropEmptyBlocks();
        to.dropEmptyBlocks();
    }

private:
    /// Keeps the points of a block for which `keeps` answers true; it is asked once for each, in
    /// order, and may move from those that it does not keep.
    template <class Keeps>
    static void filter(Block& block, Keeps keeps)
    {
        auto kept = block.begin();
        for (auto point = block.begin(); point != block.end(); ++point) {
            if (!keeps(*point))
                continue;
            if (kept != point)
                *kept = std::move(*point);
            ++kept;
        }
        block.erase(kept, block.end());
    }

    /// Removes the blocks that have become empty, and counts the points.
    void dropEmptyBlocks() noexcept
    {
        m_blocks.erase(std::remove_if(m_blocks.begin(), m_blocks.end(),
                                      [](const Block& block) { return block.empty(); }),
                       m_blocks.end());
        m_size = 0;
        for (const Block& block : m_blocks)
            m_size += block.size();
    }

    void moveBoth(PointLine& later, std::vector<Block>& room) noexcept
    {
        auto target = room.begin();
        const auto put = [&](Point& point) {
            if (target->size() == kBlockSize)
                ++target;
            target->push_back(std::move(point));
        };
        iterator own = begin();
        for (Block& block : later.m_blocks) {
            filter(block, [&](Point& point) {
                for (; own != end() && own->pointNumber < point.pointNumber; ++own)
                    put(*own);
                const bool isReplaced = own != end() && own->pointNumber == point.pointNumber;
                if (isReplaced)
                    std::swap(*own, point);
                put(isReplaced ? *own : point);
                if (isReplaced)
                    ++own;
                return isReplaced;
            });
        }
        for (; own != end(); ++own)
            put(*own);
        m_blocks = std::move(room);
        dropEmptyBlocks();
        later.dropEmptyBlocks();
    }

    /// Block and place of the first point whose number is `number` or greater; the end of the last
    /// block when there is none.
    [[nodiscard]] std::pair<std::size_t, std::size_t> placeOf(std::string_view number) const
    {
        if (m_blocks.empty())
            return {0, 0};
        if (m_blocks.back().empty() || m_blocks.back().back().pointNumber < number)
            return {m_blocks.size() - 1, m_blocks.back().size()};
        const auto block =
            std::partition_point(m_blocks.begin(), m_blocks.end(), [&](const Block& points) {
                return points.back().pointNumber < number;
            });
        const auto place =
            std::partition_point(block->begin(), block->end(),
                                 [&](const Point& point) { return point.pointNumber < number; });
        return {std::size_t(block - m_blocks.begin()), std::size_t(place - block->begin())};
    }

    [[nodiscard]] bool isAt(std::size_t block, std::size_t place, std::string_view number) const
    {
        return block < m_blocks.size() && place < m_blocks[block].size() &&
               m_blocks[block][place].pointNumber == number;
    }

    /// Makes room in a full block for a point at `place`, and corrects both. The block is split in
    /// the middle; behind its last point it gets an empty neighbour, so that points that come in
    /// order leave full blocks.
    void makeRoom(std::size_t& block, std::size_t& place)
    {
        const std::size_t cut = place == kBlockSize ? kBlockSize : kBlockSize / 2;
        if (m_blocks.size() == m_blocks.capacity())
            m_blocks.reserve(2 * m_blocks.size());
        Block upper;
        upper.reserve(kBlockSize); // the last that can fail
        const auto first = m_blocks[block].begin() + std::ptrdiff_t(cut);
        std::move(first, m_blocks[block].end(), std::back_inserter(upper));
        m_blocks[block].erase(first, m_blocks[block].end());
        m_blocks.insert(m_blocks.begin() + std::ptrdiff_t(block) + 1, std::move(upper));
        if (place > cut || cut == kBlockSize) {
            ++block;
            place -= cut;
        }
    }

    std::vector<Block> m_blocks; ///< in order, each sorted and none empty
    std::size_t m_size = 0;
};
