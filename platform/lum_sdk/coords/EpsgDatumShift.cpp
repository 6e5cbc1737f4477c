#include "lum_sdk/coords/EpsgDatumShift.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/ProjHandles.h"

#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <utility>

namespace lum {

namespace {

// Parameters of the register, by their codes.
constexpr int kTranslation = 8605; // of x; y and z have the next two codes
constexpr int kRotation = 8608;    // likewise
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

/// The kind of a transformation method of the register; nothing when we have no such kind.
std::optional<DatumShiftKind> kindOfMethod(int code)
{
    switch (code) {
    case 9603: // geocentric translations, for geographic 2D, geocentric and geographic 3D systems
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

constexpr int kLongitudeRotation = 9601; // turns the prime meridian, does not shift the datum

/// The datum shift of one step towards WGS 84; nothing when the step is something else.
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

/// The datum shift of a whole operation; nothing when it needs a grid or has several shifts.
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

struct Bounds
{
    double westDeg;
    double southDeg;
    double eastDeg; ///< at least west; above 180 when the area crosses the date line
    double northDeg;
};

/// Where an object of the register is used; nothing when it does not say.
std::optional<Bounds> boundsOf(PJ_CONTEXT* context, const PJ* object, std::string* area = nullptr)
{
    Bounds bounds{};
    const char* name = nullptr;
    constexpr double kUnknown = -1000;
    if (proj_get_area_of_use(context, object, &bounds.westDeg, &bounds.southDeg, &bounds.eastDeg,
                             &bounds.northDeg, &name) == 0)
        return std::nullopt;
    if (area != nullptr && name != nullptr)
        *area = name;
    if (bounds.westDeg == kUnknown)
        return std::nullopt;
    if (bounds.eastDeg < bounds.westDeg)
        bounds.eastDeg += 360;
    return bounds;
}

/// The surface between two parallels, for equal widths in longitude.
double bandSize(double southDeg, double northDeg)
{
    constexpr double kDegree = std::numbers::pi / 180;
    return std::max(0.0, std::sin(northDeg * kDegree) - std::sin(southDeg * kDegree));
}

/// The part of `whole` that lies in `part`.
double coverage(const Bounds& whole, const Bounds& part)
{
    double widthDeg = 0;
    for (const double turn : {-360, 0, 360})
        widthDeg += std::max(0.0, std::min(whole.eastDeg, part.eastDeg + turn) -
                                      std::max(whole.westDeg, part.westDeg + turn));
    const double size = (whole.eastDeg - whole.westDeg) * bandSize(whole.southDeg, whole.northDeg);
    const double shared = widthDeg * bandSize(std::max(whole.southDeg, part.southDeg),
                                              std::min(whole.northDeg, part.northDeg));
    return size > 0 ? shared / size : 0;
}

ProjOwner<PJ_OBJ_LIST> operationsTo(PJ_CONTEXT* context, const PJ* from, const PJ* to)
{
    const ProjOwner<PJ_OPERATION_FACTORY_CONTEXT> wanted(
        proj_create_operation_factory_context(context, nullptr));
    proj_operation_factory_context_set_crs_extent_use(context, wanted.get(), PJ_CRS_EXTENT_NONE);
    proj_operation_factory_context_set_grid_availability_use(context, wanted.get(),
                                                             PROJ_GRID_AVAILABILITY_IGNORED);
    return ProjOwner<PJ_OBJ_LIST>(proj_create_operations(context, from, to, wanted.get()));
}

/// 10 when everything is covered, 0 for less than a tenth.
int tenths(double coverage)
{
    return static_cast<int>(std::floor(coverage * 10 + 1e-6));
}

bool isBetter(const EpsgDatumShift& a, const EpsgDatumShift& b)
{
    const int first = tenths(a.coverage);
    const int second = tenths(b.coverage);
    constexpr double kUnknown = std::numeric_limits<double>::infinity();
    return first != second ? first > second
                           : a.accuracyM.value_or(kUnknown) < b.accuracyM.value_or(kUnknown);
}

/// Cut behind a word when it is too long for a line: some areas name every state of a country.
std::string shortened(std::string text)
{
    constexpr std::size_t kMost = 50;
    if (text.size() > kMost)
        return text.substr(0, text.find_last_of(' ', kMost)) + " \u2026";
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

} // namespace

const EpsgDatumShift* EpsgDatumShifts::best() const
{
    return known.empty() || known.front().coverage < 0.5 ? nullptr : &known.front();
}

EpsgDatumShifts epsgDatumShifts(std::string_view code)
{
    EpsgDatumShifts result;
    const ProjContext context = makeProjContext();
    const auto registered = [&](const char* wanted) {
        return ProjObject(
            proj_create_from_database(context.get(), "EPSG", wanted, PJ_CATEGORY_CRS, 0, nullptr));
    };
    const ProjObject crs = registered(std::string(code).c_str());
    const ProjObject wgs84 = registered("4326");
    if (!crs || !wgs84)
        return result;
    const ProjObject base(proj_crs_get_geodetic_crs(context.get(), crs.get()));
    result.isNeeded = proj_is_equivalent_to(base.get(), wgs84.get(),
                                            PJ_COMP_EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS) == 0;
    const auto zone = boundsOf(context.get(), crs.get());
    const auto operations = operationsTo(context.get(), base.get(), wgs84.get());
    const int count = operations ? proj_list_get_count(operations.get()) : 0;
    for (int i = 0; i < count; ++i) {
        const ProjObject operation(proj_list_get(context.get(), operations.get(), i));
        const auto shift = shiftOfOperation(context.get(), operation.get());
        if (!shift)
            continue;
        EpsgDatumShift one{shift->inverse(), proj_get_name(operation.get()), {}, {}, 0};
        const auto area = boundsOf(context.get(), operation.get(), &one.area);
        one.coverage = zone && area ? coverage(*zone, *area) : 0;
        const double accuracyM = proj_coordoperation_get_accuracy(context.get(), operation.get());
        if (accuracyM >= 0)
            one.accuracyM = accuracyM;
        result.known.push_back(std::move(one));
    }
    std::stable_sort(result.known.begin(), result.known.end(), isBetter);
    return result;
}

std::string describe(const EpsgDatumShift& shift)
{
    const QString accuracy =
        shift.accuracyM ? QString::fromStdString(basalt::formatShortest(*shift.accuracyM) + " m")
                        : QCoreApplication::translate("EpsgDatumShift", "accuracy unknown");
    return shift.name + ", " + accuracy.toStdString() + ", " + shortened(shift.area);
}

} // namespace lum
