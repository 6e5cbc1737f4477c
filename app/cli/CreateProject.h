#pragma once

class Outcome;
struct CliArguments;

/// "new DIR NAME": makes a project with the coordinate system of "--epsg" or "--set", and prints
/// the path of its project file. Makes DIR and what is missing above it.
Outcome createProject(const CliArguments& arguments);
