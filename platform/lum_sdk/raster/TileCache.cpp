#include "lum_sdk/raster/TileCache.h"

#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <vector>

namespace lum {

namespace {

bool isHexadecimal(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
               (c >= QLatin1Char('a') && c <= QLatin1Char('f'));
    });
}

struct Tile
{
    QString path;
    qint64 bytes = 0;
    qint64 writtenMs = 0;
};

std::vector<Tile> tilesIn(const QString& folder)
{
    std::vector<Tile> tiles;
    QDirIterator files(folder, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString name = files.fileName();
        const QString place = path.mid(folder.size());
        const bool isTile =
            name.size() == 32 && isHexadecimal(name) &&
            place.endsWith(QStringLiteral("/%1/%2/%3").arg(name[0]).arg(name[1]).arg(name));
        if (isTile)
            tiles.push_back({path, files.fileInfo().size(),
                             files.fileInfo().lastModified().toMSecsSinceEpoch()});
    }
    return tiles;
}

} // namespace

qint64 TileCache::sizeBytes() const
{
    qint64 sum = 0;
    for (const Tile& tile : tilesIn(m_folder))
        sum += tile.bytes;
    return sum;
}

QString TileCache::clear() const
{
    qint64 left = 0;
    for (const Tile& tile : tilesIn(m_folder)) {
        if (!QFile::remove(tile.path) && QFile::exists(tile.path))
            ++left;
    }
    if (left == 0)
        return {};
    return QCoreApplication::translate("TileCache", "%1 tiles in \"%2\" cannot be removed.")
        .arg(groupedNumber(left), m_folder);
}

void TileCache::trim(qint64 limitBytes) const
{
    std::vector<Tile> tiles = tilesIn(m_folder);
    qint64 sum = 0;
    for (const Tile& tile : tiles)
        sum += tile.bytes;
    if (sum <= limitBytes)
        return;
    std::sort(tiles.begin(), tiles.end(),
              [](const Tile& a, const Tile& b) { return a.writtenMs < b.writtenMs; });
    for (const Tile& tile : tiles) {
        if (sum <= limitBytes / 5 * 4)
            break;
        if (QFile::remove(tile.path))
            sum -= tile.bytes;
    }
}

} // namespace lum
