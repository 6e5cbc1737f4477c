#pragma once

class Outcome;
struct CliArguments;

/// "info PROJECT": prints what is in a project, a "key: value" line each. The keys are not
/// translated: they are read by scripts.
Outcome printProjectInfo(const CliArguments& arguments);
