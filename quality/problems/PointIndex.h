#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

/// A place on the plane, metres.
struct PointPlace
{
    double eastM = 0;
    double northM = 0;
};

/// Whether it is a place at all: no NaN, and no farther away than any map reaches.
[[nodiscard]] bool isOnMap(const PointPlace& place);

[[nodiscard]] double distanceM(const PointPlace& a, const PointPlace& b);

/// Finds what lies near a place. Places are known by their numbers, their order in the list. A
/// place that is not on the map is never found, and nothing is found near such a place. Any number
/// of threads may ask at once.
///
/// Many places that are one cost no more than others, unless all of them are asked for.
class PointIndex
{
public:
    struct Found
    {
        std::size_t number;
        double distanceM;
    };

    explicit PointIndex(std::vector<PointPlace> places);
    ~PointIndex();
    PointIndex(PointIndex&&) noexcept;
    PointIndex& operator=(PointIndex&&) noexcept;

    [[nodiscard]] std::size_t size() const;
    /// A place of the list.
    [[nodiscard]] const PointPlace& operator[](std::size_t number) const;

    /// The nearest place that is at most `withinM` away; any of those that are equally near.
    [[nodiscard]] std::optional<Found> nearest(const PointPlace& place, double withinM) const;
    /// Up to `most` places that are at most `withinM` away, nearest first.
    void nearest(const PointPlace& place, std::size_t most, double withinM,
                 std::vector<Found>& found) const;

private:
    class Tree;
    std::unique_ptr<Tree> m_tree;
};
