#pragma once

class QPainter;
class QString;
struct MapSheet;
struct SheetLayout;

/// Draws all of a sheet but the picture of the map: grid, frame with coordinates, legend, scale
/// bar, north arrow, source of the ground, title and fields.
/// \param painter in pixels of 1/96 inch, see `SheetLayout`
void drawSheetFrame(QPainter& painter, const MapSheet& sheet, const SheetLayout& layout);
