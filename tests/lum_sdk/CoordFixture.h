#pragma once

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/coords/CoordWjl.h"

#include <initializer_list>
#include <string>
#include <utility>

/// A coordinate-parameter dictionary from pairs.
inline basalt::Dictionary dictionaryOf(std::initializer_list<std::pair<const char*, double>> values)
{
    basalt::Dictionary dictionary;
    for (const auto& [key, value] : values)
        dic_set_value(dictionary, key, value);
    return dictionary;
}

/// Degrees, minutes and seconds; the sign of the degrees holds for all.
constexpr double dms(double degrees, double minutes = 0, double seconds = 0)
{
    const double rest = minutes / 60 + seconds / 3600;
    return degrees < 0 ? degrees - rest : degrees + rest;
}

/// The service on one dictionary, as a project has it, in decimal degrees.
class CoordService
{
public:
    explicit CoordService(const IDictionary& parameters)
    {
        initCode = service.initialise(parameters, parameters);
    }

    CoordTriple toGrid(double latitude, double longitude, double height = 0)
    {
        return run(CoordKind::Geodetic, CoordKind::Plane, {latitude, longitude, height});
    }

    CoordTriple toGeodetic(const CoordTriple& grid)
    {
        return run(CoordKind::PlaneInput, CoordKind::Geodetic, grid);
    }

    CoordTriple run(CoordKind from, CoordKind to, const CoordTriple& in, int format = 4)
    {
        CoordTriple out;
        code = service.transform(2, static_cast<int>(from), static_cast<int>(to), format, in.first,
                                 in.second, in.third, &out.first, &out.second, &out.third);
        return out;
    }

    std::string message() const { return service.message(code); }

    CoordWjl service;
    std::int32_t initCode = 0;
    std::int32_t code = 0; ///< of the last call
};
