#include "model/SurveyColumns.h"

#include <QCoreApplication>

const std::array<SurveyColumn, kSurveyColumnCount>& surveyColumns()
{
    // clang-format off
    static const std::array<SurveyColumn, kSurveyColumnCount> kColumns{{
        {"line_num", QT_TRANSLATE_NOOP("SurveyColumns", "line num"), &SurveyPoint::lineNumber},
        {"point_num", QT_TRANSLATE_NOOP("SurveyColumns", "point num"), &SurveyPoint::pointNumber},
        {"point_mark", QT_TRANSLATE_NOOP("SurveyColumns", "point mark"), &SurveyPoint::pointMark},
        {"latitude", QT_TRANSLATE_NOOP("SurveyColumns", "latitude"), &SurveyPoint::latitude, 8},
        {"longitude", QT_TRANSLATE_NOOP("SurveyColumns", "longitude"), &SurveyPoint::longitude, 8},
        {"altitude", QT_TRANSLATE_NOOP("SurveyColumns", "altitude"), &SurveyPoint::altitude, 4},
        {"north", QT_TRANSLATE_NOOP("SurveyColumns", "north"), &SurveyPoint::north, 4},
        {"east", QT_TRANSLATE_NOOP("SurveyColumns", "east"), &SurveyPoint::east, 4},
        {"elevation", QT_TRANSLATE_NOOP("SurveyColumns", "elevation"), &SurveyPoint::elevation, 4},
        {"antenna_height", QT_TRANSLATE_NOOP("SurveyColumns", "antenna height"), &SurveyPoint::antennaHeight, 4},
        {"horizontal_accuracy", QT_TRANSLATE_NOOP("SurveyColumns", "hor accu"), &SurveyPoint::horizontalAccuracy, 4},
        {"vertical_accuracy", QT_TRANSLATE_NOOP("SurveyColumns", "ver accu"), &SurveyPoint::verticalAccuracy, 4},
        {"satellite_number", QT_TRANSLATE_NOOP("SurveyColumns", "sat num"), &SurveyPoint::satelliteNumber},
        {"pdop", QT_TRANSLATE_NOOP("SurveyColumns", "pdop"), &SurveyPoint::pdop, 4},
        {"hdop", QT_TRANSLATE_NOOP("SurveyColumns", "hdop"), &SurveyPoint::hdop, 4},
        {"vdop", QT_TRANSLATE_NOOP("SurveyColumns", "vdop"), &SurveyPoint::vdop, 4},
        {"epoch_number", QT_TRANSLATE_NOOP("SurveyColumns", "epoch num"), &SurveyPoint::epochNumber},
        {"reference_north", QT_TRANSLATE_NOOP("SurveyColumns", "ref north"), &SurveyPoint::referenceNorth, 4},
        {"reference_east", QT_TRANSLATE_NOOP("SurveyColumns", "ref east"), &SurveyPoint::referenceEast, 4},
        {"reference_longitude", QT_TRANSLATE_NOOP("SurveyColumns", "ref lon"), &SurveyPoint::referenceLongitude, 8},
        {"reference_latitude", QT_TRANSLATE_NOOP("SurveyColumns", "ref lat"), &SurveyPoint::referenceLatitude, 8},
        {"reference_altitude", QT_TRANSLATE_NOOP("SurveyColumns", "ref alt"), &SurveyPoint::referenceAltitude, 4},
        {"reference_distance", QT_TRANSLATE_NOOP("SurveyColumns", "ref dist"), &SurveyPoint::referenceDistance, 4},
        {"date_time", QT_TRANSLATE_NOOP("SurveyColumns", "time"), &SurveyPoint::dateTime},
        {"measure_mode", QT_TRANSLATE_NOOP("SurveyColumns", "measure mode"), &SurveyPoint::measureMode},
        {"solution_type", QT_TRANSLATE_NOOP("SurveyColumns", "solution type"), &SurveyPoint::solutionType},
        {"instrument_type", QT_TRANSLATE_NOOP("SurveyColumns", "instru type"), &SurveyPoint::instrumentType},
        {"instrument_serial_number", QT_TRANSLATE_NOOP("SurveyColumns", "instru serial"), &SurveyPoint::instrumentSerialNumber},
        {"quality_standard", QT_TRANSLATE_NOOP("SurveyColumns", "quality"), &SurveyPoint::qualityStandard},
        {"design_north", QT_TRANSLATE_NOOP("SurveyColumns", "design north"), &SurveyPoint::designNorth, 4},
        {"design_east", QT_TRANSLATE_NOOP("SurveyColumns", "design east"), &SurveyPoint::designEast, 4},
        {"design_elevation", QT_TRANSLATE_NOOP("SurveyColumns", "design elevation"), &SurveyPoint::designElevation, 4},
        {"transversal_deviation", QT_TRANSLATE_NOOP("SurveyColumns", "trans deviation"), &SurveyPoint::transversalDeviation, 4},
        {"longitudinal_deviation", QT_TRANSLATE_NOOP("SurveyColumns", "longi deviation"), &SurveyPoint::longitudinalDeviation, 4},
        {"rms", QT_TRANSLATE_NOOP("SurveyColumns", "rms"), &SurveyPoint::rms, 4},
        {"surveyor", QT_TRANSLATE_NOOP("SurveyColumns", "surveyor"), &SurveyPoint::surveyor},
        {"remarks", QT_TRANSLATE_NOOP("SurveyColumns", "remarks"), &SurveyPoint::remarks},
        {"obstacle", QT_TRANSLATE_NOOP("SurveyColumns", "obstacle"), &SurveyPoint::obstacle},
        {"photo_path", QT_TRANSLATE_NOOP("SurveyColumns", "photo"), &SurveyPoint::photoPath},
        {"is_resurvey", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey"), &SurveyPoint::isResurvey},
        {"resurvey_x_diff", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey x diff"), &SurveyPoint::resurveyXDiff, 4},
        {"resurvey_y_diff", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey y diff"), &SurveyPoint::resurveyYDiff, 4},
        {"resurvey_h_diff", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey h diff"), &SurveyPoint::resurveyHDiff, 4},
        {"sea_height", QT_TRANSLATE_NOOP("SurveyColumns", "sea height"), &SurveyPoint::seaHeight, 4},
        {"age_of_diff", QT_TRANSLATE_NOOP("SurveyColumns", "age of diff"), &SurveyPoint::ageOfDiff, kGeneral},
        {"sat_detail", QT_TRANSLATE_NOOP("SurveyColumns", "sat detail"), &SurveyPoint::satDetail},
        {"start_time", QT_TRANSLATE_NOOP("SurveyColumns", "start time"), &SurveyPoint::startTime},
        {"end_time", QT_TRANSLATE_NOOP("SurveyColumns", "end time"), &SurveyPoint::endTime},
        {"raw_offset", QT_TRANSLATE_NOOP("SurveyColumns", "raw offset"), &SurveyPoint::rawOffset},
        {"base_station_id", QT_TRANSLATE_NOOP("SurveyColumns", "base_station_id"), &SurveyPoint::baseStationId},
    }};
    // clang-format on
    return kColumns;
}

QStringList surveyCaptions()
{
    QStringList captions;
    for (const SurveyColumn& column : surveyColumns())
        captions << QCoreApplication::translate("SurveyColumns", column.caption);
    return captions;
}
