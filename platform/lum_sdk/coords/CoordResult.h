#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

class QString;

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
    NoAzimuth,
    NoGeoidFile,
    GeoidFile,
    Refused,
    TrueScaleLatitude,
};

/// A result code with the detail its message names: a key, a value, a file.
struct CoordFault
{
    CoordResult code = CoordResult::Success;
    std::string detail;

    explicit operator bool() const { return code != CoordResult::Success; }
};

/// What a sentence calls a parameter, UTF-8: its key on the command line, its caption in a window.
using ParameterName = std::function<std::string(std::string_view key)>;

/// A sentence with each "{key}" replaced by the name of that parameter, or by the key when there is
/// no `nameOf`, and with "%1" replaced by `detail`.
[[nodiscard]] std::string withParameterNames(const QString& sentence, const std::string& detail,
                                             const ParameterName& nameOf);

/// The fault as a sentence in the user's language, UTF-8; empty for success.
[[nodiscard]] std::string describe(const CoordFault& fault, const ParameterName& nameOf = {});

} // namespace lum
