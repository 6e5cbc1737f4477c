#include "exchange/AngleText.h"

#include "basalt_utilities/FixedDecimals.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

constexpr double kLargestAngle = 1e9; ///< its milliseconds of arc fit into 64 bits
constexpr std::int64_t kSecond = 1000;
constexpr std::int64_t kMinute = 60 * kSecond;
constexpr std::int64_t kDegree = 60 * kMinute;

char* append(char* to, std::string_view text)
{
    return std::copy(text.begin(), text.end(), to);
}

char* appendInteger(char* to, std::int64_t value)
{
    return std::to_chars(to, to + basalt::kFixedSize, value).ptr;
}

/// Cuts the part before `unit` off `text`; false when there is no unit.
bool cutPart(std::string_view& text, std::string_view unit, std::string_view& part)
{
    const std::size_t end = text.find(unit);
    if (end == std::string_view::npos)
        return false;
    part = text.substr(0, end);
    text.remove_prefix(end + unit.size());
    return true;
}

} // namespace

AngleText::AngleText(int degreeFormat, const Language& language) : m_isDecimal(degreeFormat == 0)
{
    const auto unit = [&](const char* text) {
        return language.text("AngleText", text).toStdString();
    };
    m_degrees = unit(QT_TRANSLATE_NOOP("AngleText", "deg"));
    m_minutes = unit(QT_TRANSLATE_NOOP("AngleText", "min"));
    m_seconds = unit(QT_TRANSLATE_NOOP("AngleText", "sec"));
}

char* AngleText::write(char* to, double degrees) const
{
    if (m_isDecimal || !(std::fabs(degrees) < kLargestAngle))
        return basalt::writeFixed(to, degrees, 8);
    // The whole angle is rounded once, so that the seconds never become 60.
    const std::int64_t all = std::llround(degrees * double(kDegree));
    to = append(appendInteger(to, all / kDegree), m_degrees);
    to = append(appendInteger(to, all % kDegree / kMinute), m_minutes);
    to = basalt::writeFixed(to, double(all % kMinute) / double(kSecond), 3);
    return append(to, m_seconds);
}

std::optional<double> AngleText::read(std::string_view text, bool* isWhole) const
{
    if (isWhole != nullptr)
        *isWhole = true;
    const auto number = basalt::wholeDecimal(text);
    if (number)
        return number;
    std::string_view degrees;
    std::string_view minutes;
    if (!cutPart(text, m_degrees, degrees))
        return {};
    text = text.substr(0, text.find(m_degrees));
    if (!cutPart(text, m_minutes, minutes))
        return {};
    text = text.substr(0, text.find(m_minutes));
    const std::string_view seconds = text.substr(0, text.find(m_seconds));
    const auto numberOf = [&](std::string_view part) {
        const auto found = basalt::wholeDecimal(part);
        if (isWhole != nullptr && !found && !part.empty())
            *isWhole = false;
        return found.value_or(0);
    };
    return numberOf(degrees) + numberOf(minutes) / 60 + numberOf(seconds) / 3600;
}
