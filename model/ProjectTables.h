#pragma once

#include <string>
#include <vector>

// The tables of a project's database, as they follow from SurveyColumns, DesignRecord and
// CoordinateRecord.

/// A column as "alter table" wants it.
struct TableColumn
{
    std::string name;
    std::string type;
};

/// The SQL statements that make the database of a new project.
[[nodiscard]] std::string projectTables();

/// The columns that survey tables of earlier versions may lack, the oldest version's first.
[[nodiscard]] std::vector<TableColumn> laterSurveyColumns();
