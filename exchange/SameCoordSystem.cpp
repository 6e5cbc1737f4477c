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

bool differInNumber(const IDictionary& first, const IDictionary& second, Keys keys)
{
    for (const char* key : keys) {
        // A number that is NaN differs from all.
        if (!(std::abs(first.number(key) - second.number(key)) <= kTolerance))
            return true;
    }
    return false;
}

bool hasEffect(const IDictionary& parameters, Keys keys)
{
    double sum = 0;
    for (const char* key : keys)
        sum += std::abs(parameters.number(key));
    return !(sum <= kTolerance);
}

/// Compares a group of parameters that `flag` switches on.
bool differInGroup(const IDictionary& first, const IDictionary& second, const char* flag, Keys keys)
{
    const bool isFirstOn = first.integer(flag) != 0;
    const bool isSecondOn = second.integer(flag) != 0;
    if (isFirstOn && isSecondOn)
        return differInNumber(first, second, keys);
    if (isFirstOn)
        return hasEffect(first, keys);
    return isSecondOn && hasEffect(second, keys);
}

bool differInDatumShift(const IDictionary& first, const IDictionary& second)
{
    const int kind = first.integer("_7type");
    const int otherKind = second.integer("_7type");
    return (kind != 0 && otherKind != 0 && kind != otherKind) ||
           differInGroup(first, second, "_7type", kDatumShiftKeys);
}

/// An axis to the south or west changes the sign of every coordinate; it has no number.
bool differInAxes(const IDictionary& first, const IDictionary& second)
{
    const auto axes = lum::planeAxes(first);
    const auto other = lum::planeAxes(second);
    return axes.isSouth != other.isSouth || axes.isWest != other.isWest;
}

} // namespace

bool sameCoordSystem(const IDictionary& first, const IDictionary& second)
{
    return !differInNumber(first, second, kProjectionKeys) &&
           first.integer("project_type") == second.integer("project_type") &&
           !differInAxes(first, second) && !differInDatumShift(first, second) &&
           !differInGroup(first, second, "_4valid", kPlaneShiftKeys) &&
           !differInGroup(first, second, "correct_valid", kConstantKeys) &&
           !differInGroup(first, second, "fit_valid", kHeightFitKeys);
}
