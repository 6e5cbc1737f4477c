#include "views/tables/SurveyTableColumns.h"

#include "model/SurveyColumns.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr const char* kBaseId = "base_station_id";
constexpr const char* kBaseIdCaption = QT_TRANSLATE_NOOP("SurveyTable", "base id");

constexpr auto kKeys = std::to_array<const char*>({
    "line_num",
    "point_num",
    "point_mark",
    kBaseId,
    "latitude",
    "longitude",
    "altitude",
    "north",
    "east",
    "elevation",
    "sea_height",
    "design_north",
    "design_east",
    "design_elevation",
    "antenna_height",
    "transversal_deviation",
    "longitudinal_deviation",
    "solution_type",
    "satellite_number",
    "rms",
    "horizontal_accuracy",
    "vertical_accuracy",
    "pdop",
    "hdop",
    "vdop",
    "epoch_number",
    "start_time",
    "end_time",
    "reference_north",
    "reference_east",
    "reference_longitude",
    "reference_latitude",
    "reference_altitude",
    "reference_distance",
    "instrument_type",
    "instrument_serial_number",
    "measure_mode",
    "surveyor",
    "remarks",
    "obstacle",
    "photo_path",
    "age_of_diff",
    "sat_detail",
});
static_assert(kKeys.size() == 43);

const SurveyColumn* find(std::string_view key)
{
    const auto columns = surveyColumns();
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const SurveyColumn& column) { return column.key == key; });
    return found == columns.end() ? nullptr : &*found;
}

} // namespace

const QStringList& surveyTableKeys()
{
    static const QStringList kAll = [] {
        QStringList keys;
        for (const char* key : kKeys)
            keys << QString::fromLatin1(key);
        return keys;
    }();
    return kAll;
}

QStringList surveyTableCaptions()
{
    QStringList captions;
    for (const char* key : kKeys)
        captions << (key == kBaseId
                         ? QCoreApplication::translate("SurveyTable", kBaseIdCaption)
                         : QCoreApplication::translate("SurveyColumns", find(key)->caption));
    return captions;
}

const SurveyColumn& surveyTableColumn(int column)
{
    static const auto kColumns = [] {
        std::array<const SurveyColumn*, kKeys.size()> columns{};
        std::transform(kKeys.begin(), kKeys.end(), columns.begin(), find);
        return columns;
    }();
    return *kColumns[static_cast<std::size_t>(column)];
}
