#include "lum_sdk/coords/CoordStoredForm.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/DatumShift.h"
#include "lum_sdk/coords/LengthUnit.h"

namespace lum {

namespace {

void setNumber(IDictionary& parameters, std::string_view key, double value)
{
    if (parameters.number(key) != value)
        dic_set_value(parameters, key, value);
}

void dropPivot(IDictionary& parameters)
{
    const auto kind = static_cast<DatumShiftKind>(parameters.integer("_7type"));
    if (kind != DatumShiftKind::MolodenskyBadekas)
        return;
    CoordFault fault;
    const auto shift = DatumShift::fromDictionary(parameters, fault);
    if (fault)
        return;
    shift.toDictionary(parameters);
    for (const char* key : {"_7px", "_7py", "_7pz"})
        parameters.remove(key);
}

bool isUsed(std::string_view key, const ProjectionKind& kind)
{
    std::string_view rest = kind.keys;
    while (!rest.empty()) {
        if (next_word3(rest, ',') == key)
            return true;
    }
    return false;
}

/// The value that a missing key has.
double ownValue(const ProjectionKind& kind, std::string_view key)
{
    const bool isUtm = kind.code == kUtmCode;
    if (isUtm && key == "factor")
        return kUtmFactor;
    return isUtm && key == "false_east" ? kUtmFalseEastM : 0;
}

void settleUnused(const ProjectionKind& kind, IDictionary& parameters)
{
    for (const ProjectionKind& other : projectionKinds()) {
        std::string_view rest = other.keys;
        while (!rest.empty()) {
            const std::string_view key = next_word3(rest, ',');
            if (!isUsed(key, kind))
                setNumber(parameters, key, ownValue(kind, key));
        }
    }
}

} // namespace

void toStoredForm(IDictionary& parameters)
{
    dropPivot(parameters);
    const ProjectionKind* const kind = projectionKind(parameters);
    if (kind == nullptr)
        return;
    settleUnused(*kind, parameters);
    if (kind->code == kUtmCode)
        setNumber(parameters, "org_lon", utmCentralMeridian(parameters.number("org_lon")));
    if (parameters.number("factor") == 0)
        setNumber(parameters, "factor", 1);
    setLengthUnit(lengthUnitOf(parameters), parameters);
}

} // namespace lum
