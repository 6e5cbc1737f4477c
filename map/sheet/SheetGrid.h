#pragma once

#include <QString>

#include <vector>

struct SheetLayout;
struct SheetSetup;

/// Lines of the project's grid on a map, at round coordinates.
struct SheetGrid
{
    struct Line
    {
        double place; ///< pixels from the map's left, or upper, edge
        QString label;
    };

    SheetGrid(const SheetLayout& layout, const SheetSetup& setup);

    std::vector<Line> eastings;  ///< from left to right
    std::vector<Line> northings; ///< from top to bottom
};
