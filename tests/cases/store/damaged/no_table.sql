create table SurveyLineItem (line_num TEXT, point_num TEXT, north TEXT, east TEXT,
    elevation TEXT, azimuth TEXT, type INTEGER, status INTEGER);
create table CoordinateSystemItem (coord_param_id TEXT);
insert into SurveyLineItem values ('L1', '1', '1', '2', '3', '4', 1, 0);
