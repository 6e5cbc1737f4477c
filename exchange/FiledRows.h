#pragma once

#include "exchange/ImportSummary.h"

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

// Sentences about the row of a point that is there already: in the file, in the project.

[[nodiscard]] QString repeatedRowText();
[[nodiscard]] QString replacedPointText();

/// Gives the places of a summary the names that their points have got in the project.
/// \param names of the points by the lines of the file, in their order
void namePlaces(ImportSummary& summary,
                const std::vector<std::pair<std::size_t, PointName>>& names);

/// Lists points of the project that others are about to replace, for a source without lines. It
/// also names the first line.
template <class Points>
void tellReplaced(const Points& project, const Points& staged, ImportSummary& summary)
{
    for (const auto& [number, line] : staged) {
        const auto* const own = project.findLine(number);
        for (auto point = line.begin(); own != nullptr && point != line.end(); ++point) {
            if (own->find(point->pointNumber) != nullptr)
                summary.replaced.add(0, replacedPointText, {number, point->pointNumber});
        }
    }
    if (!staged.empty())
        summary.firstLine = staged.begin()->first;
}

/// Follows the points of a file into their container, and notes which of them replace another.
template <class Points>
class FiledRows
{
    using Point = typename Points::Point;
    using Line = typename Points::Line;
    using Findings = ImportSummary::Findings;

public:
    /// \param project the points that the file comes to
    /// \param staged  where its points are filed; empty
    FiledRows(const Points& project, const Points& staged) : m_project(project), m_staged(staged) {}

    /// \param point as it was filed just now
    /// \param row   its line in the file
    void add(const Point& point, std::size_t row)
    {
        if (m_last == nullptr || m_lastNumber != point.lineNumber)
            goToLine(point.lineNumber);
        const bool isRepeated = m_last->staged->size() == m_last->size;
        m_last->size = m_last->staged->size();
        if (isRepeated)
            m_repeated.add(row, repeatedRowText, nameOf(point));
        const bool mayBeListed = m_replaced.count < Findings::kMostPlaces || isRepeated;
        if (mayBeListed && m_last->project != nullptr &&
            m_last->project->find(point.pointNumber) != nullptr)
            noteReplaced(point, row, isRepeated);
    }

    /// Remembers the name of a point whose line has a place in the summary.
    void keepName(const Point& point, std::size_t row) { m_names.emplace_back(row, nameOf(point)); }

    /// To be called when all rows are read, before the project takes the points over.
    void tell(ImportSummary& summary)
    {
        namePlaces(summary, m_names);
        summary.repeated = std::move(m_repeated);
        summary.replaced = std::move(m_replaced);
        if (!m_staged.empty())
            summary.firstLine = m_staged.begin()->first;
    }

private:
    /// A line of the file.
    struct FiledLine
    {
        const Line* staged;
        const Line* project; ///< null when the project does not have the line
        std::size_t size = 0;
    };

    [[nodiscard]] static PointName nameOf(const Point& point)
    {
        return {point.lineNumber, point.pointNumber};
    }

    void goToLine(const std::string& number)
    {
        const Line* const staged = m_staged.findLine(number);
        m_last = &m_lines.try_emplace(staged, FiledLine{staged, m_project.findLine(number)})
                      .first->second;
        m_lastNumber = number;
    }

    /// The last row of a point is the one that counts.
    void noteReplaced(const Point& point, std::size_t row, bool isRepeated)
    {
        const std::string key = point.lineNumber + '\n' + point.pointNumber;
        const auto known = isRepeated ? m_replacedAt.find(key) : m_replacedAt.end();
        if (known != m_replacedAt.end())
            m_replaced.first[known->second].line = row;
        else if (m_replaced.add(row, replacedPointText, nameOf(point)))
            m_replacedAt.emplace(key, m_replaced.first.size() - 1);
    }

    const Points& m_project;
    const Points& m_staged;
    std::unordered_map<const Line*, FiledLine> m_lines;
    FiledLine* m_last = nullptr;
    std::string m_lastNumber;
    std::vector<std::pair<std::size_t, PointName>> m_names;
    Findings m_repeated;
    Findings m_replaced; ///< its count is right as long as all places are kept
    std::unordered_map<std::string, std::size_t> m_replacedAt; ///< the places by point
};
