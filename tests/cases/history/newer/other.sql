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
create table ProjectHistory (id INTEGER PRIMARY KEY, form INTEGER, what TEXT);
insert into ProjectHistory values (1, 3, 'kept');
