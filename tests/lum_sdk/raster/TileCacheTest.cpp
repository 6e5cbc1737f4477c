#include "lum_sdk/raster/TileCache.h"

#include "tests/support/TestFolder.h"

#include <QDateTime>
#include <QDir>

#include <gtest/gtest.h>

namespace {

/// A tile of 1000 bytes, so many days old; its path.
QString addTile(const TestFolder& folder, char first, int days)
{
    const QString name = QString(QLatin1Char(first)).repeated(32);
    const QString place = QStringLiteral("%1/%1").arg(QLatin1Char(first));
    QDir(folder.path()).mkpath(place);
    const QString path = folder.write(place + QLatin1Char('/') + name, QByteArray(1000, 'x'));
    QFile file(path);
    const bool isAged = file.open(QIODevice::ReadWrite) &&
                        file.setFileTime(QDateTime::currentDateTime().addDays(-days),
                                         QFileDevice::FileModificationTime);
    EXPECT_TRUE(isAged);
    return path;
}

} // namespace

TEST(TileCache, RemovesTheOldestFirst)
{
    const TestFolder folder;
    const QString old = addTile(folder, 'a', 9);
    const QString older = addTile(folder, '0', 30);
    const QString fresh = addTile(folder, 'f', 0);
    const lum::TileCache cache(folder.path());
    EXPECT_EQ(cache.sizeBytes(), 3000);
    cache.trim(3000);
    EXPECT_EQ(cache.sizeBytes(), 3000) << "at the limit";
    cache.trim(2600);
    EXPECT_FALSE(QFile::exists(older));
    EXPECT_TRUE(QFile::exists(old));
    cache.trim(1500);
    EXPECT_FALSE(QFile::exists(old));
    EXPECT_TRUE(QFile::exists(fresh));
}

TEST(TileCache, ClearsNothingButTiles)
{
    const TestFolder folder;
    addTile(folder, 'a', 0);
    const QString document = folder.write("report of the day.pdf", "x");
    const QString other = folder.write("0123456789abcdef0123456789abcdef", "not in its place");
    const lum::TileCache cache(folder.path());
    EXPECT_EQ(cache.clear(), QString());
    EXPECT_EQ(cache.sizeBytes(), 0);
    EXPECT_TRUE(QFile::exists(document));
    EXPECT_TRUE(QFile::exists(other));
    EXPECT_EQ(lum::TileCache(folder.path("没有")).clear(), QString()) << "no folder yet";
}
