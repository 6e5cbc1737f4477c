#pragma once

#include "lum_sdk/coords/CoordResult.h"

#include <array>
#include <string>

class IDictionary;

namespace lum {

/// The kinds of seven-parameter models, the values of "_7type".
enum class DatumShiftKind
{
    None = 0,
    PositionVector = 1,
    CoordinateFrame = 2,
    MolodenskyBadekas = 3, ///< a coordinate frame turned about a pivot (_7px, _7py, _7pz)
};

/// A datum shift as rotation of the coordinate frame, from geocentric WGS 84 to the local datum:
/// X' = T + (1 + s) R X with R linear in the angles. The other kinds are converted to this one.
class DatumShift
{
public:
    DatumShift() = default;
    /// \param rotationsSec  arc seconds, in the sense of `kind`
    /// \param pivotM  the centre of rotation, geocentric
    DatumShift(DatumShiftKind kind, const std::array<double, 3>& translationM,
               const std::array<double, 3>& rotationsSec, double scalePpm,
               const std::array<double, 3>& pivotM = {});

    /// From the "_7..." keys; a shift whose parameters are all 0 is none.
    static DatumShift fromDictionary(const IDictionary& parameters, CoordFault& fault);

    [[nodiscard]] bool isNone() const;
    [[nodiscard]] bool operator==(const DatumShift& other) const = default;

    /// The shift back, as those who publish the parameters compute it: with R transposed. It is
    /// exact except for the squares of the angles, a millimetre at 2 seconds.
    [[nodiscard]] DatumShift inverse() const;

    /// Writes the "_7..." keys, kind 2 or 0.
    void toDictionary(IDictionary& parameters) const;

    /// The step of a PROJ pipeline for geocentric coordinates: a matrix, whose inverse is exact.
    /// PROJ's own Helmert step would go back with R transposed.
    [[nodiscard]] std::string projStep() const;

private:
    [[nodiscard]] std::array<double, 3> turned(const std::array<double, 3>& vector) const;

    std::array<double, 3> m_translationM{};
    std::array<double, 3> m_rotationSec{};
    double m_scalePpm = 0;
};

} // namespace lum
