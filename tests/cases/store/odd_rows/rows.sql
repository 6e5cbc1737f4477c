-- Rows as other programs and other hands may leave them.
create table SurveyLineItem (line_num TEXT, point_num TEXT, north TEXT, type INTEGER);
create table ExplorationResultItem (line_num TEXT, point_num TEXT, solution_type INTEGER,
    remarks TEXT);
create table CoordinateSystemItem (ellipsoid_a TEXT, org_lon TEXT, coord_param_id TEXT);

insert into SurveyLineItem values
    ('1', '7', '1.5', 1), ('1', '8', '2', 0), ('1', '7', 'abc', 'x'), ('1', '8', '3.25m', 1.9),
    ('1', '9', null, null), ('1', 'a
b', '1', 0), ('1', 'a,b', '1', 0);
insert into ExplorationResultItem values
    ('', '5', 4, 'old'), ('', '5', 'x', 'new'), (null, '6', 1, ''), ('', 'C12345678', 1, 'a'),
    ('1234', 'C12345678', 1, 'b'), ('1234', '9', 1, ''), ('1234', null, 1, 'no number');
insert into CoordinateSystemItem values ('1', '7', 'first'), ('2', null, 'second');
