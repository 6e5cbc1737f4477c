#pragma once

class Outcome;
struct CliArguments;

/// "report PROJECT REPORT FILE.xlsx": writes a workbook. The project stays as it is.
Outcome writeReport(const CliArguments& arguments);
