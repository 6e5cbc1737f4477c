#pragma once

#include "model/PointLines.h"
#include "model/PointName.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

/// The antenna heights that a correction may give, either side of 0, metres.
inline constexpr double kMostAntennaHeightM = 10;

/// What an office may correct in a survey result; a value that is not set stays as it is. All else
/// was measured. Texts are taken without the blanks around them.
struct SurveyCorrection
{
    std::optional<std::string> lineNumber;
    /// A check point's is "C" and eight characters, without the counter that it has in memory.
    std::optional<std::string> pointNumber;
    std::optional<std::int32_t> pointMark;
    std::optional<double> antennaHeightM;
    /// A higher antenna lowers elevation, altitude and sea height by as much, and a lower one lifts
    /// them: that is what a wrongly typed pole height did to them.
    bool movesHeights = true;
    std::optional<std::string> surveyor;
    std::optional<std::string> remarks;
    std::optional<std::string> obstacle;
};

/// The same of a design point.
struct DesignCorrection
{
    std::optional<double> elevationM;
    std::optional<double> azimuthDeg;
};

/// What keeps a correction from being made.
struct CorrectionFault
{
    enum class Field
    {
        LineNumber,
        PointNumber,
        AntennaHeight,
        Surveyor,
        Remarks,
        Obstacle,
        Elevation,
        Azimuth
    };

    Field field;
    QString text; ///< a translated sentence
};

/// The first fault of a correction. A text with a comma or a control character is one: the files
/// are not quoted.
[[nodiscard]] std::optional<CorrectionFault> faultOf(const SurveyCorrection& correction);
[[nodiscard]] std::optional<CorrectionFault> faultOf(const DesignCorrection& correction);

/// The heights of a survey result, metres.
struct PointHeights
{
    double elevation;
    double altitude;
    double seaHeight;

    explicit PointHeights(const SurveyPoint& point)
        : elevation(point.elevation), altitude(point.altitude), seaHeight(point.seaHeight)
    {
    }
    friend bool operator==(const PointHeights&, const PointHeights&) = default;
};

/// The heights that another antenna height gives a result, exact in their first 8 decimals.
[[nodiscard]] PointHeights movedHeights(const SurveyPoint& point, double antennaHeightM);

/// The result that the corrected one replaces since it gets its name; null when there is none. A
/// check point replaces nothing: it gets a counter that is free.
[[nodiscard]] const SurveyPoint* replacedBy(const SurveyPoints& points, const PointName& name,
                                            const SurveyCorrection& correction);

/// What a correction without a fault makes of a result: the result alone, under its new name. Empty
/// when everything is as it was.
/// \param name  of a result that exists; becomes its new name
[[nodiscard]] SurveyPoints corrected(const SurveyPoints& points, PointName& name,
                                     const SurveyCorrection& correction);
[[nodiscard]] DesignPoints corrected(const DesignPoint& point, const DesignCorrection& correction);
