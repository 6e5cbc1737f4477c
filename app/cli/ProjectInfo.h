#pragma once

struct CliArguments;
struct CliResult;

/// "info PROJECT": prints what is in a project, a "key: value" line each. The keys are not
/// translated: they are read by scripts.
[[nodiscard]] CliResult printProjectInfo(const CliArguments& arguments);
