-- Columns in another order, some missing, some of another program.
create table ExplorationResultItem (mood TEXT, elevation TEXT, POINT_NUM TEXT, line_num TEXT,
    latitude TEXT, longitude TEXT, altitude TEXT, north REAL, east TEXT);
create table CoordinateSystemItem (coord_param_id TEXT);
insert into ExplorationResultItem values
    ('good', '10', '1', 'L1', '0', '117', '10', 0, '499999.5'),
    ('good', '10', '', 'L1', '0', '117', '10', 0, '0'),
    ('bad', '10', '2', '', '0', '117', '10', 0, '0'),
    (null, '10', 'C00010001', 'L1', '0', '117', '10', 0, '500000'),
    (null, 'x', 'C00010001', 'L1', '0', '117', '10', 0, '500000');
