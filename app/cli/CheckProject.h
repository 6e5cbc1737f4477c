#pragma once

struct CliArguments;
struct CliResult;

/// "check PROJECT CHECK [--out FILE]": runs a check of quality/CheckKinds.h, saves its verdicts and
/// prints its result as CSV, with captions in English.
[[nodiscard]] CliResult checkProject(const CliArguments& arguments);
