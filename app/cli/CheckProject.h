#pragma once

class Outcome;
struct CliArguments;

/// "check PROJECT CHECK [--out FILE]": runs a check of quality/CheckKinds.h, saves its verdicts and
/// prints its result as CSV for scripts; into a file, and then what it found in a sentence.
Outcome checkProject(const CliArguments& arguments);
