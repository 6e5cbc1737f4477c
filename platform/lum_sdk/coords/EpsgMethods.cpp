#include "lum_sdk/coords/EpsgMethods.h"

#include <algorithm>
#include <array>

namespace lum {

namespace {

constexpr std::array kMethods{
    EpsgMethod{9807, "Transverse Mercator", 1},
    EpsgMethod{9808, "Transverse Mercator (South Orientated)", 1},
    EpsgMethod{1111, "Transverse Mercator 3D", 1},
    EpsgMethod{9801, "Lambert Conic Conformal (1SP)", 3},
    EpsgMethod{9802, "Lambert Conic Conformal (2SP)", 3},
    EpsgMethod{1051, "Lambert Conic Conformal (2SP Michigan)", 3},
    EpsgMethod{9826, "Lambert Conic Conformal (West Orientated)", 3},
    EpsgMethod{9804, "Mercator (variant A)", 4},
    EpsgMethod{9805, "Mercator (variant B)", 4},
    EpsgMethod{epsg_method::kWebMercator, "Popular Visualisation Pseudo Mercator", 4},
    EpsgMethod{epsg_method::kHotineB, "Hotine Oblique Mercator (variant B)", 5},
    EpsgMethod{9809, "Oblique Stereographic", 6},
    EpsgMethod{9810, "Polar Stereographic (variant A)", 7},
    EpsgMethod{epsg_method::kPolarB, "Polar Stereographic (variant B)", 7},
    EpsgMethod{9822, "Albers Equal Area", 8},
    EpsgMethod{9806, "Cassini-Soldner", 9},
    EpsgMethod{9818, "American Polyconic", 10},
    EpsgMethod{epsg_method::kKrovakNorth, "Krovak (North Orientated)", 11},
    EpsgMethod{epsg_method::kKrovak, "Krovak", 11},
    EpsgMethod{9812, "Hotine Oblique Mercator (variant A)", 13},
    EpsgMethod{9820, "Lambert Azimuthal Equal Area", 14},
    EpsgMethod{1027, "Lambert Azimuthal Equal Area (Spherical)", 14},
    EpsgMethod{1052, "Colombia Urban", 15},
};

template <class Test>
const EpsgMethod* find(Test test)
{
    const auto* const found = std::find_if(kMethods.begin(), kMethods.end(), test);
    return found == kMethods.end() ? nullptr : found;
}

} // namespace

const EpsgMethod* findEpsgMethod(int code)
{
    return find([code](const EpsgMethod& method) { return method.code == code; });
}

const EpsgMethod* findEpsgMethod(std::string_view name)
{
    return find([name](const EpsgMethod& method) { return method.name == name; });
}

} // namespace lum
