#pragma once

class Outcome;
struct CliArguments;

/// "add-overlay PROJECT FILE ...": lays images over those that the project has already, the last on
/// top, and saves it. An image that cannot be shown leaves the project alone.
Outcome addOverlay(const CliArguments& arguments);
