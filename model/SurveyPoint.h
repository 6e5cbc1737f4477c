#pragma once

#include <cstdint>
#include <string>

/// The line of all points that were surveyed without a line number.
inline constexpr const char* kEmptyLine = "EmptyLine";

/// A GNSS result. Positions on the plane, their differences and the deviations from a line are in
/// the unit of the project's coordinate system, all other lengths in metres; angles are decimal
/// degrees, times milliseconds since 1970 UTC.
struct SurveyPoint
{
    std::string lineNumber;
    std::string pointNumber;
    std::int32_t pointMark = 0; ///< 0 source, otherwise receiver
    // What the checks have found; beside the numbers, since they walk over all results.
    std::int32_t qualityStandard = 0; ///< see QualityCheck.h
    std::int32_t isResurvey = 0;      ///< see ResurveyCheck.h
    double latitude = 0;
    double longitude = 0;
    double altitude = 0; ///< above the ellipsoid
    double north = 0;
    double east = 0;
    double elevation = 0;
    double antennaHeight = 0;
    double horizontalAccuracy = 0;
    double verticalAccuracy = 0;
    std::int32_t satelliteNumber = 0;
    double pdop = 0;
    double hdop = 0;
    double vdop = 0;
    std::int32_t epochNumber = 0;
    double referenceNorth = 0;
    double referenceEast = 0;
    double referenceLongitude = 0;
    double referenceLatitude = 0;
    double referenceAltitude = 0;
    double referenceDistance = 0;
    std::int64_t dateTime = 0;
    std::int32_t measureMode = 0;  ///< 0 stake-out, otherwise plain survey
    std::int32_t solutionType = 0; ///< see CodeTables.h
    std::string instrumentType;
    std::string instrumentSerialNumber;
    double designNorth = 0;
    double designEast = 0;
    double designElevation = 0;
    double transversalDeviation = 0;
    double longitudinalDeviation = 0;
    double rms = 0;
    std::string surveyor;
    std::string remarks;
    std::string obstacle; ///< its name, see CodeTables.h
    std::string photoPath;
    double resurveyXDiff = 0;
    double resurveyYDiff = 0;
    double resurveyHDiff = 0;
    std::string pairedNumber; ///< of its resurvey, or of what it resurveys; never stored
    double seaHeight = 0;     ///< derived from the position, never stored
    double ageOfDiff = 0;     ///< age of the differential corrections, seconds
    std::string satDetail;
    std::int64_t startTime = 0;
    std::int64_t endTime = 0;
    std::int64_t rawOffset = 0;
    std::string baseStationId;
};

/// Whether the result says where its point was designed.
[[nodiscard]] inline bool hasDesignPosition(const SurveyPoint& point)
{
    return point.designNorth != 0 && point.designEast != 0;
}
