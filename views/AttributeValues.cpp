#include "views/AttributeValues.h"

#include "basalt_utilities/Numbers.h"
#include "exchange/AngleText.h"
#include "exchange/ShownTimes.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "map/ui/LayerTexts.h"
#include "model/BaseStation.h"
#include "model/CodeTables.h"
#include "model/DesignPoint.h"
#include "model/PointNumber.h"
#include "model/SurveyPoint.h"
#include "protocol/StatusKeys.h"

#include <QCoreApplication>

#include <array>
#include <utility>

namespace {

constexpr int kLengthDecimals = 3;
constexpr int kAzimuthDecimals = 6;

/// Fills a dictionary with texts.
class Values
{
public:
    Values& text(const char* key, std::string_view text)
    {
        m_values.set(key, text);
        return *this;
    }
    Values& text(const char* key, const QString& text)
    {
        return this->text(key, text.toStdString());
    }
    Values& length(const char* key, double value)
    {
        return text(key, basalt::formatFixed(value, kLengthDecimals));
    }
    Values& number(const char* key, double value)
    {
        return text(key, basalt::formatGeneral(value));
    }
    Values& count(const char* key, int value) { return text(key, std::to_string(value)); }
    Values& angle(const char* key, double degrees)
    {
        std::array<char, AngleText::kMostSize> buffer{};
        const char* const end = m_angles.write(buffer.data(), degrees);
        return text(key, {buffer.data(), static_cast<std::size_t>(end - buffer.data())});
    }
    Values& time(const char* key, std::int64_t milliseconds)
    {
        return text(key, std::string_view(shownTime(milliseconds)));
    }
    [[nodiscard]] basalt::Dictionary take() { return std::move(m_values); }

private:
    AngleText m_angles{get_system_status_dictionary().integer(status::kDegreeFormat)};
    basalt::Dictionary m_values;
};

void addMeasurement(const SurveyPoint& point, Values& values)
{
    values.length("north", point.north)
        .length("east", point.east)
        .length("elevation", point.elevation)
        .length("sea_height", point.seaHeight)
        .angle("latitude", point.latitude)
        .angle("longitude", point.longitude)
        .length("altitude", point.altitude)
        .length("antenna_height", point.antennaHeight)
        .length("design_north", point.designNorth)
        .length("design_east", point.designEast)
        .length("design_elevation", point.designElevation)
        .length("transversal_deviation", point.transversalDeviation)
        .length("longitudinal_deviation", point.longitudinalDeviation);
}

void addAccuracy(const SurveyPoint& point, Values& values)
{
    values.text("solution_type", solutionTypeText(point.solutionType))
        .number("horizontal_accuracy", point.horizontalAccuracy)
        .number("vertical_accuracy", point.verticalAccuracy)
        .count("satellite_number", point.satelliteNumber)
        .number("pdop", point.pdop)
        .number("hdop", point.hdop)
        .number("vdop", point.vdop)
        .count("epoch_number", point.epochNumber)
        .number("age_of_diff", point.ageOfDiff)
        .text("sat_detail", point.satDetail);
}

void addReference(const SurveyPoint& point, Values& values)
{
    values.length("reference_north", point.referenceNorth)
        .length("reference_east", point.referenceEast)
        .angle("reference_latitude", point.referenceLatitude)
        .angle("reference_longitude", point.referenceLongitude)
        .length("reference_altitude", point.referenceAltitude)
        .length("reference_distance", point.referenceDistance)
        .text("instrument_type", point.instrumentType)
        .text("instrument_serial_number", point.instrumentSerialNumber);
}

} // namespace

bool isSameLength(double first, double second)
{
    return basalt::formatFixed(first, kLengthDecimals) ==
           basalt::formatFixed(second, kLengthDecimals);
}

bool isSameAzimuth(double first, double second)
{
    return basalt::formatFixed(first, kAzimuthDecimals) ==
           basalt::formatFixed(second, kAzimuthDecimals);
}

basalt::Dictionary attributesOf(const SurveyPoint& point)
{
    Values values;
    values.text("line_num", point.lineNumber)
        .text("point_num", writtenPointNumber(point.pointNumber))
        .count("point_mark", point.pointMark == 0 ? 0 : 1)
        .time("date_time", point.dateTime)
        .text("measure_mode", measureModeText(point.measureMode))
        .count("quality_standard", point.qualityStandard)
        .text("surveyor", point.surveyor)
        .text("remarks", point.remarks)
        .text("obstacle", point.obstacle)
        .text("photo", point.photoPath);
    addMeasurement(point, values);
    addAccuracy(point, values);
    addReference(point, values);
    return values.take();
}

basalt::Dictionary attributesOf(const DesignPoint& point)
{
    const char* const status = point.status != 0
                                   ? QT_TRANSLATE_NOOP("AttributeControl", "surveyed")
                                   : QT_TRANSLATE_NOOP("AttributeControl", "not surveyed");
    return Values()
        .text("line_num", point.lineNumber)
        .text("point_num", point.pointNumber)
        .count("type", point.type)
        .text("status", QCoreApplication::translate("AttributeControl", status))
        .length("north", point.north)
        .length("east", point.east)
        .length("elevation", point.elevation)
        .text("azimuth", basalt::formatFixed(point.azimuth, kAzimuthDecimals))
        .take();
}

basalt::Dictionary attributesOf(const BaseStation& station, int index)
{
    return Values()
        .text("name", LayerTexts::baseLabel() + QString::number(index + 1))
        .length("north", station.north)
        .length("east", station.east)
        .angle("latitude", station.latitudeDeg)
        .angle("longitude", station.longitudeDeg)
        .length("altitude", station.altitudeM)
        .take();
}
