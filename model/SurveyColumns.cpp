#include "model/SurveyColumns.h"

#include "model/RecordTexts.h"

#include <algorithm>
#include <array>

namespace {

using Stored = StoredForm;
using Csv = CsvForm;
using Member = SurveyColumn::Member;

constexpr bool kIsWrittenOnly = false; ///< for `isReadFromCsv`

// A new field is a member of SurveyPoint and a row at the end of this table; its last value is one
// more than the highest that stands here.
// clang-format off
constexpr auto kColumns = std::to_array<SurveyColumn>({
    {"line_num", QT_TRANSLATE_NOOP("SurveyColumns", "line num"), &SurveyPoint::lineNumber, Stored::Text, Csv::Text},
    {"point_num", QT_TRANSLATE_NOOP("SurveyColumns", "point num"), &SurveyPoint::pointNumber, Stored::PointNumber, Csv::PointNumber},
    {"point_mark", QT_TRANSLATE_NOOP("SurveyColumns", "point mark"), &SurveyPoint::pointMark, Stored::Integer, Csv::PointMark},
    {"latitude", QT_TRANSLATE_NOOP("SurveyColumns", "latitude"), &SurveyPoint::latitude, Stored::Decimals8, Csv::Angle},
    {"longitude", QT_TRANSLATE_NOOP("SurveyColumns", "longitude"), &SurveyPoint::longitude, Stored::Decimals8, Csv::Angle},
    {"altitude", QT_TRANSLATE_NOOP("SurveyColumns", "altitude"), &SurveyPoint::altitude, Stored::Decimals4, Csv::Decimals6},
    {"north", QT_TRANSLATE_NOOP("SurveyColumns", "north"), &SurveyPoint::north, Stored::Decimals4, Csv::Decimals4},
    {"east", QT_TRANSLATE_NOOP("SurveyColumns", "east"), &SurveyPoint::east, Stored::Decimals4, Csv::Decimals4},
    {"elevation", QT_TRANSLATE_NOOP("SurveyColumns", "elevation"), &SurveyPoint::elevation, Stored::Decimals4, Csv::Decimals4},
    {"antenna_height", QT_TRANSLATE_NOOP("SurveyColumns", "antenna height"), &SurveyPoint::antennaHeight, Stored::Decimals4, Csv::Decimals4},
    {"horizontal_accuracy", QT_TRANSLATE_NOOP("SurveyColumns", "hor accu"), &SurveyPoint::horizontalAccuracy, Stored::Decimals4, Csv::Decimals4},
    {"vertical_accuracy", QT_TRANSLATE_NOOP("SurveyColumns", "ver accu"), &SurveyPoint::verticalAccuracy, Stored::Decimals4, Csv::Decimals4},
    {"satellite_number", QT_TRANSLATE_NOOP("SurveyColumns", "sat num"), &SurveyPoint::satelliteNumber, Stored::Integer, Csv::Integer},
    {"pdop", QT_TRANSLATE_NOOP("SurveyColumns", "pdop"), &SurveyPoint::pdop, Stored::Decimals4, Csv::Decimals4},
    {"hdop", QT_TRANSLATE_NOOP("SurveyColumns", "hdop"), &SurveyPoint::hdop, Stored::Decimals4, Csv::Decimals4},
    {"vdop", QT_TRANSLATE_NOOP("SurveyColumns", "vdop"), &SurveyPoint::vdop, Stored::Decimals4, Csv::Decimals4},
    {"epoch_number", QT_TRANSLATE_NOOP("SurveyColumns", "epoch num"), &SurveyPoint::epochNumber, Stored::Integer, Csv::Integer},
    {"reference_north", QT_TRANSLATE_NOOP("SurveyColumns", "ref north"), &SurveyPoint::referenceNorth, Stored::Decimals4, Csv::Decimals4},
    {"reference_east", QT_TRANSLATE_NOOP("SurveyColumns", "ref east"), &SurveyPoint::referenceEast, Stored::Decimals4, Csv::Decimals4},
    {"reference_longitude", QT_TRANSLATE_NOOP("SurveyColumns", "ref lon"), &SurveyPoint::referenceLongitude, Stored::Decimals8, Csv::Angle},
    {"reference_latitude", QT_TRANSLATE_NOOP("SurveyColumns", "ref lat"), &SurveyPoint::referenceLatitude, Stored::Decimals8, Csv::Angle},
    {"reference_altitude", QT_TRANSLATE_NOOP("SurveyColumns", "ref alt"), &SurveyPoint::referenceAltitude, Stored::Decimals4, Csv::Decimals4},
    {"reference_distance", QT_TRANSLATE_NOOP("SurveyColumns", "ref dist"), &SurveyPoint::referenceDistance, Stored::Decimals4, Csv::Decimals4},
    {"date_time", QT_TRANSLATE_NOOP("SurveyColumns", "time"), &SurveyPoint::dateTime, Stored::LongInteger, Csv::Time},
    {"measure_mode", QT_TRANSLATE_NOOP("SurveyColumns", "measure mode"), &SurveyPoint::measureMode, Stored::Integer, Csv::MeasureMode},
    {"solution_type", QT_TRANSLATE_NOOP("SurveyColumns", "solution type"), &SurveyPoint::solutionType, Stored::Integer, Csv::SolutionType},
    {"instrument_type", QT_TRANSLATE_NOOP("SurveyColumns", "instru type"), &SurveyPoint::instrumentType, Stored::Text, Csv::Text},
    {"instrument_serial_number", QT_TRANSLATE_NOOP("SurveyColumns", "instru serial"), &SurveyPoint::instrumentSerialNumber, Stored::Text, Csv::Text},
    {"quality_standard", QT_TRANSLATE_NOOP("SurveyColumns", "quality"), &SurveyPoint::qualityStandard, Stored::Integer, Csv::Integer},
    {"design_north", QT_TRANSLATE_NOOP("SurveyColumns", "design north"), &SurveyPoint::designNorth, Stored::Decimals4, Csv::Decimals4},
    {"design_east", QT_TRANSLATE_NOOP("SurveyColumns", "design east"), &SurveyPoint::designEast, Stored::Decimals4, Csv::Decimals4},
    {"design_elevation", QT_TRANSLATE_NOOP("SurveyColumns", "design elevation"), &SurveyPoint::designElevation, Stored::Decimals4, Csv::Decimals4},
    {"transversal_deviation", QT_TRANSLATE_NOOP("SurveyColumns", "trans deviation"), &SurveyPoint::transversalDeviation, Stored::Decimals4, Csv::Decimals4},
    {"longitudinal_deviation", QT_TRANSLATE_NOOP("SurveyColumns", "longi deviation"), &SurveyPoint::longitudinalDeviation, Stored::Decimals4, Csv::Decimals4},
    {"rms", QT_TRANSLATE_NOOP("SurveyColumns", "rms"), &SurveyPoint::rms, Stored::Decimals4, Csv::Decimals4},
    {"surveyor", QT_TRANSLATE_NOOP("SurveyColumns", "surveyor"), &SurveyPoint::surveyor, Stored::Text, Csv::Text},
    {"remarks", QT_TRANSLATE_NOOP("SurveyColumns", "remarks"), &SurveyPoint::remarks, Stored::Text, Csv::Text},
    {"obstacle", QT_TRANSLATE_NOOP("SurveyColumns", "obstacle"), &SurveyPoint::obstacle, Stored::Text, Csv::Text},
    {"photo_path", QT_TRANSLATE_NOOP("SurveyColumns", "photo"), &SurveyPoint::photoPath, Stored::Text, Csv::Text},
    {"is_resurvey", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey"), &SurveyPoint::isResurvey, Stored::Integer, Csv::Integer, 0, kIsWrittenOnly}, // found by its own check
    {"resurvey_x_diff", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey x diff"), &SurveyPoint::resurveyXDiff, Stored::Decimals4, Csv::Decimals4},
    {"resurvey_y_diff", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey y diff"), &SurveyPoint::resurveyYDiff, Stored::Decimals4, Csv::Decimals4},
    {"resurvey_h_diff", QT_TRANSLATE_NOOP("SurveyColumns", "resurvey h diff"), &SurveyPoint::resurveyHDiff, Stored::Decimals4, Csv::Decimals4},
    {"sea_height", QT_TRANSLATE_NOOP("SurveyColumns", "sea height"), &SurveyPoint::seaHeight, Stored::None, Csv::Decimals4, 0, kIsWrittenOnly}, // follows from the position
    {"age_of_diff", QT_TRANSLATE_NOOP("SurveyColumns", "age of diff"), &SurveyPoint::ageOfDiff, Stored::SixDigitsReadWhole, Csv::SixDigitsReadWhole, 1},
    {"sat_detail", QT_TRANSLATE_NOOP("SurveyColumns", "sat detail"), &SurveyPoint::satDetail, Stored::Text, Csv::Text, 1},
    {"start_time", QT_TRANSLATE_NOOP("SurveyColumns", "start time"), &SurveyPoint::startTime, Stored::LongInteger, Csv::Time, 3},
    {"end_time", QT_TRANSLATE_NOOP("SurveyColumns", "end time"), &SurveyPoint::endTime, Stored::LongInteger, Csv::Time, 3},
    {"raw_offset", QT_TRANSLATE_NOOP("SurveyColumns", "raw offset"), &SurveyPoint::rawOffset, Stored::LongInteger, Csv::WholePart, 3},
    {"base_station_id", QT_TRANSLATE_NOOP("SurveyColumns", "base_station_id"), &SurveyPoint::baseStationId, Stored::Text, Csv::Text, 2},
});
// clang-format on

/// A member of the type that a form is for.
constexpr Member exampleOf(Csv form)
{
    switch (form) {
    case Csv::Text:
    case Csv::PointNumber:
        return &SurveyPoint::remarks;
    case Csv::Angle:
    case Csv::Decimals4:
    case Csv::Decimals6:
    case Csv::SixDigitsReadWhole:
        return &SurveyPoint::north;
    case Csv::WholePart:
    case Csv::Time:
        return &SurveyPoint::dateTime;
    default:
        return &SurveyPoint::epochNumber;
    }
}

constexpr Member exampleOf(Stored form)
{
    switch (form) {
    case Stored::Text:
    case Stored::PointNumber:
        return &SurveyPoint::remarks;
    case Stored::Integer:
        return &SurveyPoint::epochNumber;
    case Stored::LongInteger:
        return &SurveyPoint::dateTime;
    default:
        return &SurveyPoint::north;
    }
}

constexpr bool fits(const SurveyColumn& column)
{
    const std::size_t type = column.member.index();
    return type == exampleOf(column.csv).index() &&
           (column.stored == Stored::None || type == exampleOf(column.stored).index());
}

static_assert(std::all_of(kColumns.begin(), kColumns.end(), fits),
              "a form is for another type of member");
static_assert(kColumns.size() <= RecordTexts::kMostColumns);

} // namespace

std::span<const SurveyColumn> surveyColumns()
{
    return kColumns;
}

QStringList surveyCaptions(const Language& language)
{
    QStringList captions;
    for (const SurveyColumn& column : kColumns)
        captions << language.text("SurveyColumns", column.caption);
    return captions;
}

const SurveyColumn* surveyColumnOf(const QString& caption)
{
    const int index = surveyCaptions().indexOf(caption);
    return index < 0 ? nullptr : &kColumns[static_cast<std::size_t>(index)];
}
