#pragma once

struct CliArguments;
struct CliResult;

/// "import-design PROJECT FILE": adds the design points of a CSV file, saves the project, and
/// prints what became of the lines.
[[nodiscard]] CliResult importDesign(const CliArguments& arguments);

/// "import-survey PROJECT FILE": the same for survey results.
[[nodiscard]] CliResult importSurvey(const CliArguments& arguments);
