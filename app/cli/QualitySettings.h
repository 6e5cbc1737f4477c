#pragma once

struct CliArguments;
struct CliResult;

/// "set-quality PROJECT key=value ...": changes quality parameters and saves the project.
[[nodiscard]] CliResult setQuality(const CliArguments& arguments);

/// "list-quality PROJECT": prints all quality parameters, a "key=value" line each, with what counts
/// for those that the project does not name.
[[nodiscard]] CliResult listQuality(const CliArguments& arguments);
