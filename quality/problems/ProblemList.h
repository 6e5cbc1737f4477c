#pragma once

#include "model/PointLines.h"
#include "quality/problems/Problem.h"

#include <algorithm>
#include <vector>

/// Problems with their texts: it stays readable when the points change or go.
class ProblemList
{
public:
    ProblemList() = default;
    ProblemList(ProblemList&& other) noexcept { swap(other); }
    ProblemList& operator=(ProblemList other) noexcept
    {
        swap(other);
        return *this;
    }
    ProblemList(const ProblemList&) = delete;
    ~ProblemList() = default;
    void swap(ProblemList& other) noexcept;

    // Adding. The answer is valid until the next problem is added; value, limit and what else the
    // kind has are for the finder to set.

    /// A problem of a result, with its names, rover, surveyor and time.
    Problem& add(const ProblemKind& kind, const SurveyPoint& point);
    Problem& add(const ProblemKind& kind, const DesignPoint& point);
    /// A problem of a line or a group of results.
    Problem& add(const ProblemKind& kind, std::string_view line = {});
    /// A problem of a point that speaks of another point, too.
    template <class Point, class Other>
    Problem& add(const ProblemKind& kind, const Point& point, const Other& other)
    {
        Problem& problem = add(kind, point);
        problem.otherLine = keepOnce(other.lineNumber);
        problem.otherPoint = keep(other.pointNumber);
        return problem;
    }
    /// A text for a problem of this list: of its own, or one that comes again and again.
    [[nodiscard]] StoredText keep(std::string_view text) { return m_texts.add(text); }
    [[nodiscard]] StoredText keepOnce(std::string_view text) { return m_texts.intern(text); }

    void reserve(std::size_t problems) { m_problems.reserve(problems); }
    /// Puts the problems of another list behind those of this one.
    void append(ProblemList&& other);
    template <class Judge>
    void removeIf(Judge judge)
    {
        std::erase_if(m_problems, judge);
    }

    [[nodiscard]] std::size_t size() const { return m_problems.size(); }
    [[nodiscard]] bool empty() const { return m_problems.empty(); }
    [[nodiscard]] const Problem& operator[](std::size_t place) const { return m_problems[place]; }
    [[nodiscard]] Problem& operator[](std::size_t place) { return m_problems[place]; }
    [[nodiscard]] auto begin() const { return m_problems.begin(); }
    [[nodiscard]] auto end() const { return m_problems.end(); }
    [[nodiscard]] auto begin() { return m_problems.begin(); }
    [[nodiscard]] auto end() { return m_problems.end(); }

    /// About how much memory it takes.
    [[nodiscard]] std::size_t bytes() const
    {
        return m_problems.capacity() * sizeof(Problem) + m_texts.bytes();
    }

    /// What the problems were found in, see `PointLines::revision`; 0 for a list made by hand.
    std::uint64_t designRevision = 0;
    std::uint64_t surveyRevision = 0;

private:
    /// A text that is mostly the last one again.
    [[nodiscard]] StoredText again(StoredText& last, std::string_view text)
    {
        return last == text ? last : last = m_texts.intern(text);
    }

    std::vector<Problem> m_problems;
    TextStore m_texts;
    StoredText m_lastLine;
    StoredText m_lastRover;
    StoredText m_lastSurveyor;
};
