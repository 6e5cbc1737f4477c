#include "exchange/SameCoordSystem.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/coords/CoordProjections.h"

#include <array>
#include <cmath>
#include <span>

namespace {

constexpr double kTolerance = 1e-6;

constexpr std::array kProjectionKeys = {
    "project_height", "ellipsoid_a",    "ellipsoid_f",    "org_lon",
    "org_lat",        "false_north",    "false_east",     "factor",
    "cutting_radius", "parallel_1_lat", "parallel_2_lat", "p_r",
    "lon1",           "lon2",           "lat1",           "lat2",
};
constexpr std::array kDatumShiftKeys = {
    "_7dx", "_7dy", "_7dz", "_7rx", "_7ry", "_7rz", "_7ppm",
};
constexpr std::array kPlaneShiftKeys = {"_4dx", "_4dy", "_4r", "_4s"};
constexpr std::array kConstantKeys = {"correct_dx", "correct_dy", "correct_dh"};
constexpr std::array kHeightFitKeys = {
    "fit_a0", "fit_a1", "fit_a2", "fit_a3", "fit_a4", "fit_a5", "fit_x0", "fit_y0",
};

using Keys = std::span<const char* const>;

bool isSameNumber(const IDictionary& first, const IDictionary& second, const char* key)
{
    // A number that is NaN differs from all.
    return std::abs(first.number(key) - second.number(key)) <= kTolerance;
}

bool hasEffect(const IDictionary& parameters, Keys keys)
{
    double sum = 0;
    for (const char* key : keys)
        sum += std::abs(parameters.number(key));
    return !(sum <= kTolerance);
}

/// Collects the keys of what differs between two systems.
class Comparison
{
public:
    Comparison(const IDictionary& first, const IDictionary& second)
        : m_first(first), m_second(second)
    {
    }

    void numbers(Keys keys)
    {
        for (const char* key : keys)
            note(key, !isSameNumber(m_first, m_second, key));
    }

    /// A group of parameters that `flag` switches on.
    void group(const char* flag, Keys keys)
    {
        const bool isFirstOn = m_first.integer(flag) != 0;
        const bool isSecondOn = m_second.integer(flag) != 0;
        if (isFirstOn && isSecondOn)
            numbers(keys);
        else if (isFirstOn || isSecondOn)
            note(flag, hasEffect(isFirstOn ? m_first : m_second, keys));
    }

    void datumShift()
    {
        const int kind = m_first.integer("_7type");
        const int otherKind = m_second.integer("_7type");
        note("_7type", kind != 0 && otherKind != 0 && kind != otherKind);
        group("_7type", kDatumShiftKeys);
    }

    void note(const char* key, bool isDifferent)
    {
        if (isDifferent)
            m_keys.emplace_back(key);
    }

    [[nodiscard]] std::vector<std::string> keys() && { return std::move(m_keys); }

private:
    const IDictionary& m_first;
    const IDictionary& m_second;
    std::vector<std::string> m_keys;
};

/// An axis to the south or west changes the sign of every coordinate; it has no number.
bool differInAxes(const IDictionary& first, const IDictionary& second)
{
    const auto axes = lum::planeAxes(first);
    const auto other = lum::planeAxes(second);
    return axes.isSouth != other.isSouth || axes.isWest != other.isWest;
}

} // namespace

std::vector<std::string> differingParameters(const IDictionary& first, const IDictionary& second)
{
    Comparison comparison(first, second);
    comparison.note("project_type",
                    first.integer("project_type") != second.integer("project_type"));
    comparison.note(lum::kAxesKey, differInAxes(first, second));
    comparison.numbers(kProjectionKeys);
    comparison.datumShift();
    comparison.group("_4valid", kPlaneShiftKeys);
    comparison.group("correct_valid", kConstantKeys);
    comparison.group("fit_valid", kHeightFitKeys);
    return std::move(comparison).keys();
}

bool sameCoordSystem(const IDictionary& first, const IDictionary& second)
{
    return differingParameters(first, second).empty();
}
