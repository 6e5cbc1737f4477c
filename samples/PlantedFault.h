#pragma once

#include <string>

namespace demo {

/// A line of "faults.csv": something that a check of the survey has to find, or that must not
/// disturb it.
struct PlantedFault
{
    std::string kind;
    std::string line;
    std::string point; ///< as files carry it
    std::string what;  ///< a few words with the value
};

inline constexpr const char* kMissing = "missing";
inline constexpr const char* kSkid = "skid";

} // namespace demo
