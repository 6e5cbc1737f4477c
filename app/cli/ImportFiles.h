#pragma once

class Outcome;
struct CliArguments;

/// "import-design PROJECT FILE": adds the design points of a CSV file, saves the project, and
/// prints what became of the lines. Fails, and leaves the project alone, when the file has no
/// point.
Outcome importDesign(const CliArguments& arguments);

/// "import-survey PROJECT FILE": the same for survey results, of a CSV file or of another project's
/// database.
Outcome importSurvey(const CliArguments& arguments);
