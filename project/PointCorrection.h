#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What an office may correct in a survey result; a value that is not set stays as it is. All else
/// was measured.
struct SurveyCorrection
{
    std::optional<std::string> lineNumber;
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
