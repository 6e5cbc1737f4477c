#include "lum_sdk/raster/BaseMapList.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace lum {

namespace {

constexpr BaseMapKind kKinds[] = {BaseMapKind::Road, BaseMapKind::Satellite, BaseMapKind::Terrain};
constexpr int kLargestTile = 4096;

BaseMapList::Entry* entryInstalledAs(std::vector<BaseMapList::Entry>& entries, const QString& name)
{
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const auto& entry) {
        return entry.installed && entry.installed->name == name;
    });
    return found == entries.end() ? nullptr : &*found;
}

/// Reads one file. The XML reader stops at the first fault and keeps it.
class ListReader
{
public:
    ListReader(const QByteArray& xml, bool isUsers) : m_xml(xml), m_isUsers(isUsers) {}

    /// \returns what is wrong; `entries` is as it was then
    QString read(std::vector<BaseMapList::Entry>& entries)
    {
        std::vector<BaseMapList::Entry> reading = entries;
        if (enter("base_maps")) {
            while (enter("base_map"))
                readEntry(reading);
        }
        while (!m_xml.hasError() && !m_xml.atEnd())
            m_xml.readNext(); // also what follows the root, which must be well formed
        if (m_xml.hasError())
            return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
        entries = std::move(reading);
        return {};
    }

private:
    /// Goes to the next child. It must have this name. \returns false at the end of the parent
    bool enter(const char* element)
    {
        if (m_xml.hasError() || !m_xml.readNextStartElement())
            return false;
        if (m_xml.name() != QLatin1String(element))
            fail(QStringLiteral("<%1> where <%2> is wanted")
                     .arg(m_xml.name().toString(), QLatin1String(element)));
        return !m_xml.hasError();
    }

    void readEntry(std::vector<BaseMapList::Entry>& entries)
    {
        checkAttributes();
        const QString installedAs = text("installed");
        BaseMapList::Entry* const changed =
            installedAs.isEmpty() ? nullptr : entryInstalledAs(entries, installedAs);
        BaseMapList::Entry entry = changed != nullptr ? *changed : BaseMapList::Entry();
        readValues(entry.map);
        entry.isHidden = flag("hidden", entry.isHidden);
        m_xml.skipCurrentElement();
        if (changed != nullptr) {
            *changed = entry;
        } else if (installedAs.isEmpty()) {
            if (entry.map.name.isEmpty() || entry.map.address.isEmpty())
                fail(QStringLiteral("<base_map> without name or address"));
            if (!m_isUsers)
                entry.installed = entry.map;
            entries.push_back(entry);
        }
    }

    void readValues(BaseMap& map)
    {
        map.name = text("name", map.name);
        map.address = text("address", map.address);
        map.attribution = text("attribution", map.attribution);
        map.leastZoom = number("least_zoom", map.leastZoom, 0, kGreatestZoom);
        map.greatestZoom = number("greatest_zoom", map.greatestZoom, 0, kGreatestZoom);
        map.tileSize = number("tile_size", map.tileSize, 1, kLargestTile);
        map.mayKeepTiles = flag("keep_tiles", map.mayKeepTiles);
        const QString kind = text("kind", wordOf(map.kind));
        const auto* const found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                               [&](auto each) { return wordOf(each) == kind; });
        if (found == std::end(kKinds))
            fail(QStringLiteral("unknown kind \"%1\"").arg(kind));
        else
            map.kind = *found;
    }

    void checkAttributes()
    {
        static const QStringList kKnown =
            QStringLiteral("name,kind,address,least_zoom,greatest_zoom,tile_size,attribution,"
                           "keep_tiles,installed,hidden")
                .split(QLatin1Char(','));
        for (const QXmlStreamAttribute& attribute : m_xml.attributes()) {
            if (!kKnown.contains(attribute.name()))
                fail(QStringLiteral("unknown attribute \"%1\"").arg(attribute.name().toString()));
        }
    }

    QString text(const char* attribute, const QString& fallback = {}) const
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const QLatin1String name(attribute);
        return attributes.hasAttribute(name) ? attributes.value(name).toString() : fallback;
    }

    int number(const char* attribute, int fallback, int least, int greatest)
    {
        const QString value = text(attribute, QString::number(fallback));
        bool isNumber = false;
        const int result = value.toInt(&isNumber);
        if (!isNumber || result < least || result > greatest)
            fail(QStringLiteral("%1=\"%2\" is no number from %3 to %4")
                     .arg(QLatin1String(attribute), value)
                     .arg(least)
                     .arg(greatest));
        return result;
    }

    bool flag(const char* attribute, bool fallback)
    {
        return number(attribute, fallback ? 1 : 0, 0, 1) == 1;
    }

    /// Sets the fault, unless there is one already.
    void fail(const QString& reason)
    {
        if (!m_xml.hasError())
            m_xml.raiseError(reason);
    }

    QXmlStreamReader m_xml;
    bool m_isUsers;
};

/// Writes the values that differ from `other`.
void writeChanges(QXmlStreamWriter& xml, const BaseMap& map, const BaseMap& other)
{
    const auto write = [&xml](const char* attribute, const auto& value, const auto& usual) {
        if (value != usual)
            xml.writeAttribute(QLatin1String(attribute), QStringLiteral("%1").arg(value));
    };
    write("name", map.name, other.name);
    write("kind", wordOf(map.kind), wordOf(other.kind));
    write("address", map.address, other.address);
    write("least_zoom", map.leastZoom, other.leastZoom);
    write("greatest_zoom", map.greatestZoom, other.greatestZoom);
    write("tile_size", map.tileSize, other.tileSize);
    write("attribution", map.attribution, other.attribution);
    write("keep_tiles", map.mayKeepTiles ? 1 : 0, other.mayKeepTiles ? 1 : 0);
}

} // namespace

QString BaseMapList::readInstalled(const QByteArray& xml)
{
    std::vector<Entry> reading;
    QString fault = ListReader(xml, false).read(reading);
    if (fault.isEmpty())
        m_entries = std::move(reading);
    return fault;
}

QString BaseMapList::readUsers(const QByteArray& xml)
{
    return ListReader(xml, true).read(m_entries);
}

QByteArray BaseMapList::writeUsers() const
{
    QByteArray content;
    QXmlStreamWriter xml(&content);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("base_maps"));
    for (const Entry& entry : m_entries) {
        if (entry.installed == entry.map && !entry.isHidden)
            continue; // it is as the installed list says
        xml.writeStartElement(QStringLiteral("base_map"));
        if (entry.installed)
            xml.writeAttribute(QStringLiteral("installed"), entry.installed->name);
        writeChanges(xml, entry.map, entry.installed.value_or(BaseMap()));
        if (entry.isHidden)
            xml.writeAttribute(QStringLiteral("hidden"), QStringLiteral("1"));
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return content;
}

const BaseMap* BaseMapList::find(const QString& name) const
{
    for (const Entry& entry : m_entries) {
        if (!entry.isHidden && entry.map.name.compare(name, Qt::CaseInsensitive) == 0)
            return &entry.map;
    }
    return nullptr;
}

const BaseMap* BaseMapList::first(BaseMapKind kind) const
{
    for (const Entry& entry : m_entries) {
        if (!entry.isHidden && entry.map.kind == kind)
            return &entry.map;
    }
    return nullptr;
}

QString wordOf(BaseMapKind kind)
{
    switch (kind) {
    case BaseMapKind::Road:
        return QStringLiteral("road");
    case BaseMapKind::Satellite:
        return QStringLiteral("satellite");
    case BaseMapKind::Terrain:
        break;
    }
    return QStringLiteral("terrain");
}

} // namespace lum
