create table SurveyLineItem (line_num TEXT, point_num TEXT, north TEXT, east TEXT, elevation TEXT,
    azimuth TEXT, type INTEGER, status INTEGER);
create table ExplorationResultItem (line_num TEXT, point_num TEXT, point_mark INTEGER, latitude
    TEXT, longitude TEXT, altitude TEXT, north TEXT, east TEXT, elevation TEXT, antenna_height
    TEXT, horizontal_accuracy TEXT, vertical_accuracy TEXT, satellite_number INTEGER, pdop TEXT,
    hdop TEXT, vdop TEXT, epoch_number INTEGER, reference_north TEXT, reference_east TEXT,
    reference_longitude TEXT, reference_latitude TEXT, reference_altitude TEXT, reference_distance
    TEXT, date_time INTEGER, measure_mode INTEGER, solution_type INTEGER, instrument_type TEXT,
    instrument_serial_number TEXT, quality_standard INTEGER, design_north TEXT, design_east TEXT,
    design_elevation TEXT, transversal_deviation TEXT, longitudinal_deviation TEXT, rms TEXT,
    surveyor TEXT, remarks TEXT, obstacle TEXT, photo_path TEXT, is_resurvey INTEGER,
    resurvey_x_diff TEXT, resurvey_y_diff TEXT, resurvey_h_diff TEXT, age_of_diff INTEGER,
    sat_detail TEXT, start_time INTEGER, end_time INTEGER, raw_offset INTEGER, base_station_id
    TEXT);
create table CoordinateSystemItem (coord_param_id TEXT);
insert into ExplorationResultItem (line_num, point_num, remarks) values ('1', '7', 'first');

create table ProjectHistory (id INTEGER PRIMARY KEY, form INTEGER, time TEXT, person TEXT,
    machine TEXT, kind TEXT, state TEXT, file TEXT, points INTEGER, reason TEXT,
    design_columns TEXT, result_columns TEXT, design_rows BLOB, result_rows BLOB, later TEXT);
create table ProjectHistoryItem (action INTEGER, number INTEGER, data TEXT, change TEXT,
    line_num TEXT, point_num TEXT, field TEXT, old TEXT, new TEXT, later TEXT,
    PRIMARY KEY (action, number));
insert into ProjectHistory (id, form, time, person, machine, kind, points, later)
    values (1, 1, '2026-05-31T22:10:05.000Z', 'Li', 'office', 'tilt', 1, 'x');
insert into ProjectHistoryItem (action, number, data, change, line_num, point_num, field, old, new)
    values (1, 0, 'results', 'changed', '1', '7', 'remarks', '一', 'first'),
           (1, 1, 'tracks', 'changed', '1', '7', 'width', '3', '4');
insert into ProjectHistory (id, form, kind, later) values (9, 2, 'merge', 'kept');
