#pragma once

#include <array>

class IDictionary;

/// How far a resurvey may lie from the first result: north, east, elevation, in metres. A negative
/// tolerance lets nothing pass.
struct ResurveyTolerances
{
    std::array<double, 3> metres{};
    double planeUnitM = 1; ///< metres a unit of north and east

    /// \param parameters "qc_param.ini"
    [[nodiscard]] static ResurveyTolerances from(const IDictionary& parameters, double planeUnitM);

    /// Which of the differences are beyond their tolerance. On it passes, and so does what is no
    /// number.
    [[nodiscard]] std::array<bool, 3>
    exceededBy(const std::array<double, 3>& northEastElevation) const;
};
