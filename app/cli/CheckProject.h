#pragma once

struct CliArguments;
struct CliResult;

/// "check PROJECT KIND [--out FILE]": runs a check, saves its verdicts and prints the rows of its
/// result as CSV, header first.
[[nodiscard]] CliResult checkProject(const CliArguments& arguments);
