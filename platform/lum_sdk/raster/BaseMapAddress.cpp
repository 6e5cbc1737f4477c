#include "lum_sdk/raster/BaseMapAddress.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>
#include <QUrlQuery>

#include <ogr_spatialref.h>

#include <utility>

namespace lum {

namespace {

using Form = BaseMapAddress::Form;

bool holds(const QString& text, const char* part)
{
    return text.contains(QLatin1String(part), Qt::CaseInsensitive);
}

/// "{s}" is one of several names of the same server; one is enough for two connections.
QString withServerChosen(QString text)
{
    static const QRegularExpression kChoice(QStringLiteral("\\{switch:([^,}]*)[^}]*\\}"));
    text.replace(QLatin1String("${"), QLatin1String("{"));
    text.replace(kChoice, QStringLiteral("\\1"));
    return text.replace(QLatin1String("{s}"), QLatin1String("a"));
}

/// Blanks and letters beyond ASCII have no place in a web address.
QString encoded(const QString& text)
{
    QByteArray result;
    for (const char byte : text.toUtf8()) {
        if (byte > ' ' && byte < '\x7f')
            result += byte;
        else
            result += '%' + QByteArray(1, byte).toHex().toUpper();
    }
    return QString::fromLatin1(result);
}

QString unknownPlaceholder(const QString& text)
{
    static const QRegularExpression kPlaceholder(QStringLiteral("(?<!\\$)\\{[^}]*\\}"));
    const QRegularExpressionMatch match = kPlaceholder.match(text);
    return match.hasMatch()
               ? QCoreApplication::translate(
                     "BaseMapAddress", "The address holds \"%1\", whose meaning is not known.")
                     .arg(match.captured())
               : QString();
}

void readTiles(const QString& text, BaseMapAddress& address)
{
    address.form = Form::Tiles;
    address.countsFromSouth = holds(text, "{-y}");
    address.place = text;
    const std::pair<const char*, const char*> names[] = {
        {"{z}", "${z}"},  {"{TileMatrix}", "${z}"}, {"{x}", "${x}"},      {"{TileCol}", "${x}"},
        {"{-y}", "${y}"}, {"{y}", "${y}"},          {"{TileRow}", "${y}"}};
    for (const auto& [name, drivers] : names)
        address.place.replace(QLatin1String(name), QLatin1String(drivers), Qt::CaseInsensitive);
    for (const char* needed : {"z", "x", "y"}) {
        if (!holds(address.place, (std::string("${") + needed + '}').c_str()))
            address.fault = QCoreApplication::translate(
                                "BaseMapAddress",
                                "The address has no \"{%1}\": it must say where zoom {z}, column "
                                "{x} and row {y} of a tile stand.")
                                .arg(QLatin1String(needed));
    }
    if (address.fault.isEmpty())
        address.fault = unknownPlaceholder(address.place);
}

/// Takes an item out of the query, whatever the case of its name.
QString take(QUrlQuery& query, const char* name)
{
    QString value;
    for (const auto& [key, text] : query.queryItems(QUrl::FullyDecoded)) {
        if (key.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            value = text;
            query.removeQueryItem(key);
        }
    }
    return value;
}

/// Fills in what the service's system means for the box of a request.
void readSystem(BaseMapAddress& address)
{
    const bool isMercator = holds(address.system, ":3857") || holds(address.system, ":900913") ||
                            holds(address.system, ":102100");
    OGRSpatialReference system;
    const bool isKnown =
        isMercator || system.SetFromUserInput(address.system.toUtf8()) == OGRERR_NONE;
    address.isGeographic = isKnown && !isMercator && system.IsGeographic();
    address.isNorthFirst = address.isGeographic && address.version >= QLatin1String("1.3") &&
                           system.EPSGTreatsAsLatLong();
    if (!isMercator && !address.isGeographic)
        address.fault =
            QCoreApplication::translate(
                "BaseMapAddress",
                "The service is asked for the coordinate system \"%1\"; a base map must be "
                "in EPSG:3857 or in a geographic system.")
                .arg(address.system);
}

void readWms(const QUrl& url, BaseMapAddress& address)
{
    address.form = Form::Wms;
    QUrlQuery query(url);
    for (const char* perRequest : {"service", "request", "bbox", "width", "height"})
        take(query, perRequest);
    address.layer = encoded(take(query, "layers")); // the driver takes them as they are
    address.style = encoded(take(query, "styles"));
    address.transparent = take(query, "transparent");
    const auto orElse = [](const QString& text, const char* usual) {
        return text.isEmpty() || text.startsWith(QLatin1Char('{')) ? QString::fromLatin1(usual)
                                                                   : text;
    };
    address.version = orElse(take(query, "version"), "1.1.1");
    address.format = orElse(take(query, "format"), "image/png");
    const QString srs = take(query, "srs");
    const QString crs = take(query, "crs");
    address.system = orElse(srs.isEmpty() ? crs : srs, "EPSG:3857");
    readSystem(address);
    if (address.layer.isEmpty())
        address.fault = QCoreApplication::translate(
            "BaseMapAddress",
            "The address names no layer of the service: \"LAYERS=...\" is missing.");
    QUrl rest = url;
    rest.setQuery(query);
    address.place = rest.toString(QUrl::FullyEncoded);
    if (query.isEmpty() && !address.place.endsWith(QLatin1Char('?')))
        address.place += QLatin1Char('?');
    if (address.fault.isEmpty())
        address.fault = unknownPlaceholder(rest.toString(QUrl::FullyDecoded));
}

/// "WMTS:https://...,layer=NAME,style=...,tilematrixset=..."; only the address must be there.
void readWmts(const QString& text, BaseMapAddress& address)
{
    address.form = Form::Wmts;
    const QStringList parts = text.mid(5).split(QLatin1Char(','));
    address.place = encoded(parts.first());
    for (const QString& part : parts.mid(1)) {
        const QString value = part.section(QLatin1Char('='), 1);
        if (part.startsWith(QLatin1String("layer="), Qt::CaseInsensitive))
            address.layer = value;
        else if (part.startsWith(QLatin1String("style="), Qt::CaseInsensitive))
            address.style = value;
        else if (part.startsWith(QLatin1String("tilematrixset="), Qt::CaseInsensitive))
            address.matrixSet = value;
    }
}

void readWeb(const QString& text, BaseMapAddress& address)
{
    const bool isWmts = text.startsWith(QLatin1String("WMTS:"), Qt::CaseInsensitive);
    const QUrl url(isWmts ? text.mid(5).section(QLatin1Char(','), 0, 0) : text);
    address.host = url.host();
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!isWeb || address.host.isEmpty()) {
        address.fault = QCoreApplication::translate("BaseMapAddress",
                                                    "\"%1\" is neither a web address nor a file.")
                            .arg(text);
        return;
    }
    const bool hasTile = holds(text, "{x}") || holds(text, "{y}") || holds(text, "{z}") ||
                         holds(text, "{TileRow}") || holds(text, "{TileCol}");
    const QString query = url.query();
    if (isWmts)
        readWmts(text, address);
    else if (!hasTile && (holds(query, "service=wms") || holds(query, "layers=")))
        readWms(url, address);
    else
        readTiles(encoded(text), address);
}

} // namespace

BaseMapAddress readBaseMapAddress(const QString& given)
{
    BaseMapAddress address;
    const QString text = given.trimmed();
    if (text.isEmpty()) {
        address.fault = QCoreApplication::translate("BaseMapAddress", "There is no address.");
        return address;
    }
    if (text.startsWith(QLatin1String("WMTS:"), Qt::CaseInsensitive) ||
        (text.contains(QLatin1String("://")) && !text.startsWith(QLatin1String("file:")))) {
        readWeb(withServerChosen(text), address);
        return address;
    }
    address.place = text.startsWith(QLatin1String("file:")) ? QUrl(text).toLocalFile() : text;
    if (!QFileInfo(address.place).isFile())
        address.fault = QCoreApplication::translate("BaseMapAddress", "There is no file \"%1\".")
                            .arg(address.place);
    return address;
}

} // namespace lum
