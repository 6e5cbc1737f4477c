create table SurveyLineItem (line_num TEXT, point_num TEXT);
create table CoordinateSystemItem (coord_param_id TEXT);
