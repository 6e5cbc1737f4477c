#include "lum_sdk/EpsgDatumShift.h"

#include "basalt_utilities/Numbers.h"

#include <map>
#include <numbers>
#include <optional>
#include <string_view>

namespace lum {

namespace {

// Parameters of the register, by their codes.
constexpr int kTranslation = 8605; // and the next two
constexpr int kRotation = 8608;    // and the next two
constexpr int kScale = 8611;
constexpr int kPivotX = 8617;
constexpr int kPivotY = 8618;
constexpr int kPivotZ = 8667;

using Values = std::map<int, double>; ///< in radians, metres and unity

Values valuesOf(PJ_CONTEXT* context, const PJ* operation)
{
    Values values;
    const int count = proj_coordoperation_get_param_count(context, operation);
    for (int i = 0; i < count; ++i) {
        const char* code = nullptr;
        double value = 0;
        double unit = 1;
        if (proj_coordoperation_get_param(context, operation, i, nullptr, nullptr, &code, &value,
                                          nullptr, &unit, nullptr, nullptr, nullptr,
                                          nullptr) != 0 &&
            code != nullptr)
            values[basalt::parseInteger(code)] = value * unit;
    }
    return values;
}

/// The kind of a transformation method of the register; nothing when it is no datum shift of ours.
std::optional<DatumShiftKind> kindOfMethod(int code)
{
    switch (code) {
    case 9603: // geocentric translations, in the domains of the three kinds of systems
    case 1031:
    case 1035:
    case 9607: // coordinate frame
    case 1032:
    case 1038:
    case 9636: // the same with a pivot
    case 1034:
    case 1039:
        return DatumShiftKind::CoordinateFrame;
    case 9606: // position vector
    case 1033:
    case 1037:
    case 1061: // the same with a pivot
    case 1062:
    case 1063:
        return DatumShiftKind::PositionVector;
    default:
        return std::nullopt;
    }
}

constexpr int kLongitudeRotation = 9601; // part of the prime meridian, not of the datum

/// One step towards WGS 84; nothing when it is of another kind.
std::optional<DatumShift> shiftOfStep(PJ_CONTEXT* context, const PJ* step)
{
    const char* name = nullptr;
    const char* code = nullptr;
    if (proj_coordoperation_get_method_info(context, step, &name, nullptr, &code) == 0 ||
        name == nullptr || code == nullptr)
        return std::nullopt;
    const int method = basalt::parseInteger(code);
    if (method == kLongitudeRotation)
        return DatumShift();
    const auto kind = kindOfMethod(method);
    if (!kind)
        return std::nullopt;
    constexpr double kArcSecond = std::numbers::pi / (180.0 * 3600.0);
    Values v = valuesOf(context, step);
    const DatumShift shift(
        *kind, {v[kTranslation], v[kTranslation + 1], v[kTranslation + 2]},
        {v[kRotation] / kArcSecond, v[kRotation + 1] / kArcSecond, v[kRotation + 2] / kArcSecond},
        v[kScale] * 1e6, {v[kPivotX], v[kPivotY], v[kPivotZ]});
    return std::string_view(name).starts_with("Inverse of") ? shift.inverse() : shift;
}

/// The shift of a whole operation; nothing when it takes a grid or more than one shift.
std::optional<DatumShift> shiftOfOperation(PJ_CONTEXT* context, const PJ* operation)
{
    if (proj_coordoperation_has_ballpark_transformation(context, operation) != 0 ||
        proj_coordoperation_get_grid_used_count(context, operation) > 0)
        return std::nullopt;
    if (proj_get_type(operation) != PJ_TYPE_CONCATENATED_OPERATION)
        return shiftOfStep(context, operation);
    DatumShift whole;
    const int count = proj_concatoperation_get_step_count(context, operation);
    for (int i = 0; i < count; ++i) {
        const ProjObject step(proj_concatoperation_get_step(context, operation, i));
        const auto shift = shiftOfStep(context, step.get());
        if (!shift || (!whole.isNone() && !shift->isNone()))
            return std::nullopt;
        if (whole.isNone())
            whole = *shift;
    }
    return whole;
}

} // namespace

DatumShift epsgDatumShift(PJ_CONTEXT* context, const PJ* projectedCrs)
{
    const ProjObject base(proj_crs_get_geodetic_crs(context, projectedCrs));
    const ProjObject wgs84(
        proj_create_from_database(context, "EPSG", "4326", PJ_CATEGORY_CRS, 0, nullptr));
    const ProjOwner<PJ_OPERATION_FACTORY_CONTEXT> wanted(
        proj_create_operation_factory_context(context, nullptr));
    double west = 0;
    double south = 0;
    double east = 0;
    double north = 0;
    if (proj_get_area_of_use(context, projectedCrs, &west, &south, &east, &north, nullptr) != 0)
        proj_operation_factory_context_set_area_of_interest(context, wanted.get(), west, south,
                                                            east, north);
    proj_operation_factory_context_set_spatial_criterion(
        context, wanted.get(), PROJ_SPATIAL_CRITERION_PARTIAL_INTERSECTION);
    proj_operation_factory_context_set_grid_availability_use(context, wanted.get(),
                                                             PROJ_GRID_AVAILABILITY_IGNORED);
    const ProjOwner<PJ_OBJ_LIST> operations(
        proj_create_operations(context, base.get(), wgs84.get(), wanted.get()));
    const int count = operations ? proj_list_get_count(operations.get()) : 0;
    for (int i = 0; i < count; ++i) {
        const ProjObject operation(proj_list_get(context, operations.get(), i));
        if (const auto shift = shiftOfOperation(context, operation.get()))
            return shift->inverse();
    }
    return {};
}

} // namespace lum
