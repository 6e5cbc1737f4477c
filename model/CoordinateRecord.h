#pragma once

#include "basalt_utilities/Dictionary.h"

/// The row of the table CoordinateSystemItem: the parameters of the project's coordinate system.
namespace CoordinateRecord {

inline constexpr const char* kTable = "CoordinateSystemItem";

/// The keys of the parameters, comma-separated; they are also the columns, in this order.
inline constexpr const char* kKeys =
    "ellipsoid_name,ellipsoid_a,ellipsoid_f,project_type,axis_direction,org_lon,org_lat,"
    "false_east,false_north,factor,project_height,cutting_radius,parallel_1_lat,parallel_2_lat,"
    "p_r,lon1,lon2,lat1,lat2,_7type,_7dx,_7dy,_7dz,_7rx,_7ry,_7rz,_7ppm,geoid_type,geoid_valid,"
    "geoid_name,geoid_file,geoid_distance,geoid_ellipsoid,geoid_custom_file,_4valid,_4dx,_4dy,"
    "_4r,_4s,_4x0,_4y0,correct_valid,correct_dx,correct_dy,correct_dh,fit_valid,fit_a0,fit_a1,"
    "fit_a2,fit_a3,fit_a4,fit_a5,fit_x0,fit_y0,ver_valid,ver_mode,ver_x_slope,ver_y_slope,ver_h,"
    "ver_x0,ver_y0";

/// The name of the coordinate system, such as "EPSG:32650"; the last column.
inline constexpr const char* kId = "coord_param_id";
inline constexpr const char* kUndefinedId = "Undefined";

/// Metres per unit of a system that is not in metres (lum_sdk/coords/LengthUnit.h). Only the
/// databases of such systems have the column.
inline constexpr const char* kUnit = "unit_m";

/// Copies a coordinate system, with its name and unit, into a dictionary that may have another one.
inline void copy(const IDictionary& from, IDictionary& to)
{
    if (!from.contains(kUnit))
        to.remove(kUnit);
    for (const char* keys : {kKeys, kId, kUnit})
        dictionary_copy(from, to, keys);
}

} // namespace CoordinateRecord
