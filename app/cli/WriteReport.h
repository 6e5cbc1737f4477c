#pragma once

class Outcome;
struct CliArguments;

/// "report PROJECT REPORT FILE [--day DAY]": writes a report. The project stays as it is.
Outcome writeReport(const CliArguments& arguments);
