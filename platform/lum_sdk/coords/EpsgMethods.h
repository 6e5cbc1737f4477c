#pragma once

#include <string_view>

namespace lum {

/// A map projection method of the EPSG register that the coordinate service computes.
struct EpsgMethod
{
    int code;
    const char* name;
    int projectType; ///< "project_type"
};

/// Null for a method that the service does not compute.
[[nodiscard]] const EpsgMethod* findEpsgMethod(int code);
[[nodiscard]] const EpsgMethod* findEpsgMethod(std::string_view name);

// Codes of methods whose parameters are read in a way of their own.
namespace epsg_method {
inline constexpr int kWebMercator = 1024;
inline constexpr int kKrovakNorth = 1041;
inline constexpr int kKrovak = 9819;
inline constexpr int kHotineB = 9815;
inline constexpr int kPolarB = 9829;
} // namespace epsg_method

} // namespace lum
