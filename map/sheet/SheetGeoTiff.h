#pragma once

#include <QString>

struct MapSheet;
struct SheetLayout;
struct SheetWatch;

/// Writes the map of a sheet as a GeoTIFF, band after band.
struct GeoTiffResult
{
    QString fault;  ///< why it failed; empty when it is done, and when it was cancelled
    QString notice; ///< what the file cannot tell, a sentence
    bool isDone = false;
};

[[nodiscard]] GeoTiffResult writeGeoTiff(const MapSheet& sheet, const SheetLayout& layout,
                                         const QString& path, SheetWatch& watch);
