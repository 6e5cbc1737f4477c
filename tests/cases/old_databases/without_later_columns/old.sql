-- The tables of the earliest version: results end with "resurvey_h_diff".
create table SurveyLineItem (line_num TEXT, point_num TEXT, north TEXT, east TEXT, elevation TEXT,
    azimuth TEXT, type INTEGER, status INTEGER);
create table ExplorationResultItem (line_num TEXT, point_num TEXT, point_mark INTEGER,
    latitude TEXT, longitude TEXT, altitude TEXT, north TEXT, east TEXT, elevation TEXT,
    antenna_height TEXT, horizontal_accuracy TEXT, vertical_accuracy TEXT,
    satellite_number INTEGER, pdop TEXT, hdop TEXT, vdop TEXT, epoch_number INTEGER,
    reference_north TEXT, reference_east TEXT, reference_longitude TEXT, reference_latitude TEXT,
    reference_altitude TEXT, reference_distance TEXT, date_time INTEGER, measure_mode INTEGER,
    solution_type INTEGER, instrument_type TEXT, instrument_serial_number TEXT,
    quality_standard INTEGER, design_north TEXT, design_east TEXT, design_elevation TEXT,
    transversal_deviation TEXT, longitudinal_deviation TEXT, rms TEXT, surveyor TEXT, remarks TEXT,
    obstacle TEXT, photo_path TEXT, is_resurvey INTEGER, resurvey_x_diff TEXT,
    resurvey_y_diff TEXT, resurvey_h_diff TEXT);
create table CoordinateSystemItem (ellipsoid_name TEXT, ellipsoid_a TEXT, ellipsoid_f TEXT,
    project_type TEXT, axis_direction TEXT, org_lon TEXT, org_lat TEXT, false_east TEXT,
    false_north TEXT, factor TEXT, project_height TEXT, cutting_radius TEXT, parallel_1_lat TEXT,
    parallel_2_lat TEXT, p_r TEXT, lon1 TEXT, lon2 TEXT, lat1 TEXT, lat2 TEXT, _7type TEXT,
    _7dx TEXT, _7dy TEXT, _7dz TEXT, _7rx TEXT, _7ry TEXT, _7rz TEXT, _7ppm TEXT, geoid_type TEXT,
    geoid_valid TEXT, geoid_name TEXT, geoid_file TEXT, geoid_distance TEXT, geoid_ellipsoid TEXT,
    geoid_custom_file TEXT, _4valid TEXT, _4dx TEXT, _4dy TEXT, _4r TEXT, _4s TEXT, _4x0 TEXT,
    _4y0 TEXT, correct_valid TEXT, correct_dx TEXT, correct_dy TEXT, correct_dh TEXT,
    fit_valid TEXT, fit_a0 TEXT, fit_a1 TEXT, fit_a2 TEXT, fit_a3 TEXT, fit_a4 TEXT, fit_a5 TEXT,
    fit_x0 TEXT, fit_y0 TEXT, ver_valid TEXT, ver_mode TEXT, ver_x_slope TEXT, ver_y_slope TEXT,
    ver_h TEXT, ver_x0 TEXT, ver_y0 TEXT, coord_param_id TEXT);

insert into SurveyLineItem values
    ('1001', '10015001', '4400000.1234', '500000.5000', '30.0000', '45.000000', 1, 1),
    ('1001', '10015002', '4400010.1234', '500010.5000', '30.5000', '45.000000', 0, 0),
    ('测线', '7', '1', '2', '3', '4', 1, 0);
insert into ExplorationResultItem (line_num, point_num, point_mark, latitude, north, date_time,
    measure_mode, solution_type, remarks) values
    ('1001', '10015001', 1, '39.73000000', '4400000.1300', 1700000000123, 0, 4, '石头, "rock"'),
    ('1001', '10015001F', 1, '39.73000000', '4400000.1400', 1700000001000, 1, 5, 'resurvey'),
    ('1001', 'C10015001', 0, null, '1', 0, 0, 1, 'first'),
    ('1001', 'C10015001', 0, null, '2', 0, 0, 1, 'second'),
    ('', '8', 0, '0x10', '3.25m', -1, 'x', 99, 'no line');
insert into CoordinateSystemItem (ellipsoid_name, ellipsoid_a, ellipsoid_f, project_type, org_lon,
    false_east, factor, coord_param_id) values
    ('own', '6378137', '298.257223563', '1', '117', '500000', '1', 'older system');
