#include "lum_sdk/coords/LengthUnit.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lum {

namespace {

constexpr double kSameSize = 1e-10;      // of two units, relative
constexpr double kUsualDeviation = 0.03; // of a scale from 1; in the register it is 0.006

bool isSame(double a, double b)
{
    return std::abs(a - b) <= kSameSize * std::abs(b);
}

bool isScale(double value)
{
    return std::abs(value - 1) < kUsualDeviation;
}

/// The linear units of the EPSG register, both feet first; read once.
const std::vector<LengthUnit>& registerUnits()
{
    static const std::vector<LengthUnit> units = [] {
        std::vector<LengthUnit> result{kMetre, kFoot, kUsSurveyFoot};
        const ProjContext context = makeProjContext();
        int count = 0;
        const ProjOwner<PROJ_UNIT_INFO*> list(
            proj_get_units_from_database(context.get(), "EPSG", "linear", 0, &count));
        for (int i = 0; list && i < count; ++i)
            result.push_back({list.get()[i]->conv_factor, list.get()[i]->name});
        return result;
    }();
    return units;
}

/// Plane units per metre, about the factor of the projection: 0.9996, 3.28, 4.97.
double planeScale(const IDictionary& parameters)
{
    double scale = parameters.number("factor");
    const bool hasRadius = parameters.number("cutting_radius") != 0;
    if (parameters.integer("project_type") == kUtmCode || scale == 0 || hasRadius)
        scale = 1;
    const double planeShift = parameters.number("_4s");
    const bool isShifted = parameters.integer("_4valid") != 0 && planeShift != 0;
    return isShifted ? scale * planeShift : scale;
}

constexpr int kMostDecimals = 10; // of the scale of a published system

/// The decimals with which a number was written, more than `kMostDecimals` for one that is not
/// round.
int decimalsOf(double value)
{
    constexpr double kRounding = 2e-14; // of doubles that were divided and multiplied
    int decimals = 0;
    for (double power = 1; decimals <= kMostDecimals; ++decimals, power *= 10) {
        if (std::abs(value - std::round(value * power) / power) < kRounding)
            break;
    }
    return decimals;
}

/// The unit of the fewest decimals in the scale: 3937/1200 leaves 1 for US survey feet and 0.999998
/// for international feet. Null when none has fewer than the factor itself, which was typed, such
/// as 3.28083, and is no quotient.
const LengthUnit* unitOfRoundScale(double scale)
{
    const LengthUnit* best = nullptr;
    int fewest = decimalsOf(scale);
    for (const LengthUnit& unit : registerUnits()) {
        const int decimals =
            isScale(scale * unit.metres) ? decimalsOf(scale * unit.metres) : fewest;
        if (decimals < fewest) {
            best = &unit;
            fewest = decimals;
        }
    }
    return best;
}

/// The unit that comes closest to a scale of 1; of the feet, one of the two in use.
LengthUnit nearestUnit(double scale)
{
    const bool isInFeet = isScale(scale * kFoot.metres);
    const LengthUnit* best = &kMetre;
    for (const LengthUnit& unit : registerUnits()) {
        const bool isUsed = !isInFeet || unit.name == kFoot.name || unit.name == kUsSurveyFoot.name;
        if (isUsed && isScale(scale * unit.metres) &&
            std::abs(scale * unit.metres - 1) < std::abs(scale * best->metres - 1))
            best = &unit;
    }
    return *best;
}

LengthUnit unitByScale(double scale)
{
    const LengthUnit* const unit = unitOfRoundScale(scale);
    return unit != nullptr ? *unit : nearestUnit(scale);
}

} // namespace

LengthUnit lengthUnit(double metres)
{
    if (isSame(metres, kMetre.metres)) // the register need not be read for it
        return kMetre;
    const std::vector<LengthUnit>& units = registerUnits();
    const auto found = std::find_if(units.begin(), units.end(), [metres](const LengthUnit& unit) {
        return isSame(unit.metres, metres);
    });
    if (found != units.end())
        return *found;
    return {metres, basalt::formatShortest(metres) + " m"};
}

LengthUnit lengthUnitOf(const IDictionary& coordParameters)
{
    const double scale = planeScale(coordParameters);
    const double told = coordParameters.number(kLengthUnitKey);
    if (told > 0 && isScale(told * scale))
        return lengthUnit(told);
    return isScale(scale) ? kMetre : unitByScale(scale);
}

void setLengthUnit(const LengthUnit& unit, IDictionary& coordParameters)
{
    if (isMetre(unit))
        coordParameters.remove(kLengthUnitKey);
    else
        dic_set_value(coordParameters, kLengthUnitKey, unit.metres);
}

bool isMetre(const LengthUnit& unit)
{
    return isSame(unit.metres, kMetre.metres);
}

std::string symbolOf(const LengthUnit& unit)
{
    if (isMetre(unit))
        return "m";
    if (isSame(unit.metres, kFoot.metres))
        return "ft";
    return isSame(unit.metres, kUsSurveyFoot.metres) ? "ftUS" : unit.name;
}

} // namespace lum
