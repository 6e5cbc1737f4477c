#pragma once

class Outcome;
struct CliArguments;

/// "check PROJECT CHECK [--out FILE]": runs a check of quality/CheckKinds.h, saves its verdicts and
/// prints its result as CSV, with captions in English.
Outcome checkProject(const CliArguments& arguments);
