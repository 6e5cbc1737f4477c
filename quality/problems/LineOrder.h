#pragma once

#include "quality/problems/LineShape.h"

#include <functional>
#include <span>
#include <string_view>
#include <vector>

/// The number at the end of a point's number, and what stands before it.
struct NumberParts
{
    std::string_view prefix;
    double number = 0; ///< NaN when the text ends in no digit

    friend auto operator<=>(const NumberParts&, const NumberParts&) = default;
};

/// Digits, with a point among them or not ("10052034", "1005-2034.5"). The last fifteen count.
[[nodiscard]] NumberParts numberParts(std::string_view pointNumber);

/// Points of a line in the order of their numbers: "9" before "10", which a container has the
/// other way round.
class LineOrder
{
public:
    void clear() { m_entries.clear(); }
    /// A point without a number has no place in the order, nor has one that is nowhere.
    /// \param shape   without its number
    /// \param listed  its place in a list of the caller's
    void add(std::string_view pointNumber, const LinePoint& shape, std::size_t listed);

    /// Calls `examine` once for all points whose numbers begin alike. \param examine gets them in
    /// their order, and their places in the caller's list
    using Examine =
        std::function<void(std::span<const LinePoint> line, std::span<const std::size_t> listed)>;
    void forEachRun(const Examine& examine);

private:
    struct Entry
    {
        NumberParts parts;
        LinePoint shape;
        std::size_t listed = 0;
    };

    std::vector<Entry> m_entries;
    std::vector<LinePoint> m_line;
    std::vector<std::size_t> m_listed;
};
