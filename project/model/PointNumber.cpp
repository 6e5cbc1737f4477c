#include "project/model/PointNumber.h"

namespace {

constexpr std::size_t kCheckPointSize = 9;

/// Where the character number `count` of a UTF-8 text begins; npos when the text is shorter.
std::size_t offsetOf(std::string_view text, std::size_t count)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isStart = (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U;
        if (isStart && count-- == 0)
            return i;
    }
    return count == 0 ? text.size() : std::string_view::npos;
}

} // namespace

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

void SurveyPointFiler::file(SurveyPoint&& point)
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
        } while (m_points.find(point.lineNumber, point.pointNumber) != nullptr);
    }
    m_points.set(std::move(point));
}
