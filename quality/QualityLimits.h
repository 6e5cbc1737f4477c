#pragma once

#include <array>
#include <string_view>

class IDictionary;

/// A key of the quality parameters ("qc_param.ini") and what counts when it is missing.
struct QualityParameter
{
    const char* key;
    const char* fallback;
};

inline constexpr const char* kResurveyCode = "re_code";

/// All of them, in the order in which they are shown.
inline constexpr std::array<QualityParameter, 20> kQualityParameters{{
    {"design_hor_diff", "0.5"}, {"design_ver_diff", "1000"},
    {"base_dist", "10"}, // kilometres; all other lengths are metres
    {"hor_accu_max", "0.5"},    {"ver_accu_max", "0.5"},
    {"ant_height_min", "0.5"},  {"ant_height_max", "2.5"},
    {"pdop_min", "0.5"},        {"pdop_max", "3"},
    {"hdop_min", "0.5"},        {"hdop_max", "3"},
    {"vdop_min", "0.5"},        {"vdop_max", "3"},
    {"sat_num_min", "6"},       {"s_pt_trans_max", "0.5"},
    {"s_pt_longi_max", "0.5"},  {kResurveyCode, "F"},
    {"re_north_diff", "0.03"},  {"re_east_diff", "0.03"},
    {"re_elev_diff", "0.03"},
}};

/// The value of a key, or what counts without it; empty for a key that is none of the above.
[[nodiscard]] std::string_view qualityParameter(const IDictionary& parameters,
                                                std::string_view key);

/// The limits of the check of survey results. A limit that was entered with a minus counts without
/// it, and one that is no number is 0.
struct QualityLimits
{
    struct Range
    {
        double min = 0;
        double max = 0;
    };
    struct LineDeviation
    {
        double acrossM = 0;
        double alongM = 0;
    };

    double designHorizontalM = 0;
    double designVerticalM = 0;
    double baseDistanceM = 0;
    double hrmsM = 0;
    double vrmsM = 0;
    Range antennaM;
    Range pdop;
    Range hdop;
    Range vdop;
    double satellites = 0;
    LineDeviation receivers; ///< of results whose point mark is not 0
    LineDeviation sources;   ///< of the others; the same keys, until there are separate ones

    [[nodiscard]] static QualityLimits from(const IDictionary& parameters);

    [[nodiscard]] const LineDeviation& lineDeviation(int pointMark) const
    {
        return pointMark != 0 ? receivers : sources;
    }
};
