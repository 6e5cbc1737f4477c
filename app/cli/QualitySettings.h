#pragma once

class Outcome;
struct CliArguments;

/// "set-quality PROJECT key=value ...": changes quality parameters and saves the project.
Outcome setQuality(const CliArguments& arguments);

/// "list-quality PROJECT": prints all quality parameters, a "key=value" line each; the default
/// value for those that the project does not have.
Outcome listQuality(const CliArguments& arguments);
