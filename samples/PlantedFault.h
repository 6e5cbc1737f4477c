#pragma once

#include <string>

namespace demo {

/// A line of "faults.csv": a point that a check of the survey has to find, or that looks unusual
/// and must not be found; or a day.
struct PlantedFault
{
    std::string kind;
    std::string line;  ///< empty for all results of a day
    std::string point; ///< its number as it is written in files; empty for a line
    std::string what;  ///< a few words with the wrong value
};

inline constexpr const char* kMissing = "missing";
inline constexpr const char* kSkid = "skid";

} // namespace demo
