#pragma once

#include "lum_sdk/coords/DatumShift.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lum {

/// A datum shift of the EPSG register that needs no grid.
struct EpsgDatumShift
{
    DatumShift shift; ///< from WGS 84
    std::string name; ///< "Beijing 1954 to WGS 84 (1)", which is the opposite direction
    std::string area; ///< where it is meant for, in words
    std::optional<double> accuracyM;
    double coverage = 0; ///< the part of the system's area that it covers, by their bounds: 0 to 1
};

/// The datum shifts between WGS 84 and the datum of a system.
struct EpsgDatumShifts
{
    bool isNeeded = false; ///< false for a system on WGS 84 itself, and for an unknown one

    /// Largest coverage first, compared in tenths; of equal coverage the most accurate first.
    std::vector<EpsgDatumShift> known;

    /// The first one when it covers most of the system's area, otherwise null.
    [[nodiscard]] const EpsgDatumShift* best() const;
};

/// What PROJ's register knows, without deprecated and superseded shifts, for the projected system
/// of this code; nothing for an unknown code. Takes up to some 40 ms.
[[nodiscard]] EpsgDatumShifts epsgDatumShifts(std::string_view code);

/// Name, accuracy and shortened area, in the user's language, UTF-8: "Beijing 1954 to
/// WGS 84 (1), 1 m, China - Ordos basin".
[[nodiscard]] std::string describe(const EpsgDatumShift& shift);

} // namespace lum
