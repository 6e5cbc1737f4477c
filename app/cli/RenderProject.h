#pragma once

struct CliArguments;
struct CliResult;

/// "render PROJECT design|survey FILE": paints the map at its whole extent into a picture.
[[nodiscard]] CliResult renderProject(const CliArguments& arguments);
