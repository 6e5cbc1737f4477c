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

insert into SurveyLineItem values
    ('1001', '10011001', '4400000.0000', '500000.0000', '12.5000', '0.000000', 1, 0),
    ('1001', '10011002', '4400020.0000', '500000.0000', '12.5000', '0.000000', 1, 0),
    ('1001', '10011003', '4400040.0000', '500000.0000', '12.5000', '0.000000', 1, 0);
insert into ExplorationResultItem (line_num, point_num, point_mark, north, east, elevation,
    antenna_height, pdop, hdop, vdop, satellite_number, solution_type, horizontal_accuracy,
    vertical_accuracy, design_north, design_east, design_elevation, remarks, date_time)
    values ('1001', '10011001', 1, '4400005.2130', '500000.0000', '12.5000', '2.0000', '1.5000',
    '1.0000', '1.0000', 12, 4, '0.0200', '0.0300', '4400000.0000', '500000.0000', '12.5000',
    'behind the house 房后', 1700000000123);

-- The fingerprints were reckoned by hand: the first bytes of the SHA-1 of the stored texts, each
-- with a 0 behind it.
create table ProblemAcceptance (form INTEGER, kind TEXT, is_design INTEGER, line_num TEXT,
    point_num TEXT, fingerprint TEXT, reason TEXT, person TEXT, time TEXT);
insert into ProblemAcceptance values
    (1, 'missing', 1, '1001', '10011002', '146af619238eeb4f', 'a lake', 'Li', '2026-05-31T22:10:05.000Z'),
    (1, 'too_far', 0, '1001', '10011001', '2972e9f98130a349', 'as agreed', 'Li', '2026-05-31T22:10:05.000Z');
