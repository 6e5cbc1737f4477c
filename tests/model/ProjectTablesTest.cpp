#include "model/ProjectTables.h"

#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/SurveyRecord.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

/// The one answer of the template database.
std::string answer(const std::string& query)
{
    std::string text;
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(TEMPLATE_DATABASE, &database, SQLITE_OPEN_READONLY, nullptr), 0);
    sqlite3_exec(
        database, query.c_str(),
        [](void* result, int, char** values, char**) {
            *static_cast<std::string*>(result) = values[0];
            return 0;
        },
        &text, nullptr);
    sqlite3_close(database);
    return text;
}

/// How SQLite keeps the statement of a table; a new line with its indent is one "~".
std::string schema(const std::string& table)
{
    return answer("select replace(sql, char(10) || '    ', '~') from sqlite_master where name='" +
                  table + "'");
}

std::string columns(const std::string& table)
{
    return answer("select group_concat(name) from pragma_table_info('" + table + "')");
}

} // namespace

// Databases of every version are read by this text, and every version searches it for columns.
TEST(ProjectTables, KeepTheirTextInTheDatabase)
{
    EXPECT_EQ(schema("SurveyLineItem"),
              "CREATE TABLE SurveyLineItem (~line_num TEXT,~point_num TEXT,~north TEXT,~east TEXT,"
              "~elevation TEXT,~azimuth TEXT,~type INTEGER,~status INTEGER\n)");
    const std::string survey =
        "CREATE TABLE ExplorationResultItem (~line_num TEXT,~point_num TEXT,~point_mark INTEGER,"
        "~latitude TEXT,~longitude TEXT,~altitude TEXT,~north TEXT,~east TEXT,~elevation TEXT,"
        "~antenna_height TEXT,~horizontal_accuracy TEXT,~vertical_accuracy TEXT,"
        "~satellite_number INTEGER,~pdop TEXT,~hdop TEXT,~vdop TEXT,~epoch_number INTEGER,"
        "~reference_north TEXT,~reference_east TEXT,~reference_longitude TEXT,"
        "~reference_latitude TEXT,~reference_altitude TEXT,~reference_distance TEXT,"
        "~date_time INTEGER,~measure_mode INTEGER,~solution_type INTEGER,~instrument_type TEXT,"
        "~instrument_serial_number TEXT,~quality_standard INTEGER,~design_north TEXT,"
        "~design_east TEXT,~design_elevation TEXT,~transversal_deviation TEXT,"
        "~longitudinal_deviation TEXT,~rms TEXT,~surveyor TEXT,~remarks TEXT,~obstacle TEXT,"
        "~photo_path TEXT,~is_resurvey INTEGER,~resurvey_x_diff TEXT,~resurvey_y_diff TEXT,"
        "~resurvey_h_diff TEXT,~age_of_diff INTEGER,~sat_detail TEXT,~start_time INTEGER,"
        "~end_time INTEGER,~raw_offset INTEGER,~base_station_id TEXT";
    EXPECT_EQ(schema("ExplorationResultItem").substr(0, survey.size()), survey);
    const std::string coordinates =
        "CREATE TABLE CoordinateSystemItem (~ellipsoid_name TEXT,~ellipsoid_a TEXT,";
    EXPECT_EQ(schema("CoordinateSystemItem").substr(0, coordinates.size()), coordinates);
}

TEST(ProjectTables, HoldWhatRecordsWrite)
{
    EXPECT_EQ(columns(DesignRecord::kTable), DesignRecord::columns());
    EXPECT_EQ(columns(SurveyRecord::kTable), SurveyRecord::columns());
    EXPECT_EQ(columns(CoordinateRecord::kTable),
              std::string(CoordinateRecord::kKeys) + ',' + CoordinateRecord::kId);
    RecordTexts texts;
    DesignRecord::write({}, texts);
    EXPECT_EQ(texts.size(), DesignRecord::kColumns.size());
}

TEST(ProjectTables, OfEarlierVersionsGetTheirColumnsInOrder)
{
    std::string added;
    for (const auto& [name, type] : laterSurveyColumns())
        added += name + ' ' + type + '\n';
    const std::string known = "age_of_diff INTEGER\nsat_detail TEXT\nbase_station_id TEXT\n"
                              "start_time REAL\nend_time REAL\nraw_offset REAL\n";
    EXPECT_EQ(added.substr(0, known.size()), known);
}
