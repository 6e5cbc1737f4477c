#pragma once

#include "map/sheet/MapDrawing.h"
#include "map/sheet/SheetSetup.h"

#include <atomic>
#include <functional>
#include <memory>

class MapGround;
class QPainter;
struct SheetLayout;

/// A map on paper. Whoever paints it on another thread leaves it alone meanwhile.
struct MapSheet
{
    SheetSetup setup;
    MapDrawing drawing;
    std::shared_ptr<MapGround> ground; ///< never null; may be empty
};

/// A long operation on a sheet, seen from outside, also from another thread.
struct SheetWatch
{
    std::atomic<bool> isCancelled = false;
    std::function<void(double)> report = [](double) {}; ///< percent; called by who does the work
};

/// What a sheet shows: the data, or without data the ground.
/// \returns null when there is nothing to show
[[nodiscard]] QRectF extentOf(const MapDrawing& drawing, const MapGround& ground);

/// The name of a coordinate system on a sheet: its name in the register, or its projection and
/// ellipsoid; with the unit when that is not the metre.
[[nodiscard]] QString systemNameOf(const IDictionary& system);

/// Fills in what a sheet says about the open project: its name, its coordinate system and unit,
/// today, and the area of its data. A sheet without a title is called after the project.
void nameSheet(MapSheet& sheet, const QString& project, const IDictionary& system);

/// Paints a whole sheet.
/// \param painter in dots of `setup.dpi`, on white paper; also of a printer or a PDF page
/// \returns false when it was cancelled, or when there is not enough memory for a part of the map
bool paintSheet(QPainter& painter, const MapSheet& sheet, const SheetLayout& layout,
                SheetWatch& watch);
