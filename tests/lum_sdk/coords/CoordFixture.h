#pragma once

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/coords/CoordWjl.h"

#include <gtest/gtest.h>

#include <string>

/// A dictionary from a key list, with the entries of a second one over it.
inline basalt::Dictionary dictionaryOf(std::string_view list, std::string_view changes = {})
{
    basalt::Dictionary dictionary;
    csa_to_dictionary(dictionary, list);
    csa_to_dictionary(dictionary, changes);
    return dictionary;
}

/// A transverse Mercator system about 117 degrees east, with some values changed.
inline basalt::Dictionary gaussKruger(std::string_view changes = {})
{
    return dictionaryOf("ellipsoid_a=6378137,ellipsoid_f=298.257222101,project_type=1,org_lon=117,"
                        "factor=1,false_east=500000",
                        changes);
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

inline void expectNear(const CoordTriple& actual, const CoordTriple& expected, double tolerance)
{
    EXPECT_NEAR(actual.first, expected.first, tolerance);
    EXPECT_NEAR(actual.second, expected.second, tolerance);
    EXPECT_NEAR(actual.third, expected.third, tolerance);
}
