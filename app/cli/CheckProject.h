#pragma once

class Outcome;
struct CliArguments;

/// "check PROJECT KIND [--out FILE]": runs a check, saves its verdicts and prints the rows of its
/// result as CSV, header first.
Outcome checkProject(const CliArguments& arguments);
