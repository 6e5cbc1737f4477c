#pragma once

#include <QString>

namespace lum {

enum class BaseMapKind
{
    Road,
    Satellite,
    Terrain
};

/// A background for the map that a service delivers in tiles, or that lies in a file.
///
/// The address is one of
/// - a web address with "{z}", "{x}" and "{y}", or "{-y}" when rows are counted from the south;
/// also
///   with the names of WMTS, "{TileMatrix}", "{TileCol}" and "{TileRow}". "{s}" becomes "a",
///   "{switch:a,b,c}" its first choice. Tiles are those of the world in Web Mercator;
/// - a web address of WMS ("...?SERVICE=WMS&VERSION=1.1.1&LAYERS=...&SRS=EPSG:3857&FORMAT=..."), in
///   Web Mercator or in a geographic system. "{bbox}", "{width}" and the like may stand in it;
/// - the web address of the capabilities of WMTS, as "WMTS:https://...,layer=...";
/// - the path of a file: MBTiles, or any other raster that GDAL reads.
struct BaseMap
{
    QString name; ///< as the user reads it; unique in a list
    BaseMapKind kind = BaseMapKind::Road;
    QString address;
    int leastZoom = 0; ///< both limits are without meaning for files and for capabilities
    int greatestZoom = 18;
    int tileSize = 256;       ///< pixels, on a side
    QString attribution;      ///< must be readable on each picture of the map
    bool mayKeepTiles = true; ///< whether tiles may be kept on this machine's disk

    friend bool operator==(const BaseMap&, const BaseMap&) = default;
};

constexpr int kGreatestZoom = 22; ///< of tiles of 256 pixels; one less when they are twice as large

/// How tiles are fetched, alike for all base maps of a program.
struct TileFetching
{
    QString agent;       ///< User-Agent: name, version and home page of the program
    QString cacheFolder; ///< for tiles that may be kept; it may not exist yet. Empty keeps none.
    qint64 cacheLimitBytes = qint64(256) << 20;
    int timeoutS = 10; ///< for one tile
};

/// Whether the base map lies on this machine, so that nothing is fetched.
[[nodiscard]] bool isFile(const BaseMap& map);

/// The machine that is asked, "tiles.example.org"; empty for a file.
[[nodiscard]] QString hostOf(const BaseMap& map);

/// What is wrong with it, as a sentence for the user; empty when it can be used. Asks no service,
/// and looks whether a file is there.
[[nodiscard]] QString faultOf(const BaseMap& map);

/// The name by which GDAL opens it, a description in XML or a path. `map` has no fault.
[[nodiscard]] QString rasterNameOf(const BaseMap& map, const TileFetching& fetching);

} // namespace lum
