#pragma once

#include <QString>

namespace lum {

/// What the address of a base map means.
struct BaseMapAddress
{
    enum class Form
    {
        File,
        Tiles,
        Wms,
        Wmts
    };

    Form form = Form::File;
    QString place; ///< the path, or the web address as GDAL's driver of this form takes it
    QString host;  ///< the machine that is asked; empty for a file
    QString fault; ///< why it cannot be used, a sentence; the rest is without meaning then

    bool countsFromSouth = false; ///< Tiles: row 0 is the southernmost

    QString layer; ///< Wms and Wmts
    QString style;
    QString system; ///< Wms: as the service calls it, "EPSG:3857"
    bool isGeographic = false;
    bool isNorthFirst = false; ///< Wms: the box is given as south, west, north, east
    QString version;
    QString format;
    QString transparent;
    QString matrixSet; ///< Wmts; empty leaves the choice to the driver
};

[[nodiscard]] BaseMapAddress readBaseMapAddress(const QString& text);

} // namespace lum
