#pragma once

#include "lum_sdk/coords/CoordResult.h"

#include <array>

class IDictionary;

namespace lum {

struct ProjectionText;

/// A position on the project grid, in the unit of the system; the height is metres.
struct GridPosition
{
    double north = 0;
    double east = 0;
    double height = 0;
};

/// The steps after the map projection: factor, direction of the axes and false origin; the
/// four-parameter plane shift; the constant correction; and for the height a polynomial, an
/// inclined plane and a constant.
///
/// Plane shift: P' = P0 + T + s R (P - P0) with P0 (_4x0, _4y0), T (_4dx, _4dy), s "_4s" (0 counts
/// as 1), and R turning azimuths clockwise by "_4r" degrees. In all keys x is north and y is east.
/// Height: h' = h + a0 + a1 dx + a2 dy + a3 dx² + a4 dy² + a5 dx dy from (fit_x0, fit_y0), then
/// + ver_h + slopes in millimetres a kilometre (ver_x_slope, ver_y_slope) from (ver_x0, ver_y0),
/// then + correct_dh, all at the final position on the plane.
class CoordCorrections
{
public:
    CoordCorrections() = default;
    CoordCorrections(const IDictionary& parameters, const ProjectionText& projection,
                     CoordFault& fault);

    /// \param position  as projected, before factor, axes and false origin
    [[nodiscard]] GridPosition apply(const GridPosition& position) const
    {
        const double north = m_north + m_nn * position.north + m_ne * position.east;
        const double east = m_east + m_en * position.north + m_ee * position.east;
        const double correction = m_isHeightFitted ? heightCorrection(north, east) : m_height;
        return {north, east, position.height + correction};
    }
    [[nodiscard]] GridPosition undo(const GridPosition& position) const;

private:
    void addPlaneShift(const IDictionary& parameters, CoordFault& fault);
    [[nodiscard]] double heightCorrection(double north, double east) const;

    // north' = m_north + m_nn north + m_ne east, east' = m_east + m_en north + m_ee east
    double m_north = 0;
    double m_east = 0;
    double m_nn = 1;
    double m_ne = 0;
    double m_en = 0;
    double m_ee = 1;

    bool m_isHeightFitted = false;
    std::array<double, 6> m_fit{};
    double m_fitNorth = 0;
    double m_fitEast = 0;
    double m_slopeNorth = 0; ///< metres a metre
    double m_slopeEast = 0;
    double m_slopeOriginNorth = 0;
    double m_slopeOriginEast = 0;
    double m_height = 0;
};

} // namespace lum
