#pragma once

class Outcome;
struct CliArguments;

/// "render PROJECT design|survey FILE": paints the map at its whole extent into a picture, over
/// the images and the base map of the options, and the results in the colours of "--color-by",
/// with their legend.
Outcome renderProject(const CliArguments& arguments);
