#include "lum_sdk/raster/BaseMap.h"

#include "lum_sdk/raster/BaseMapAddress.h"

#include <QCoreApplication>
#include <QXmlStreamWriter>

namespace lum {

namespace {

using Form = BaseMapAddress::Form;

/// GDAL counts the pixels of the whole world in 32 bits.
bool fitsWorld(const BaseMap& map, int tilesAcross)
{
    return (qint64(map.tileSize) * tilesAcross << map.greatestZoom) <= (qint64(1) << 30);
}

/// Writes elements of GDAL's descriptions.
class Description
{
public:
    explicit Description(const char* root) : m_xml(&m_text)
    {
        m_xml.writeStartElement(QLatin1String(root));
    }

    void start(const char* name) { m_xml.writeStartElement(QLatin1String(name)); }
    void attribute(const char* name, const char* value)
    {
        m_xml.writeAttribute(QLatin1String(name), QLatin1String(value));
    }
    void end() { m_xml.writeEndElement(); }
    void add(const char* name, const QString& value)
    {
        m_xml.writeTextElement(QLatin1String(name), value);
    }
    void add(const char* name, qint64 value) { add(name, QString::number(value)); }
    void addUnlessEmpty(const char* name, const QString& value)
    {
        if (!value.isEmpty())
            add(name, value);
    }
    [[nodiscard]] QString text()
    {
        m_xml.writeEndDocument();
        return m_text;
    }

private:
    QString m_text;
    QXmlStreamWriter m_xml;
};

/// The world in one tile, or in two beside each other in a geographic system, each halved on each
/// side from zoom to zoom.
void addWindow(Description& xml, const BaseMap& map, const BaseMapAddress& address)
{
    constexpr const char* kMercatorEdge = "20037508.342789244";
    const int across = address.isGeographic ? 2 : 1;
    const auto addEdge = [&](const char* name, bool isNegative, const char* degrees) {
        const QString edge = QLatin1String(address.isGeographic ? degrees : kMercatorEdge);
        xml.add(name, isNegative ? QLatin1Char('-') + edge : edge);
    };
    xml.start("DataWindow");
    addEdge("UpperLeftX", true, "180");
    addEdge("UpperLeftY", false, "90");
    addEdge("LowerRightX", false, "180");
    addEdge("LowerRightY", true, "90");
    xml.add("TileLevel", map.greatestZoom);
    xml.add("TileCountX", across);
    xml.add("TileCountY", 1);
    xml.add("YOrigin", QLatin1String(address.countsFromSouth ? "bottom" : "top"));
    xml.end();
    xml.add("OverviewCount", map.greatestZoom - map.leastZoom);
    xml.add("BlockSizeX", map.tileSize);
    xml.add("BlockSizeY", map.tileSize);
    xml.add("Projection", address.isGeographic ? address.system : QStringLiteral("EPSG:3857"));
}

void addService(Description& xml, const BaseMapAddress& address)
{
    xml.start("Service");
    xml.attribute("name", address.form == Form::Wms ? "WMS" : "TMS");
    xml.add("ServerUrl", address.place);
    if (address.form == Form::Wms) {
        xml.add("Version", address.version);
        xml.add(address.version >= QLatin1String("1.3") ? "CRS" : "SRS", address.system);
        xml.add("Layers", address.layer);
        xml.add("Styles", address.style);
        xml.add("ImageFormat", address.format);
        xml.addUnlessEmpty("Transparent", address.transparent);
        xml.add("BBoxOrder", QLatin1String(address.isNorthFirst ? "yxYX" : "xyXY"));
    }
    xml.end();
}

/// What the drivers share. A reader takes a tile at a time, so that one connection is enough for
/// it.
void addFetching(Description& xml, const BaseMap& map, const TileFetching& fetching)
{
    xml.add("BandsCount", 4);
    xml.add("MaxConnections", 1);
    xml.add("Timeout", fetching.timeoutS);
    xml.add("UserAgent", fetching.agent);
    if (!map.mayKeepTiles || fetching.cacheFolder.isEmpty())
        return;
    constexpr int kWeekS = 7 * 24 * 3600;
    xml.start("Cache");
    xml.add("Path", fetching.cacheFolder);
    xml.add("Unique", QStringLiteral("False"));
    xml.add("Expires", kWeekS);
    xml.add("CleanTimeout", 0); // `TileCache` keeps the limit
    xml.end();
}

} // namespace

bool isFile(const BaseMap& map)
{
    return readBaseMapAddress(map.address).form == Form::File;
}

QString hostOf(const BaseMap& map)
{
    return readBaseMapAddress(map.address).host;
}

QString faultOf(const BaseMap& map)
{
    if (map.name.trimmed().isEmpty())
        return QCoreApplication::translate("BaseMap", "A base map needs a name.");
    const BaseMapAddress address = readBaseMapAddress(map.address);
    if (!address.fault.isEmpty())
        return address.fault;
    if (map.attribution.trimmed().isEmpty())
        return QCoreApplication::translate("BaseMap",
                                           "A base map needs the text that tells whose map it is.");
    if (address.form == Form::File || address.form == Form::Wmts)
        return {};
    if (map.tileSize < 64 || map.tileSize > 2048)
        return QCoreApplication::translate(
                   "BaseMap", "Tiles of %1 pixels cannot be shown: 64 to 2048 are possible.")
            .arg(map.tileSize);
    if (map.leastZoom < 0 || map.leastZoom > map.greatestZoom || map.greatestZoom > kGreatestZoom)
        return QCoreApplication::translate(
                   "BaseMap", "The zoom limits %1 and %2 make no range within 0 to %3.")
            .arg(map.leastZoom)
            .arg(map.greatestZoom)
            .arg(kGreatestZoom);
    if (!fitsWorld(map, address.isGeographic ? 2 : 1))
        return QCoreApplication::translate(
                   "BaseMap", "The greatest zoom %1 is too large for tiles of %2 pixels.")
            .arg(map.greatestZoom)
            .arg(map.tileSize);
    return {};
}

QString rasterNameOf(const BaseMap& map, const TileFetching& fetching)
{
    const BaseMapAddress address = readBaseMapAddress(map.address);
    if (address.form == Form::File)
        return address.place;
    Description xml(address.form == Form::Wmts ? "GDAL_WMTS" : "GDAL_WMS");
    if (address.form == Form::Wmts) {
        xml.add("GetCapabilitiesUrl", address.place);
        xml.addUnlessEmpty("Layer", address.layer);
        xml.addUnlessEmpty("Style", address.style);
        xml.addUnlessEmpty("TileMatrixSet", address.matrixSet);
    } else {
        addService(xml, address);
        addWindow(xml, map, address);
    }
    addFetching(xml, map, fetching);
    return xml.text();
}

} // namespace lum
