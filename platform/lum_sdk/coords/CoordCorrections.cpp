#include "lum_sdk/coords/CoordCorrections.h"

#include "basalt_utilities/IDictionary.h"
#include "lum_sdk/coords/CoordProjections.h"

#include <cmath>
#include <numbers>

namespace lum {

namespace {

double finite(const IDictionary& parameters, const char* key, CoordFault& fault)
{
    const double value = parameters.number(key);
    if (!std::isfinite(value) && !fault)
        fault = {CoordResult::NotANumber, key};
    return value;
}

} // namespace

CoordCorrections::CoordCorrections(const IDictionary& parameters, const ProjectionText& projection,
                                   CoordFault& fault)
    : m_north(projection.falseNorth), m_east(projection.falseEast),
      m_nn(projection.axes.northSign() * projection.factor),
      m_ee(projection.axes.eastSign() * projection.factor)
{
    const auto read = [&](const char* key) { return finite(parameters, key, fault); };
    if (parameters.integer("_4valid") != 0)
        addPlaneShift(parameters, fault);
    if (parameters.integer("correct_valid") != 0) {
        m_north += read("correct_dx");
        m_east += read("correct_dy");
        m_height += read("correct_dh");
    }
    if (parameters.integer("fit_valid") != 0) {
        m_isHeightFitted = true;
        m_fit = {read("fit_a0"), read("fit_a1"), read("fit_a2"),
                 read("fit_a3"), read("fit_a4"), read("fit_a5")};
        m_fitNorth = read("fit_x0");
        m_fitEast = read("fit_y0");
    }
    if (parameters.integer("ver_valid") != 0) {
        m_isHeightFitted = true;
        m_height += read("ver_h");
        m_slopeNorth = read("ver_x_slope") * 1e-6;
        m_slopeEast = read("ver_y_slope") * 1e-6;
        m_slopeOriginNorth = read("ver_x0");
        m_slopeOriginEast = read("ver_y0");
    }
}

void CoordCorrections::addPlaneShift(const IDictionary& parameters, CoordFault& fault)
{
    const auto read = [&](const char* key) { return finite(parameters, key, fault); };
    const double angle = read("_4r") * std::numbers::pi / 180;
    double scale = read("_4s");
    if (scale < 0 && !fault)
        fault = {CoordResult::PlaneScale, {}};
    if (scale == 0)
        scale = 1;
    const double cosine = scale * std::cos(angle);
    const double sine = scale * std::sin(angle);
    const double originNorth = read("_4x0");
    const double originEast = read("_4y0");
    const double north = m_north - originNorth;
    const double east = m_east - originEast;
    m_north = originNorth + read("_4dx") + cosine * north - sine * east;
    m_east = originEast + read("_4dy") + sine * north + cosine * east;
    m_en = sine * m_nn; // so far the axes are not turned
    m_nn = cosine * m_nn;
    m_ne = -sine * m_ee;
    m_ee = cosine * m_ee;
}

GridPosition CoordCorrections::undo(const GridPosition& position) const
{
    const double north = position.north - m_north;
    const double east = position.east - m_east;
    const double determinant = m_nn * m_ee - m_ne * m_en;
    return {(m_ee * north - m_ne * east) / determinant, (m_nn * east - m_en * north) / determinant,
            position.height - heightCorrection(position.north, position.east)};
}

double CoordCorrections::heightCorrection(double north, double east) const
{
    if (!m_isHeightFitted)
        return m_height;
    const double dx = north - m_fitNorth;
    const double dy = east - m_fitEast;
    const double fit = m_fit[0] + m_fit[1] * dx + m_fit[2] * dy + m_fit[3] * dx * dx +
                       m_fit[4] * dy * dy + m_fit[5] * dx * dy;
    return fit + m_slopeNorth * (north - m_slopeOriginNorth) +
           m_slopeEast * (east - m_slopeOriginEast) + m_height;
}

} // namespace lum
