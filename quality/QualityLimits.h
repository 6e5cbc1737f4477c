#pragma once

#include <QString>

#include <array>
#include <string_view>

class IDictionary;

/// A key of the quality parameters ("qc_param.ini").
struct QualityParameter
{
    const char* key = "";
    const char* fallback = ""; ///< the value of a project that does not have the key
    double largest = 0;        ///< what may be entered, in the unit of the limit; 0 for a text
    bool isWhole = false;      ///< whether it is a whole number
};

inline constexpr const char* kResurveyCode = "re_code";

/// All keys, in the order in which they are shown.
inline constexpr std::array<QualityParameter, 20> kQualityParameters{{
    {"design_hor_diff", "0.5", 1e6},  {"design_ver_diff", "1000", 1e6},
    {"base_dist", "10", 1e4}, // kilometres; all other lengths are metres
    {"hor_accu_max", "0.5", 1000},    {"ver_accu_max", "0.5", 1000},
    {"ant_height_min", "0.5", 100},   {"ant_height_max", "2.5", 100},
    {"pdop_min", "0.5", 1000},        {"pdop_max", "3", 1000},
    {"hdop_min", "0.5", 1000},        {"hdop_max", "3", 1000},
    {"vdop_min", "0.5", 1000},        {"vdop_max", "3", 1000},
    {"sat_num_min", "6", 1000, true}, {"s_pt_trans_max", "0.5", 1e6},
    {"s_pt_longi_max", "0.5", 1e6},   {kResurveyCode, "F"},
    {"re_north_diff", "0.03", 1000},  {"re_east_diff", "0.03", 1000},
    {"re_elev_diff", "0.03", 1000},
}};

/// Null when there is no such key.
[[nodiscard]] const QualityParameter* findQualityParameter(std::string_view key);

/// The value of a key, or its fallback; empty when there is no such key.
[[nodiscard]] std::string_view qualityParameter(const IDictionary& parameters,
                                                std::string_view key);

/// A translated sentence about the value of a key that is allowed and yet hardly meant: a maximum
/// below its minimum, or a minus. Empty when there is nothing to say.
[[nodiscard]] QString qualityParameterNote(const IDictionary& parameters, std::string_view key);

/// What a difference of coordinates may exceed its limit by and still be on it: 4000000.3 and
/// 4000000 differ by a little more than 0.3 in memory. Far below the last digit of a measurement.
inline constexpr double kRoundingM = 1e-6;

/// The limits of the quality check. The minus of a negative limit is ignored. A limit that is not a
/// number is 0.
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
    LineDeviation receivers; ///< for results whose point mark is not 0
    LineDeviation sources;   ///< for results whose point mark is 0; read from the same keys

    /// Metres a unit of the plane coordinates (lum_sdk/coords/LengthUnit.h), which is also that of
    /// the deviations from a line: 1 for metres. All other lengths of a result are metres.
    double planeUnitM = 1;

    [[nodiscard]] static QualityLimits from(const IDictionary& parameters);

    [[nodiscard]] const LineDeviation& lineDeviation(int pointMark) const
    {
        return pointMark != 0 ? receivers : sources;
    }
};
