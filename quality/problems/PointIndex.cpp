#include "quality/problems/PointIndex.h"

#include <nanoflann.hpp>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace {

constexpr double kFarthestM = 1e9; ///< its square keeps millimetres

/// What the tree asks for: the places that are on the map.
class TreePlaces
{
public:
    explicit TreePlaces(std::vector<PointPlace> list) : m_list(std::move(list))
    {
        if (std::ranges::all_of(m_list, isOnMap))
            return;
        m_isWhole = false;
        for (std::size_t i = 0; i < m_list.size(); ++i) {
            if (isOnMap(m_list[i])) {
                m_onMap.push_back(m_list[i]);
                m_numbers.push_back(static_cast<std::uint32_t>(i));
            }
        }
    }

    [[nodiscard]] const std::vector<PointPlace>& list() const { return m_list; }
    [[nodiscard]] std::size_t numberOf(std::uint32_t place) const
    {
        return m_isWhole ? place : m_numbers[place];
    }

    // Called by the tree, which names them.
    // NOLINTBEGIN(readability-identifier-naming)
    [[nodiscard]] std::size_t kdtree_get_point_count() const { return indexed().size(); }
    [[nodiscard]] double kdtree_get_pt(std::size_t place, std::size_t axis) const
    {
        return axis == 0 ? indexed()[place].eastM : indexed()[place].northM;
    }
    template <class Box>
    bool kdtree_get_bbox(Box& /*box*/) const
    {
        return false; // the tree computes it
    }
    // NOLINTEND(readability-identifier-naming)

private:
    [[nodiscard]] const std::vector<PointPlace>& indexed() const
    {
        return m_isWhole ? m_list : m_onMap;
    }

    std::vector<PointPlace> m_list;
    bool m_isWhole = true; ///< all are on the map; then the rest is empty
    std::vector<PointPlace> m_onMap;
    std::vector<std::uint32_t> m_numbers; ///< theirs in the list
};

using Metric = nanoflann::L2_Simple_Adaptor<double, TreePlaces, double, std::uint32_t>;
using KdTree = nanoflann::KDTreeSingleIndexAdaptor<Metric, TreePlaces, 2, std::uint32_t>;

/// Collects the nearest places of a search. It tells the tree a little less than the distance of
/// the last one, so that the tree passes over places that are as far away: there may be a million
/// in one place.
class NearestSet
{
public:
    NearestSet(const TreePlaces& places, std::size_t most, double withinM,
               std::vector<PointIndex::Found>& found)
        : m_places(places), m_most(most),
          m_limit(std::nextafter(withinM * withinM, std::numeric_limits<double>::infinity())),
          m_found(found)
    {
        m_found.clear();
    }

    /// \returns false when no place can be nearer than those that are found
    bool addPoint(double squareM, std::uint32_t place)
    {
        const auto before = std::upper_bound(
            m_found.begin(), m_found.end(), squareM,
            [](double square, const auto& other) { return square < other.distanceM; });
        if (m_found.size() < m_most) {
            m_found.insert(before, {m_places.numberOf(place), squareM});
        } else if (before != m_found.end()) {
            std::move_backward(before, m_found.end() - 1, m_found.end());
            *before = {m_places.numberOf(place), squareM};
        }
        return !full() || m_found.back().distanceM > 0;
    }
    [[nodiscard]] double worstDist() const
    {
        constexpr double kNearer = 1 - 1e-12;
        return full() ? m_found.back().distanceM * kNearer : m_limit;
    }
    [[nodiscard]] bool full() const { return m_found.size() == m_most; }
    [[nodiscard]] std::size_t size() const { return m_found.size(); }

private:
    const TreePlaces& m_places;
    std::size_t m_most;
    double m_limit;
    std::vector<PointIndex::Found>& m_found; ///< squares of distances while the search runs
};

} // namespace

bool isOnMap(const PointPlace& place)
{
    return std::fabs(place.eastM) <= kFarthestM && std::fabs(place.northM) <= kFarthestM;
}

double distanceM(const PointPlace& a, const PointPlace& b)
{
    const double east = a.eastM - b.eastM;
    const double north = a.northM - b.northM;
    return std::sqrt(east * east + north * north);
}

class PointIndex::Tree
{
public:
    explicit Tree(std::vector<PointPlace> list)
        : m_places(std::move(list)),
          m_tree(2, m_places, nanoflann::KDTreeSingleIndexAdaptorParams(kLeafSize))
    {
    }

    [[nodiscard]] const std::vector<PointPlace>& list() const { return m_places.list(); }

    void search(const PointPlace& place, std::size_t most, double withinM,
                std::vector<Found>& found) const
    {
        found.clear();
        if (most == 0 || !isOnMap(place) || !(withinM >= 0))
            return;
        NearestSet set(m_places, most, withinM, found);
        const double at[] = {place.eastM, place.northM};
        m_tree.findNeighbors(set, at, {});
        for (Found& one : found)
            one.distanceM = std::sqrt(one.distanceM);
    }

private:
    static constexpr std::size_t kLeafSize = 24; ///< building and asking are quick together

    TreePlaces m_places;
    KdTree m_tree;
};

PointIndex::PointIndex(std::vector<PointPlace> places)
    : m_tree(std::make_unique<Tree>(std::move(places)))
{
}

PointIndex::~PointIndex() = default;
PointIndex::PointIndex(PointIndex&&) noexcept = default;
PointIndex& PointIndex::operator=(PointIndex&&) noexcept = default;

std::size_t PointIndex::size() const
{
    return m_tree->list().size();
}

const PointPlace& PointIndex::operator[](std::size_t number) const
{
    return m_tree->list()[number];
}

std::optional<PointIndex::Found> PointIndex::nearest(const PointPlace& place, double withinM) const
{
    thread_local std::vector<Found> found;
    nearest(place, 1, withinM, found);
    return found.empty() ? std::nullopt : std::optional(found.front());
}

void PointIndex::nearest(const PointPlace& place, std::size_t most, double withinM,
                         std::vector<Found>& found) const
{
    m_tree->search(place, most, withinM, found);
}
