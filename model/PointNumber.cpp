#include "model/PointNumber.h"

#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kCheckPointSize = 9;

/// The bytes of the first `count` characters of a UTF-8 text; npos when it has fewer.
std::size_t offsetOf(std::string_view text, std::size_t count)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isStart = (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U;
        if (isStart && count-- == 0)
            return i;
    }
    return count == 0 ? text.size() : std::string_view::npos;
}

/// A check point's number without its counter, and the counter.
std::pair<std::string_view, int> counted(const SurveyPoint& point)
{
    const std::string_view number = point.pointNumber;
    const std::size_t mark = number.rfind('_');
    if (mark == std::string_view::npos)
        return {number, 0};
    return {number.substr(0, mark), basalt::parseInteger(number.substr(mark + 1))};
}

template <class Point>
std::vector<const Point*> inOrder(const PointLine<Point>& line)
{
    std::vector<const Point*> points;
    points.reserve(line.size());
    for (const Point& point : line)
        points.push_back(&point);
    return points;
}

} // namespace

std::vector<const SurveyPoint*> writtenOrder(const PointLine<SurveyPoint>& line)
{
    std::vector<const SurveyPoint*> points = inOrder(line);
    for (auto first = points.begin(); first != points.end();) {
        if (!isCheckPoint((*first)->pointNumber)) {
            ++first;
            continue;
        }
        const std::string_view number = writtenPointNumber((*first)->pointNumber);
        const auto last = std::find_if(first, points.end(), [&](const SurveyPoint* point) {
            return writtenPointNumber(point->pointNumber) != number;
        });
        std::stable_sort(first, last, [](const SurveyPoint* a, const SurveyPoint* b) {
            return counted(*a) < counted(*b);
        });
        first = last;
    }
    return points;
}

std::vector<const DesignPoint*> writtenOrder(const PointLine<DesignPoint>& line)
{
    return inOrder(line);
}

std::string_view writtenPointNumber(std::string_view pointNumber)
{
    return isCheckPoint(pointNumber) ? pointNumber.substr(0, offsetOf(pointNumber, kCheckPointSize))
                                     : pointNumber;
}

bool isCheckPoint(std::string_view pointNumber)
{
    return pointNumber.substr(0, 1) == "C" &&
           offsetOf(pointNumber, kCheckPointSize) != std::string_view::npos;
}

SurveyPoint& SurveyPointFiler::file(SurveyPoint&& point)
{
    const bool isCheck = isCheckPoint(point.pointNumber);
    if (point.lineNumber.empty() && isCheck) {
        const std::string_view number = point.pointNumber;
        const std::size_t start = offsetOf(number, 1);
        point.lineNumber = number.substr(start, offsetOf(number, 5) - start);
    }
    if (point.lineNumber.empty())
        point.lineNumber = kEmptyLine;
    if (isCheck) {
        const std::string base = point.pointNumber + '_';
        int& counter = m_counters[point.lineNumber + ',' + base];
        do {
            point.pointNumber = base + std::to_string(counter++);
        } while (isTaken(point));
    }
    return m_points.set(std::move(point));
}

bool SurveyPointFiler::isTaken(const SurveyPoint& point) const
{
    return m_points.find(point.lineNumber, point.pointNumber) != nullptr ||
           (m_standing != nullptr &&
            m_standing->find(point.lineNumber, point.pointNumber) != nullptr);
}
