#include "quality/QualityLimits.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMetresAKilometre = 1000;

double limit(const IDictionary& parameters, const char* key)
{
    return std::fabs(basalt::parseNumber(qualityParameter(parameters, key)));
}

QualityLimits::LineDeviation lineDeviation(const IDictionary& parameters)
{
    return {limit(parameters, "s_pt_trans_max"), limit(parameters, "s_pt_longi_max")};
}

} // namespace

const QualityParameter* findQualityParameter(std::string_view key)
{
    const auto* const found =
        std::find_if(kQualityParameters.begin(), kQualityParameters.end(),
                     [&](const QualityParameter& parameter) { return key == parameter.key; });
    return found == kQualityParameters.end() ? nullptr : found;
}

std::string_view qualityParameter(const IDictionary& parameters, std::string_view key)
{
    const QualityParameter* const parameter = findQualityParameter(key);
    return parameter != nullptr ? parameters.text(key, parameter->fallback) : std::string_view();
}

QualityLimits QualityLimits::from(const IDictionary& parameters)
{
    const auto read = [&](const char* key) { return limit(parameters, key); };
    QualityLimits limits;
    limits.designHorizontalM = read("design_hor_diff");
    limits.designVerticalM = read("design_ver_diff");
    limits.baseDistanceM = read("base_dist") * kMetresAKilometre;
    limits.hrmsM = read("hor_accu_max");
    limits.vrmsM = read("ver_accu_max");
    limits.antennaM = {read("ant_height_min"), read("ant_height_max")};
    limits.pdop = {read("pdop_min"), read("pdop_max")};
    limits.hdop = {read("hdop_min"), read("hdop_max")};
    limits.vdop = {read("vdop_min"), read("vdop_max")};
    limits.satellites = read("sat_num_min");
    limits.receivers = ::lineDeviation(parameters);
    limits.sources = ::lineDeviation(parameters);
    return limits;
}
