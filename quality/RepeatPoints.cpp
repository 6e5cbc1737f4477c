#include "quality/RepeatPoints.h"

#include "model/PointNumber.h"

#include <string_view>
#include <unordered_map>

namespace {

constexpr char kRepeatMark = 'C';

/// Gathers the rows' points. The texts that it keeps belong to the results.
class Finder
{
public:
    void add(const SurveyPoints::Line& line, const SurveyPoint& repeat)
    {
        // The mark and eight characters; a shorter number is whole.
        const std::string_view base = writtenPointNumber(repeat.pointNumber).substr(1);
        const SurveyPoint* const first = base.empty() ? nullptr : line.find(base);
        if (first != nullptr && m_shown.try_emplace(first->pointNumber, Shown{first}).second)
            m_numbers.push_back(first->pointNumber);
        m_shown[repeat.pointNumber] = {&repeat, first};
        m_numbers.push_back(repeat.pointNumber);
        ++m_found.repeats;
        m_found.alone += first == nullptr ? 1U : 0U;
    }

    RepeatPoints take()
    {
        m_found.rows.reserve(m_numbers.size());
        for (const std::string_view number : m_numbers)
            m_found.rows.push_back(rowOf(m_shown.at(number)));
        return std::move(m_found);
    }

private:
    struct Shown
    {
        const SurveyPoint* point = nullptr;
        const SurveyPoint* first = nullptr; ///< what it repeats, or null
    };

    static RepeatRow rowOf(const Shown& shown)
    {
        const SurveyPoint& point = *shown.point;
        RepeatRow row{point.pointNumber, point.lineNumber, point.pointMark != 0,
                      point.north,       point.east,       point.elevation};
        if (shown.first != nullptr)
            row.difference = {point.north - shown.first->north, point.east - shown.first->east,
                              point.elevation - shown.first->elevation};
        return row;
    }

    std::unordered_map<std::string_view, Shown> m_shown; ///< by number
    std::vector<std::string_view> m_numbers;             ///< of the rows, in order
    RepeatPoints m_found;
};

} // namespace

RepeatPoints findRepeatPoints(const SurveyPoints& points)
{
    Finder finder;
    for (const auto& [number, line] : points) {
        for (const SurveyPoint& point : line) {
            if (!point.pointNumber.empty() && point.pointNumber.front() == kRepeatMark)
                finder.add(line, point);
        }
    }
    return finder.take();
}
