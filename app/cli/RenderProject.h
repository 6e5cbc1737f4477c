#pragma once

class Outcome;
struct CliArguments;

/// "render PROJECT design|survey FILE": paints the map at its whole extent into a picture, over
/// the images and the base map of the options.
Outcome renderProject(const CliArguments& arguments);
