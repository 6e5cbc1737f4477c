#pragma once

#include <cstdint>
#include <string>

namespace lum {

/// Result codes of the coordinate service: for a call that is not possible (from 1), for a point
/// that cannot be transformed (from 11), and for a parameter dictionary that describes no
/// coordinate system (from 101).
enum class CoordResult : std::int32_t
{
    Success = 0,
    NotInitialised = 1,
    UnknownDirection,
    UnknownInputKind,
    UnknownOutputKind,
    UnknownAngleFormat,

    NotACoordinate = 11,
    OutsideProjection,
    OutsideGeoid,

    NotANumber = 101,
    EllipsoidAxis,
    EllipsoidFlattening,
    KrovakEllipsoid,
    ProjectHeight,
    NoProjection,
    UnknownProjection,
    OriginLatitude,
    OriginLongitude,
    Parallels,
    Azimuth,
    Factor,
    CuttingRadius,
    UnknownDatumShift,
    DatumShiftPivot,
    PlaneScale,
    Axes,
    NoGeoidFile,
    GeoidFile,
    Refused,
};

/// A result code with the detail its message names: a key, a value, a file.
struct CoordFault
{
    CoordResult code = CoordResult::Success;
    std::string detail;

    explicit operator bool() const { return code != CoordResult::Success; }
};

/// The fault as a sentence in the user's language, UTF-8; empty for success.
[[nodiscard]] std::string describe(const CoordFault& fault);

} // namespace lum
