create table ExplorationResultItem (line_num TEXT, point_num TEXT);
create table CoordinateSystemItem (ellipsoid_a TEXT, ellipsoid_f TEXT, project_type TEXT,
    org_lon TEXT, false_east TEXT, factor TEXT, geoid_valid TEXT, coord_param_id TEXT);
insert into ExplorationResultItem values ('L1', '2');
insert into CoordinateSystemItem values ('1', '2', '3', '4', '5', '6', '0', 'earlier'),
    ('6378137', '298.257', '1', '117', '500000.0000005', '1', '1', 'last');
