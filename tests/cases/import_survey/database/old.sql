-- An older program's: columns that were added later are missing, others stand in another order, and
-- results lack their number.
create table ExplorationResultItem (POINT_NUM TEXT, north TEXT, line_num TEXT, remarks TEXT);
create table CoordinateSystemItem (coord_param_id TEXT);
insert into ExplorationResultItem values ('5', '1.5', 'L1', cast(x'B2E2' as text)),
    ('', '2', 'L1', 'no number'), ('6', '3', '', ''), ('5', '4.5', 'L1', cast(x'B2E2C1BF' as text));
