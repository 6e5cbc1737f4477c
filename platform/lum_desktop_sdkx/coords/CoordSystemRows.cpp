#include "lum_desktop_sdkx/coords/CoordSystemRows.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/DatumShift.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

namespace {

constexpr double kSameAxisM = 1e-4;
constexpr double kSameFlattening = 1e-8; // in 1/f; WGS 84 and GRS 1980 are 1.5e-6 apart

constexpr const char* kPivot = "_7px,_7py,_7pz";

/// The keys that count only while the value of `key` is not 0.
struct Switch
{
    const char* key;
    const char* keys;
};

constexpr Switch kSwitches[] = {
    {"_7type", "_7dx,_7dy,_7dz,_7rx,_7ry,_7rz,_7ppm"},
    {"_4valid", "_4dx,_4dy,_4r,_4s,_4x0,_4y0"},
    {"correct_valid", "correct_dx,correct_dy,correct_dh"},
    {"fit_valid", "fit_a0,fit_a1,fit_a2,fit_a3,fit_a4,fit_a5,fit_x0,fit_y0"},
    {"ver_valid", "ver_h,ver_x_slope,ver_y_slope,ver_x0,ver_y0"},
    {"geoid_valid", "geoid_file"},
    {"project_type", "project_height"},
};

std::set<std::string_view> words(std::string_view list)
{
    std::set<std::string_view> result;
    while (!list.empty())
        result.insert(next_word3(list, ','));
    return result;
}

bool fits(const lum::KnownEllipsoid& known, const IDictionary& parameters)
{
    return std::abs(known.semiMajorM - parameters.number("ellipsoid_a")) < kSameAxisM &&
           std::abs(known.inverseFlattening - parameters.number("ellipsoid_f")) < kSameFlattening;
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CoordSystemRows)
};

} // namespace

namespace CoordSystemRows {

std::vector<Visibility> visibilities(const IDictionary& parameters)
{
    std::vector<Visibility> result;
    const auto add = [&result](std::string_view key, bool isShown) {
        result.push_back({lum::toQString(key), isShown});
    };
    std::set<std::string_view> ofProjections;
    for (const lum::ProjectionKind& kind : lum::projectionKinds())
        ofProjections.merge(words(kind.keys));
    const lum::ProjectionKind* const kind = lum::projectionKind(parameters);
    const auto used = words(kind == nullptr ? "" : kind->keys);
    for (const std::string_view key : ofProjections)
        add(key, used.contains(key));

    for (const Switch& group : kSwitches) {
        const bool isOn = parameters.integer(group.key) != 0;
        for (const std::string_view key : words(group.keys))
            add(key, isOn);
    }
    const auto shift = static_cast<lum::DatumShiftKind>(parameters.integer("_7type"));
    for (const std::string_view key : words(kPivot))
        add(key, shift == lum::DatumShiftKind::MolodenskyBadekas);
    return result;
}

QString ellipsoidName(const IDictionary& parameters)
{
    const std::string_view current = parameters.text("ellipsoid_name");
    const char* name = nullptr;
    for (const lum::KnownEllipsoid& known : lum::knownEllipsoids()) {
        if (fits(known, parameters) && (name == nullptr || known.name == current))
            name = known.name;
    }
    return QString::fromUtf8(name == nullptr ? kCustomEllipsoid : name);
}

bool fillEllipsoid(std::string_view name, IDictionary& parameters)
{
    const auto known = lum::knownEllipsoids();
    const auto found = std::find_if(known.begin(), known.end(),
                                    [name](const auto& one) { return one.name == name; });
    if (found == known.end())
        return false;
    dic_set_value(parameters, "ellipsoid_a", found->semiMajorM);
    dic_set_value(parameters, "ellipsoid_f", found->inverseFlattening);
    return true;
}

QString firstParallelCaption(const IDictionary& parameters)
{
    switch (parameters.integer("project_type")) {
    case 4:
    case 7:
        return Texts::tr("Latitude of true scale");
    case 5:
    case 13:
        return Texts::tr("Rectified grid angle");
    default:
        return Texts::tr("First standard parallel");
    }
}

const std::vector<QString>& planeLengths()
{
    static const std::vector<QString> keys = [] {
        std::vector<QString> result;
        for (const std::string_view key : words(lum::kPlaneLengths))
            result.push_back(lum::toQString(key));
        return result;
    }();
    return keys;
}

bool isSet(const IDictionary& parameters)
{
    return parameters.number("ellipsoid_a") != 0 || parameters.integer("project_type") != 0;
}

} // namespace CoordSystemRows
