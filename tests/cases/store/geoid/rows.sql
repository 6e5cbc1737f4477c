-- A system with a geoid whose file is gone.
create table SurveyLineItem (line_num TEXT, point_num TEXT);
create table ExplorationResultItem (line_num TEXT, point_num TEXT, latitude TEXT, longitude TEXT,
    altitude TEXT, elevation TEXT);
create table CoordinateSystemItem (ellipsoid_a TEXT, ellipsoid_f TEXT, project_type TEXT,
    org_lon TEXT, geoid_valid TEXT, geoid_file TEXT, coord_param_id TEXT);

insert into ExplorationResultItem values
    ('1', '7', '40', '117', '100', '91.5'), ('1', '8', '40.1', '117', '101', '92.5');
insert into CoordinateSystemItem values
    ('6378137', '298.257223563', '1', '117', '1', '/no such folder/网格.gtx', 'own');
