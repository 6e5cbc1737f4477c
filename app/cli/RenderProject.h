#pragma once

class Outcome;
struct CliArguments;

/// "render PROJECT design|survey FILE": paints the map at its whole extent into a picture.
Outcome renderProject(const CliArguments& arguments);
