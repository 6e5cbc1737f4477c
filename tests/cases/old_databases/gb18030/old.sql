-- Texts as a Chinese Windows wrote them: GB18030, here in hexadecimal digits.
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
    resurvey_y_diff TEXT, resurvey_h_diff TEXT, age_of_diff INTEGER, sat_detail TEXT, start_time INTEGER,
    end_time INTEGER, raw_offset INTEGER, base_station_id TEXT);
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
    -- 测线, 一号
    (cast(x'B2E2CFDF' as text), cast(x'D2BBBAC5' as text), '1', '2', '3', '4', 1, 1),
    ('L1', '1', '1', '2', '3', '4', 0, 0);
insert into ExplorationResultItem (line_num, point_num, surveyor, remarks) values
    -- 测线, 一号, 张三; the remark is UTF-8
    (cast(x'B2E2CFDF' as text), cast(x'D2BBBAC5' as text), cast(x'D5C5C8FD' as text), '石头'),
    -- "A" and a byte that begins no character of either code page: that of Latin 1
    ('L1', '1', cast(x'41FF' as text), 'plain');
insert into CoordinateSystemItem (ellipsoid_name, coord_param_id) values
    -- 北京
    (cast(x'B1B1BEA9' as text), 'UTF-8 系统');
