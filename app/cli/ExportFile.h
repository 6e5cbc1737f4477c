#pragma once

class Outcome;
struct CliArguments;

/// "export PROJECT KIND FILE": writes lines of the project into a file. The project stays as it is.
Outcome exportFile(const CliArguments& arguments);
