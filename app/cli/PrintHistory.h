#pragma once

class Outcome;
struct CliArguments;

/// "history PROJECT": prints the project's saved actions as CSV, the newest first. With a point it
/// prints what each of them has done to it. Names and captions are not translated: they are read by
/// scripts.
Outcome printHistory(const CliArguments& arguments);
