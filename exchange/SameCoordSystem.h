#pragma once

#include <string>
#include <vector>

class IDictionary;

/// Whether two coordinate-parameter dictionaries describe the same coordinate system.
///
/// Numbers may differ by 1e-6; a missing key reads as 0. The direction of the axes counts. A datum
/// shift, plane shift, constant correction or height fit that is switched on with all parameters 0
/// equals one that is off. The kind of the datum shift counts, the other switches only as on or
/// off; the geoid does not count.
[[nodiscard]] bool sameCoordSystem(const IDictionary& first, const IDictionary& second);

/// The keys of the parameters by which they differ; none for the same system. Of a group that only
/// one of them has switched on it is the switch.
[[nodiscard]] std::vector<std::string> differingParameters(const IDictionary& first,
                                                           const IDictionary& second);
