#pragma once

#include "lum_sdk/coords/CoordResult.h"

#include <string>

class IDictionary;

namespace lum {

/// What keeps a parameter dictionary from describing a coordinate system.
struct CoordParameterFault
{
    std::string key;     ///< the parameter at fault
    std::string message; ///< a sentence in the user's language, UTF-8; empty when all is well

    explicit operator bool() const { return !message.empty(); }
};

/// Checks that every number is one from its first to its last character, then sets up the whole
/// system as the coordinate service would, geoid file included. Returns the first fault.
/// \param nameOf what the message calls the parameters; their keys without it
[[nodiscard]] CoordParameterFault checkCoordParameters(const IDictionary& parameters,
                                                       const ParameterName& nameOf = {});

} // namespace lum
