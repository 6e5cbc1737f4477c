#pragma once

struct CliArguments;
struct CliResult;

/// "export PROJECT KIND FILE": writes lines of the project into a file. The project stays as it is.
[[nodiscard]] CliResult exportFile(const CliArguments& arguments);
