#pragma once

class Outcome;
struct CliArguments;

/// "problems PROJECT [--kind K,...] [--out FILE] [--measure-again FILE]": prints all open problems
/// of a project as CSV for scripts; into a file, and then how many there are of each kind. Writes
/// the points that a crew has to measure again. The project stays as it is, so that it may be open
/// elsewhere.
Outcome listProblems(const CliArguments& arguments);
