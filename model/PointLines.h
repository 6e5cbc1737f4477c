#pragma once

#include "model/DesignPoint.h"
#include "model/PointLine.h"
#include "model/PointNames.h"
#include "model/SurveyPoint.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// All points of one kind, line by line. Lines are ordered by the bytes of their numbers ("10"
/// comes before "9"), and no line is empty. Values of points may be changed in place; which points
/// there are is changed by the functions of this class alone.
///
///     for (const auto& [lineNumber, line] : points)
///         for (const Point& point : line)
template <class P>
class PointLines
{
public:
    using Point = P;
    using Line = PointLine<Point>;
    using Map = std::map<std::string, Line, std::less<>>;

    PointLines() = default;
    ~PointLines() = default;
    PointLines(const PointLines& other) : m_lines(other.m_lines) {}
    PointLines(PointLines&& other) noexcept : m_lines(std::move(other.m_lines)) { other.clear(); }
    PointLines& operator=(PointLines other) noexcept
    {
        m_lines.swap(other.m_lines);
        setChanged();
        return *this;
    }

    /// A number that changes whenever points come, go or are replaced, and that no other container
    /// of the process ever has. While it is the same, pointers to points are valid. For one thread.
    [[nodiscard]] std::uint64_t revision() const
    {
        static std::atomic<std::uint64_t> last{0};
        if (m_revision == 0)
            m_revision = ++last;
        return m_revision;
    }

    [[nodiscard]] auto begin() { return m_lines.begin(); }
    [[nodiscard]] auto end() { return m_lines.end(); }
    [[nodiscard]] auto begin() const { return m_lines.begin(); }
    [[nodiscard]] auto end() const { return m_lines.end(); }
    [[nodiscard]] bool empty() const { return m_lines.empty(); }
    [[nodiscard]] std::size_t lineCount() const { return m_lines.size(); }
    [[nodiscard]] std::size_t pointCount() const
    {
        std::size_t count = 0;
        for (const auto& [number, line] : m_lines)
            count += line.size();
        return count;
    }

    /// Null when there is no such line.
    [[nodiscard]] const Line* findLine(std::string_view lineNumber) const
    {
        const auto found = m_lines.find(lineNumber);
        return found == m_lines.end() ? nullptr : &found->second;
    }
    [[nodiscard]] Line* findLine(std::string_view lineNumber)
    {
        const auto found = m_lines.find(lineNumber);
        return found == m_lines.end() ? nullptr : &found->second;
    }

    /// Null when there is no such line or point.
    [[nodiscard]] const Point* find(std::string_view lineNumber, std::string_view pointNumber) const
    {
        const Line* const line = findLine(lineNumber);
        return line == nullptr ? nullptr : line->find(pointNumber);
    }
    [[nodiscard]] Point* find(std::string_view lineNumber, std::string_view pointNumber)
    {
        Line* const line = findLine(lineNumber);
        return line == nullptr ? nullptr : line->find(pointNumber);
    }

    /// Files the point under its line and number, over the one that stands there. An exception (no
    /// memory) leaves all as it was.
    Point& set(Point&& point)
    {
        // The next point is mostly of the same line.
        if (m_last == nullptr || m_last->first != point.lineNumber)
            m_last = &*m_lines.try_emplace(point.lineNumber).first;
        m_revision = 0;
        try {
            return m_last->second.set(std::move(point));
        } catch (...) {
            if (m_last->second.empty())
                eraseLine(point.lineNumber);
            throw;
        }
    }
    Point& set(const Point& point) { return set(Point(point)); }

    /// Removes a point, and its line with the last of them.
    /// \returns false when there was none
    bool erase(std::string_view lineNumber, std::string_view pointNumber)
    {
        Line* const line = findLine(lineNumber);
        if (line == nullptr || !line->erase(pointNumber))
            return false;
        m_revision = 0;
        if (line->empty())
            eraseLine(lineNumber);
        return true;
    }
    bool eraseLine(std::string_view lineNumber)
    {
        const auto found = m_lines.find(lineNumber);
        if (found == m_lines.end())
            return false;
        m_lines.erase(found);
        setChanged();
        return true;
    }

    void clear()
    {
        m_lines.clear();
        setChanged();
    }

    /// Takes over all points of `later`, which then holds the points that stood here in their
    /// place. An exception (no memory) leaves both as they were. \returns how many points were
    /// replaced
    std::size_t takeOver(PointLines& later)
    {
        std::vector<std::pair<Line*, typename Line::Merging>> known; // in the order of `later`
        for (auto& [number, line] : later.m_lines) {
            if (Line* const own = findLine(number); own != nullptr)
                known.emplace_back(own, own->prepareMerge(line));
        }
        std::size_t replaced = 0;
        m_lines.merge(later.m_lines); // takes the new lines and leaves those that are known
        auto next = known.begin();
        for (auto line = later.m_lines.begin(); line != later.m_lines.end(); ++next) {
            replaced += next->second.replaced;
            next->first->merge(line->second, std::move(next->second));
            line = line->second.empty() ? later.m_lines.erase(line) : std::next(line);
        }
        later.setChanged();
        setChanged();
        return replaced;
    }
    /// The same without keeping the points that were replaced.
    std::size_t merge(PointLines&& later)
    {
        const std::size_t replaced = takeOver(later);
        later.clear();
        return replaced;
    }

    /// What `exchange` of some points needs beforehand, since it must not fail.
    struct Exchange
    {
        /// Points of a line that leave.
        struct Leaving
        {
            typename Map::iterator from;
            const std::vector<std::string>* numbers;
            typename Map::iterator to;
            typename Line::Room room;
        };
        /// Points that come to a line.
        struct Coming
        {
            typename Map::iterator from;
            typename Line::Room room; ///< for the whole line
        };

        std::vector<Leaving> leaving;
        std::vector<Coming> coming;
        Map left; ///< a line for each of `leaving`
    };
    [[nodiscard]] Exchange prepareExchange(const PointNames& names, PointLines& other)
    {
        Exchange prepared;
        for (const auto& [number, numbers] : names.lines()) {
            if (const auto line = m_lines.find(number); line != m_lines.end())
                prepared.leaving.push_back({line, &numbers, prepared.left.try_emplace(number).first,
                                            Line::roomFor(numbers.size())});
        }
        for (auto line = other.m_lines.begin(); line != other.m_lines.end(); ++line) {
            if (const Line* const own = findLine(line->first); own != nullptr)
                prepared.coming.push_back({line, Line::roomFor(own->size() + line->second.size())});
        }
        return prepared;
    }
    /// Exchanges the points of these names with those of `other`, which has no points of other
    /// names. Names that nothing has are passed over.
    /// \param prepared  from `prepareExchange(names, other)`, with all three unchanged since
    void exchange(Exchange&& prepared, PointLines& other) noexcept
    {
        for (auto& [from, numbers, to, room] : prepared.leaving) {
            from->second.extract(*numbers, to->second, std::move(room));
            if (from->second.empty())
                m_lines.erase(from);
            if (to->second.empty())
                prepared.left.erase(to);
        }
        for (auto& [from, room] : prepared.coming) {
            if (Line* const own = findLine(from->first); own != nullptr) {
                own->mergeOthers(from->second, std::move(room));
                other.m_lines.erase(from);
            }
        }
        m_lines.merge(other.m_lines);
        other.m_lines.swap(prepared.left);
        other.setChanged();
        setChanged();
    }
    /// Removes the points of these names, and the lines that they were the last points of. An
    /// exception (no memory) leaves all as it was. \returns the points
    PointLines extract(const PointNames& names)
    {
        PointLines extracted;
        exchange(prepareExchange(names, extracted), extracted);
        return extracted;
    }

    [[nodiscard]] PointNames names() const
    {
        PointNames names;
        for (const auto& [number, line] : m_lines) {
            std::vector<std::string>& numbers = names.of(number);
            numbers.reserve(line.size());
            for (const Point& point : line)
                numbers.push_back(point.pointNumber);
        }
        return names;
    }

private:
    void setChanged()
    {
        m_last = nullptr;
        m_revision = 0;
    }

    Map m_lines;
    typename Map::value_type* m_last = nullptr; ///< the line that got the last point
    mutable std::uint64_t m_revision = 0;       ///< 0 after a change, until somebody asks
};

using DesignPoints = PointLines<DesignPoint>;
using SurveyPoints = PointLines<SurveyPoint>;
