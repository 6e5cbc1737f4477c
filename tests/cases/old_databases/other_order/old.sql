-- As another program may have written them: columns in another order, columns and a table that
-- nobody here knows, and an index.
create table SurveyLineItem (status INTEGER, colour TEXT default 'red', point_num TEXT,
    type INTEGER, azimuth TEXT, elevation TEXT, east TEXT, north TEXT, line_num TEXT);
create table ExplorationResultItem (remarks TEXT, raw_offset INTEGER, end_time INTEGER,
    start_time INTEGER, base_station_id TEXT, sat_detail TEXT, age_of_diff INTEGER,
    resurvey_h_diff TEXT, resurvey_y_diff TEXT, resurvey_x_diff TEXT, is_resurvey INTEGER,
    photo_path TEXT, obstacle TEXT, surveyor TEXT, rms TEXT, longitudinal_deviation TEXT,
    transversal_deviation TEXT, design_elevation TEXT, design_east TEXT, design_north TEXT,
    quality_standard INTEGER, instrument_serial_number TEXT, instrument_type TEXT,
    solution_type INTEGER, measure_mode INTEGER, date_time INTEGER, reference_distance TEXT,
    reference_altitude TEXT, reference_latitude TEXT, reference_longitude TEXT,
    reference_east TEXT, reference_north TEXT, epoch_number INTEGER, vdop TEXT, hdop TEXT,
    pdop TEXT, satellite_number INTEGER, vertical_accuracy TEXT, horizontal_accuracy TEXT,
    antenna_height TEXT, elevation TEXT, east TEXT, north TEXT, altitude TEXT, longitude TEXT,
    latitude TEXT, point_mark INTEGER, point_num TEXT, weather TEXT, line_num TEXT);
create table CoordinateSystemItem (zone TEXT, coord_param_id TEXT, ellipsoid_a TEXT);
create table Notes (id INTEGER primary key, text TEXT);
create index ResultsByLine on ExplorationResultItem (line_num);

insert into SurveyLineItem values (1, 'blue', '7', 0, '4.5', '3', '2', '1', 'L1');
insert into ExplorationResultItem (line_num, point_num, north, east, remarks, raw_offset, weather)
    values ('L1', '7', '1.5', '2.5', 'stone', -8, 'rain');
insert into CoordinateSystemItem values ('50', 'earlier', '6378245'), ('51', 'own', '6378137');
insert into Notes (text) values ('keep me');
