#pragma once

#include "model/PointLines.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A line, or a point, whose number matches what was typed. It holds copies of the numbers.
struct FoundPlace
{
    bool isSurvey = false; ///< a result; otherwise of the design
    bool isReceiver = false;
    std::string line;
    std::string point;        ///< empty for a line
    std::size_t lineSize = 0; ///< the points of a line; 0 for a point

    [[nodiscard]] bool isLine() const { return lineSize > 0; }
    friend bool operator==(const FoundPlace&, const FoundPlace&) = default;
};

struct FoundPlaces
{
    std::vector<FoundPlace> places; ///< the best ones
    std::size_t count = 0;          ///< of all that match
};

inline constexpr std::size_t kMostFoundPlaces = 50;

/// Finds lines and points by their numbers; Latin letters match in upper and lower case.
///
/// Numbers that are the text come first, then those that begin with it, then those that hold it;
/// of each kind the design's before the results', lines before points, in the containers' order.
/// Where both have more than there is room for, each gets half of it. A line is also found with the
/// letter of its kind before its number ("R1001"). "line/point" and "line point" find the points
/// of that line by the beginning, or a part, of their number; "line/" finds all of them.
///
/// Walks over all points on two threads. Nothing is kept between two calls, so that the first
/// search after a change takes no longer than any other. An empty text finds nothing.
[[nodiscard]] FoundPlaces findPlaces(const DesignPoints& design, const SurveyPoints& survey,
                                     std::string_view text);
