#include "quality/problems/GroupShift.h"

#include "basalt_utilities/Numbers.h"
#include "model/RowNumbers.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace {

constexpr char kSeparator = '\x1f'; // in no name

std::vector<std::string_view> split(std::string_view text)
{
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(kSeparator); end != std::string_view::npos;
         end = text.find(kSeparator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

} // namespace

double GroupShift::planeM() const
{
    return std::hypot(eastM, northM);
}

double GroupShift::directionDeg() const
{
    const double degrees = std::atan2(eastM, northM) * 180 / std::numbers::pi;
    return degrees < 0 ? degrees + 360 : degrees;
}

bool GroupShift::contains(std::int64_t ofDay, std::string_view ofBase,
                          std::string_view ofRover) const
{
    const bool isOfDay = day <= ofDay && ofDay <= lastDay;
    if (cause == Cause::Survey)
        return isOfDay || day == statistics::KeyValue::kNoNumber;
    return isOfDay && (cause == Cause::Pole || base == ofBase) &&
           (cause == Cause::Base || rover == ofRover);
}

std::string GroupShift::toText() const
{
    constexpr int kDecimals = 3;
    std::string text;
    for (const std::int64_t number : {std::int64_t(cause), std::int64_t(evidence), day, lastDay,
                                      std::int64_t(results), std::int64_t(shared)})
        text += std::to_string(number) + kSeparator;
    for (const double length : {eastM, northM, heightM, planeKnownM, heightKnownM})
        text += basalt::formatFixed(length, kDecimals) + kSeparator;
    return text + base + kSeparator + rover;
}

GroupShift GroupShift::fromText(std::string_view text)
{
    constexpr std::size_t kParts = 13;
    const std::vector<std::string_view> parts = split(text);
    GroupShift shift;
    if (parts.size() != kParts)
        return shift;
    shift.cause = static_cast<Cause>(readInteger64(parts[0]));
    shift.evidence = static_cast<Evidence>(readInteger64(parts[1]));
    shift.day = readInteger64(parts[2]);
    shift.lastDay = readInteger64(parts[3]);
    shift.results = static_cast<std::size_t>(readInteger64(parts[4]));
    shift.shared = static_cast<std::size_t>(readInteger64(parts[5]));
    std::size_t part = 6;
    for (double GroupShift::*length :
         {&GroupShift::eastM, &GroupShift::northM, &GroupShift::heightM, &GroupShift::planeKnownM,
          &GroupShift::heightKnownM})
        shift.*length = basalt::parseNumber(parts[part++]);
    shift.base = parts[part++];
    shift.rover = parts[part];
    return shift;
}
