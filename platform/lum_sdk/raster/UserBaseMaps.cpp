#include "lum_sdk/raster/UserBaseMaps.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/WholeFile.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace lum {

namespace {

constexpr int kUsualCacheMb = 256;

QString installedFile()
{
    return QString::fromStdString(basalt::toolFolder() + "/base_maps.xml");
}

QString usersFile()
{
    return QString::fromStdString(basalt::settingsFolder() + "/base_maps.xml");
}

struct Stored
{
    BaseMapList list;
    QString fault; ///< of the user's file
};

/// Reads a file by `read`, which answers what is wrong with its content.
/// \returns what is wrong, as a sentence; empty also when there is no file
template <class Read>
QString readFile(const QString& path, Read read)
{
    QFile file(path);
    if (!file.exists())
        return {};
    const QString fault =
        file.open(QIODevice::ReadOnly) ? read(file.readAll()) : file.errorString();
    if (fault.isEmpty())
        return {};
    QString sentence = QCoreApplication::translate(
                           "BaseMapList", "The list of base maps \"%1\" cannot be read: %2")
                           .arg(QDir::toNativeSeparators(path), fault);
    basalt::logWarning(sentence.toStdString());
    return sentence;
}

Stored readBoth()
{
    Stored stored;
    static_cast<void>(readFile(installedFile(), [&](const QByteArray& xml) {
        return stored.list.readInstalled(xml);
    })); // it is in the log
    stored.fault =
        readFile(usersFile(), [&](const QByteArray& xml) { return stored.list.readUsers(xml); });
    return stored;
}

Stored& stored()
{
    static Stored both = readBoth();
    return both;
}

/// A name beside the file that is free.
QString asideName(const QString& path)
{
    QString aside = path + QStringLiteral(".unreadable");
    for (int number = 2; QFile::exists(aside); ++number)
        aside = path + QStringLiteral(".unreadable%1").arg(number);
    return aside;
}

/// Of the kind that was shown last under this key of the settings.
std::string kindKey(BaseMapKind kind)
{
    return std::string(settings::kBaseMap) + '_' + wordOf(kind).toStdString();
}

const BaseMap* named(const std::string& settingsKey)
{
    const IDictionary& chosen = get_system_ini_parameter().dictionary();
    return userBaseMaps().find(toQString(chosen.text(settingsKey)));
}

} // namespace

const BaseMapList& userBaseMaps()
{
    return stored().list;
}

QString userBaseMapsFault()
{
    return stored().fault;
}

QString setUserBaseMaps(std::vector<BaseMapList::Entry> entries)
{
    Stored& both = stored();
    both.list.set(std::move(entries));
    const QString path = usersFile();
    if (!both.fault.isEmpty() && !QFile::rename(path, asideName(path)))
        return both.fault;
    QDir().mkpath(QFileInfo(path).path());
    QString fault = writeWholeFile(path, both.list.writeUsers());
    if (fault.isEmpty())
        both.fault.clear();
    else
        basalt::logError("Cannot write \"" + path.toStdString() + "\": " + fault.toStdString());
    return fault;
}

void rereadUserBaseMaps()
{
    stored() = readBoth();
}

const BaseMap* lastBaseMap()
{
    return named(settings::kBaseMap);
}

const BaseMap* chosenBaseMap()
{
    if (const BaseMap* const last = lastBaseMap())
        return last;
    for (const auto kind : {BaseMapKind::Road, BaseMapKind::Satellite, BaseMapKind::Terrain}) {
        if (const BaseMap* const first = userBaseMaps().first(kind))
            return first;
    }
    return nullptr;
}

const BaseMap* chosenBaseMap(BaseMapKind kind)
{
    const BaseMap* const last = named(kindKey(kind));
    return last != nullptr && last->kind == kind ? last : userBaseMaps().first(kind);
}

void chooseBaseMap(const BaseMap& map)
{
    SystemParameter& chosen = get_system_ini_parameter();
    chosen.dictionary().set(settings::kBaseMap, map.name.toStdString());
    chosen.dictionary().set(kindKey(map.kind), map.name.toStdString());
    chosen.save(); // a failure is logged; the choice holds until the program ends
}

TileFetching userTileFetching()
{
    const IDictionary& config = get_system_config_parameter().dictionary();
    const std::string page(config.text("homepage"));
    TileFetching fetching;
    fetching.agent =
        QStringLiteral("%1/%2 (%3)")
            .arg(QString::fromStdString(basalt::product().name), toQString(config.text("version")),
                 QString::fromStdString(page.empty() ? basalt::product().organisation : page));
    fetching.cacheFolder = QString::fromStdString(basalt::cacheFolder() + "/tiles");
    const int limitMb =
        get_system_ini_parameter().dictionary().integer(settings::kTileCacheMb, kUsualCacheMb);
    fetching.cacheLimitBytes = qint64(std::max(0, limitMb)) << 20;
    return fetching;
}

} // namespace lum
