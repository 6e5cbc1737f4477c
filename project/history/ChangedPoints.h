#pragma once

#include "model/PointLines.h"

#include <map>
#include <string_view>
#include <unordered_map>
#include <vector>

/// A point before and after an edit; null where it was not there.
template <class Point>
struct ChangedPoint
{
    const Point* before;
    const Point* after;
};

/// The points of one kind on a walk through edits from the last to the first: as they were after
/// the edit that comes next. What an edit holds is how they were before it.
///
/// Keeps pointers into the containers and views of the names that it is told.
template <class Points>
class ChangedPoints
{
public:
    using Point = typename Points::Point;
    using Changes = std::vector<ChangedPoint<Point>>;

    explicit ChangedPoints(const Points& present) : m_points(&present) {}

    /// An edit has changed points of these names. \param before  those that were there
    void walk(const PointNames& names, const Points& before, Changes& changes)
    {
        for (const auto& [line, numbers] : names.lines()) {
            const auto* const lineBefore = before.findLine(line);
            Numbers& later = m_later[line];
            for (const std::string& number : numbers) {
                const Point* const old = lineBefore == nullptr ? nullptr : lineBefore->find(number);
                const Point* const present = find(later, line, number);
                if (old != nullptr || present != nullptr)
                    changes.push_back({old, present});
                later[number] = old;
            }
        }
    }

    /// An edit has replaced all points.
    void walkAll(const Points& before, Changes& changes)
    {
        for (const auto& [number, line] : before) {
            for (const Point& point : line)
                changes.push_back({&point, find(m_later[number], number, point.pointNumber)});
        }
        const auto addNew = [&](const Point* point) {
            if (point != nullptr && before.find(point->lineNumber, point->pointNumber) == nullptr)
                changes.push_back({nullptr, point});
        };
        for (const auto& [number, line] : *m_points) {
            const Numbers& later = m_later[number];
            for (const Point& point : line) {
                if (!later.contains(point.pointNumber))
                    addNew(&point);
            }
        }
        for (const auto& [line, numbers] : m_later) {
            for (const auto& [number, point] : numbers)
                addNew(point);
        }
        passAll(before);
    }
    /// The same without telling what has changed.
    void passAll(const Points& before)
    {
        m_points = &before;
        m_later.clear();
    }

private:
    /// By point number; null for a point that was not there.
    using Numbers = std::unordered_map<std::string_view, const Point*>;

    const Point* find(const Numbers& later, std::string_view line, std::string_view number) const
    {
        if (const auto found = later.find(number); found != later.end())
            return found->second;
        return m_points->find(line, number);
    }

    const Points* m_points;
    std::map<std::string_view, Numbers> m_later; ///< over `m_points`
};
