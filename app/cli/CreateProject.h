#pragma once

struct CliArguments;
struct CliResult;

/// "new DIR NAME": makes a project with the coordinate system of "--epsg" or "--set", and prints
/// the path of its project file.
[[nodiscard]] CliResult createProject(const CliArguments& arguments);
