#include "lum_sdk/raster/TileImage.h"

#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/raster/RasterView.h"
#include "lum_sdk/raster/TileCache.h"
#include "lum_sdk/raster/TileThreads.h"
#include "tests/support/HttpTestServer.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cmath>
#include <numbers>
#include <set>

using Behaviour = HttpTestServer::Behaviour;
using std::chrono::milliseconds;
using std::chrono::seconds;
using Clock = std::chrono::steady_clock;

namespace {

/// Around 40 degrees north on the central meridian of UTM zone 50 (117 degrees east), whose
/// distance from the equator is 4429529.03 m, by 0.9996.
const QPointF kPlace(500000, 4427757.22);

/// At 12 m a pixel, zoom 13 (14.6 m) is too coarse by a quarter, zoom 14 (7.3 m) is right.
lum::RasterView viewOf(const QSize& size = {600, 400}, double scale = 12,
                       const QPointF& center = kPlace)
{
    lum::RasterView view;
    view.transform.setSize(size);
    view.transform.setView(center, scale);
    EXPECT_EQ(fillFromEpsg("32650", view.system), "");
    return view;
}

/// The tile of a place, by the definition of the tiles of the world in Web Mercator.
QPoint tileAt(double longitude, double latitude, int zoom)
{
    const double across = std::pow(2, zoom);
    const double radians = latitude * std::numbers::pi / 180;
    const double y = (1 - std::asinh(std::tan(radians)) / std::numbers::pi) / 2;
    return {int(std::floor((longitude + 180) / 360 * across)), int(std::floor(y * across))};
}

struct Zxy
{
    int zoom = -1;
    int x = -1;
    int y = -1;
};

Zxy tileOf(const std::string& path)
{
    Zxy tile;
    std::sscanf(path.c_str(), "/%d/%d/%d", &tile.zoom, &tile.x, &tile.y);
    return tile;
}

/// A file with the tile at a place, in the colour of (14, 3, 7).
void writeMbTiles(const QString& path, const QPoint& tile, int zoom)
{
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &database), SQLITE_OK);
    const QByteArray picture = HttpTestServer::picture(HttpTestServer::colourOf(14, 3, 7));
    const int rowFromSouth = (1 << zoom) - 1 - tile.y();
    const QString sql =
        QStringLiteral(
            "CREATE TABLE metadata(name TEXT, value TEXT);"
            "CREATE TABLE tiles(zoom_level INTEGER, tile_column INTEGER, tile_row INTEGER,"
            "tile_data BLOB);"
            "INSERT INTO metadata VALUES('name','x'),('format','png'),('minzoom','%1'),"
            "('maxzoom','%1'),('bounds','116,39,118,41');"
            "INSERT INTO tiles VALUES(%1,%2,%3,x'%4')")
            .arg(zoom)
            .arg(tile.x())
            .arg(rowFromSouth)
            .arg(QString::fromLatin1(picture.toHex()));
    EXPECT_EQ(sqlite3_exec(database, sql.toUtf8().constData(), nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(database);
}

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class TileImageTest : public testing::Test
{
protected:
    TileImageTest()
    {
        fetching.agent = "Tests/1.0 (https://example.org/tests)"_q;
        fetching.cacheFolder = folder.path("cache 缓存");
        fetching.timeoutS = 5;
        map.name = "Ground"_q;
        map.address = server.address("/{z}/{x}/{y}.png");
        map.attribution = "© somebody"_q;
    }

    /// The servers are gone, and with them what hangs.
    static void TearDownTestSuite()
    {
        EXPECT_TRUE(lum::TileThreads::instance().waitForEnd(seconds(9)));
    }

    [[nodiscard]] QImage paint(lum::TileImage& image, const lum::RasterView& view) const
    {
        QImage picture(view.pixels(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        image.paint(view, painter);
        return picture;
    }

    /// Waits for it, at most 10 s.
    template <class Condition>
    [[nodiscard]] bool comesTrue(Condition condition) const
    {
        const auto start = Clock::now();
        while (!condition() && secondsSince(start) < 10)
            std::this_thread::sleep_for(milliseconds(5));
        return condition();
    }

    TestFolder folder;
    HttpTestServer server;
    lum::TileFetching fetching;
    lum::BaseMap map;
};

} // namespace

TEST_F(TileImageTest, FetchesTheTilesOfTheViewOnceAndNoOthers)
{
    lum::TileImage image(map, fetching);
    std::this_thread::sleep_for(milliseconds(100));
    EXPECT_TRUE(server.requests().empty()) << "nobody has looked at it";

    const lum::RasterView view = viewOf();
    ASSERT_TRUE(image.fetchAll(view, seconds(20))) << image.trouble().toStdString();
    const auto requests = server.requests();
    ASSERT_FALSE(requests.empty());
    const QPoint center = tileAt(117, 40, 14);
    std::set<std::string> paths;
    for (const HttpTestServer::Request& request : requests) {
        const Zxy tile = tileOf(request.path);
        EXPECT_EQ(tile.zoom, 14) << request.path;
        // 3600 m and 2400 m from the centre; a tile is 1874 m wide there.
        EXPECT_LE(std::abs(tile.x - center.x()), 2) << request.path;
        EXPECT_LE(std::abs(tile.y - center.y()), 2) << request.path;
        EXPECT_EQ(request.agent, fetching.agent.toStdString());
        EXPECT_TRUE(paths.insert(request.path).second) << request.path << " again";
    }
    const Zxy first = tileOf(requests.front().path);
    EXPECT_LE(std::abs(first.x - center.x()) + std::abs(first.y - center.y()), 1)
        << "not from the middle";
    EXPECT_LE(server.mostConnections(), 2);

    const QImage picture = paint(image, view);
    // 117 degrees east is the left edge of a tile, so look beside the middle.
    EXPECT_EQ(picture.pixelColor(305, 200), HttpTestServer::colourOf(14, center.x(), center.y()));
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(599, 399).alpha(), 255);
    EXPECT_EQ(server.requests().size(), requests.size()) << "all of it was there";
}

TEST_F(TileImageTest, KeepsTilesOnlyWhereItMay)
{
    for (const bool mayKeep : {true, false}) {
        map.mayKeepTiles = mayKeep;
        fetching.cacheFolder = folder.path(mayKeep ? "kept" : "not kept");
        const std::size_t before = server.requests().size();
        EXPECT_TRUE(lum::TileImage(map, fetching).fetchAll(viewOf(), seconds(20)));
        const std::size_t first = server.requests().size() - before;
        EXPECT_GT(first, 0U);
        EXPECT_TRUE(lum::TileImage(map, fetching).fetchAll(viewOf(), seconds(20)));
        const std::size_t second = server.requests().size() - before - first;
        EXPECT_EQ(second, mayKeep ? 0U : first);
        EXPECT_EQ(lum::TileCache(fetching.cacheFolder).sizeBytes() > 0, mayKeep);
    }
    // Off the net, what was kept is still there.
    fetching.cacheFolder = folder.path("kept");
    server.behave(Behaviour::Closes);
    map.mayKeepTiles = true;
    EXPECT_TRUE(lum::TileImage(map, fetching).fetchAll(viewOf(), seconds(20)));
}

TEST_F(TileImageTest, ShowsTilesThatCannotBeKept)
{
    fetching.cacheFolder = folder.write("a file in the way", "") + "/cache"_q;
    lum::TileImage image(map, fetching);
    EXPECT_TRUE(image.fetchAll(viewOf(), seconds(20)));
    EXPECT_EQ(image.trouble(), QString());
    EXPECT_EQ(paint(image, viewOf()).pixelColor(300, 200).alpha(), 255);
}

struct Trouble
{
    const char* name;
    Behaviour behaviour;
    const char* says;
    std::size_t mostRequests;
};

class TileTrouble : public TileImageTest, public testing::WithParamInterface<Trouble>
{
};

TEST_P(TileTrouble, IsToldOnceAndNothingBadIsKept)
{
    server.behave(GetParam().behaviour);
    int calls = 0;
    lum::TileImage image(map, fetching, [&] { ++calls; });
    const auto start = Clock::now();
    image.fetchAll(viewOf(), seconds(20));
    EXPECT_LT(secondsSince(start), 15);

    const std::string trouble = image.trouble().toStdString();
    EXPECT_NE(trouble.find(GetParam().says), std::string::npos) << trouble;
    EXPECT_NE(trouble.find("\"Ground\""), std::string::npos) << trouble;
    EXPECT_LE(server.requests().size(), GetParam().mostRequests);
    EXPECT_LE(server.mostConnections(), 2);
    EXPECT_EQ(paint(image, viewOf()).pixelColor(300, 200).alpha(), 0) << "half a picture is none";
    EXPECT_EQ(lum::TileCache(fetching.cacheFolder).sizeBytes(), 0);
    EXPECT_TRUE(comesTrue([&] { return calls > 0; }));
}

INSTANTIATE_TEST_SUITE_P(
    All, TileTrouble,
    testing::Values(Trouble{"NotFound", Behaviour::NotFound, "no tiles here", 80},
                    Trouble{"TooManyRequests", Behaviour::TooManyRequests, "429", 2},
                    Trouble{"ServerError", Behaviour::ServerError, "errors", 4},
                    Trouble{"Garbage", Behaviour::Garbage, "errors", 4},
                    Trouble{"TruncatedPng", Behaviour::TruncatedPng, "errors", 4},
                    Trouble{"TruncatedJpeg", Behaviour::TruncatedJpeg, "errors", 4},
                    Trouble{"Closes", Behaviour::Closes, "does not answer", 2},
                    Trouble{"Hangs", Behaviour::Hangs, "does not answer", 2}),
    [](const auto& test) { return test.param.name; });

TEST_F(TileImageTest, NoServiceAtAllIsUnreachable)
{
    for (const char* address :
         {"http://127.0.0.1:1/{z}/{x}/{y}.png", "http://no.invalid/{z}/{x}/{y}"}) {
        map.address = QString::fromUtf8(address);
        lum::TileImage image(map, fetching);
        EXPECT_FALSE(image.fetchAll(viewOf(), seconds(20)));
        EXPECT_TRUE(image.trouble().contains("does not answer"_q)) << image.trouble().toStdString();
    }
}

TEST_F(TileImageTest, ShowsCoarserTilesWhereTheServiceHasNoFineOnes)
{
    server.behave("/14/", Behaviour::NotFound);
    server.behave("/13/", Behaviour::NotFound);
    lum::TileImage image(map, fetching);
    ASSERT_TRUE(image.fetchAll(viewOf(), seconds(20))) << image.trouble().toStdString();
    const QPoint coarse = tileAt(117.01, 39.999, 12);
    EXPECT_EQ(paint(image, viewOf()).pixelColor(370, 210),
              HttpTestServer::colourOf(12, coarse.x(), coarse.y()));
    EXPECT_EQ(image.trouble(), QString());
    const std::size_t asked = server.requests().size();
    EXPECT_TRUE(image.fetchAll(viewOf(), seconds(20)));
    EXPECT_EQ(server.requests().size(), asked) << "it is known by now what the service has";
}

TEST_F(TileImageTest, AnOlderViewIsDroppedAndNobodyWaitsForSlowTiles)
{
    server.waitBeforeAnswers(seconds(3));
    lum::TileImage image(map, fetching);
    EXPECT_TRUE(comesTrue([&] {
        (void)paint(image, viewOf());
        return server.requests().size() == 2;
    }));
    const QPointF elsewhere = kPlace + QPointF(-60000, 0);
    const QImage picture = paint(image, viewOf({100, 100}, 12, elsewhere));
    EXPECT_EQ(server.requests().size(), 2U) << "it waited for the service";
    EXPECT_EQ(picture.pixelColor(50, 50).alpha(), 0);

    EXPECT_TRUE(comesTrue([&] { return server.requests().size() == 4; }));
    const auto requests = server.requests();
    const QPoint center = tileAt(117, 40, 14);
    for (std::size_t i = 2; i < 4; ++i)
        EXPECT_LT(tileOf(requests[i].path).x, center.x() - 20) << "still of the older view";
    EXPECT_LE(server.mostConnections(), 2);
}

TEST_F(TileImageTest, TellsAtMostTenTimesASecondAndNeverAfterItsEnd)
{
    std::atomic<int> calls = 0;
    const auto start = Clock::now();
    {
        lum::TileImage image(map, fetching, [&] { ++calls; });
        image.fetchAll(viewOf({1200, 800}), seconds(20));
    }
    const int atEnd = calls;
    EXPECT_GT(server.requests().size(), 20U);
    EXPECT_GE(atEnd, 1);
    EXPECT_LE(atEnd, 1 + int(secondsSince(start) * 10));
    std::this_thread::sleep_for(milliseconds(200));
    EXPECT_EQ(calls, atEnd);
}

TEST_F(TileImageTest, AHangingServiceKeepsNobodyWaiting)
{
    server.behave(Behaviour::Hangs);
    for (int i = 0; i < 3; ++i) { // switched on and off by an impatient user
        lum::TileImage image(map, fetching);
        EXPECT_TRUE(comesTrue([&] {
            const auto before = Clock::now();
            (void)paint(image, viewOf());
            EXPECT_LT(secondsSince(before), 2) << "the service is given 5 s";
            return server.requests().size() == 2;
        }));
        std::this_thread::sleep_for(milliseconds(150)); // time enough for a third request
        const auto before = Clock::now();
        image.rest();
        EXPECT_LT(secondsSince(before), 2);
    }
    EXPECT_EQ(server.requests().size(), 2U) << "those that were let go of count, too";
}

TEST_F(TileImageTest, AsksForNothingFarBeyondTheLeastZoom)
{
    map.leastZoom = 12;
    lum::TileImage image(map, fetching);
    EXPECT_TRUE(image.fetchAll(viewOf({600, 400}, 5000), seconds(20)));
    EXPECT_TRUE(image.fetchAll(viewOf({3000, 2000}, 140), seconds(20)));
    EXPECT_TRUE(server.requests().empty()) << server.requests().size();
    EXPECT_TRUE(image.fetchAll(viewOf({600, 400}, 60), seconds(20)));
    for (const std::string& path : server.paths())
        EXPECT_EQ(tileOf(path).zoom, 12);
}

TEST_F(TileImageTest, AsksAServiceForPartsOfTheWorldInTheOrderOfItsSystem)
{
    struct Wms
    {
        const char* system;
        double west, south, east, north; ///< which must be around the place
        bool isNorthFirst;
    };
    const double x = 117 * 20037508.342789244 / 180;
    const double y = 4865942.28; // of 40 degrees
    for (const Wms& wms : {Wms{"version=1.1.1&srs=EPSG:3857", x, y, x, y, false},
                           Wms{"version=1.1.1&srs=EPSG:4326", 117, 40, 117, 40, false},
                           Wms{"version=1.3.0&crs=EPSG:4326", 117, 40, 117, 40, true},
                           Wms{"version=1.3.0&crs=CRS:84", 117, 40, 117, 40, false}}) {
        map.address = server.address("/wms?service=WMS&layers=道路,b&styles=&format=image/png&") +
                      QString::fromUtf8(wms.system);
        ASSERT_EQ(lum::faultOf(map), QString());
        const std::size_t before = server.requests().size();
        lum::TileImage image(map, fetching);
        ASSERT_TRUE(image.fetchAll(viewOf({20, 20}), seconds(20))) << image.trouble().toStdString();
        bool isAround = false;
        for (std::size_t i = before; i < server.requests().size(); ++i) {
            const QString path = QString::fromStdString(server.requests()[i].path);
            const QStringList box =
                path.section("bbox="_q, 1).section(QLatin1Char('&'), 0, 0).split(QLatin1Char(','));
            ASSERT_EQ(box.size(), 4) << path.toStdString();
            const int swap = wms.isNorthFirst ? 1 : 0;
            const double edge = 1e-6 * std::abs(wms.east); // of a tile that ends at the meridian
            isAround |= box[0 ^ swap].toDouble() <= wms.west + edge &&
                        box[1 ^ swap].toDouble() <= wms.south + edge &&
                        box[2 ^ swap].toDouble() >= wms.east - edge &&
                        box[3 ^ swap].toDouble() >= wms.north - edge;
            EXPECT_TRUE(path.contains("width=256"_q)) << path.toStdString();
            EXPECT_TRUE(path.contains("layers=%E9%81%93%E8%B7%AF,b&"_q)) << path.toStdString();
        }
        EXPECT_TRUE(isAround) << wms.system;
    }
}

TEST_F(TileImageTest, ReadsTheCapabilitiesOfAService)
{
    const QString xml = QStringLiteral(SOURCE_FOLDER "/tests/lum_sdk/raster/capabilities.xml");
    server.serve("capabilities",
                 TestFolder::read(xml).replace("ADDRESS", server.address().toUtf8()));
    map.address = "WMTS:"_q + server.address("/capabilities.xml") + ",layer=ground"_q;
    lum::TileImage image(map, fetching);
    ASSERT_TRUE(image.fetchAll(viewOf(), seconds(20))) << image.trouble().toStdString();
    const QPoint center = tileAt(117, 40, 14);
    EXPECT_EQ(paint(image, viewOf()).pixelColor(305, 200),
              HttpTestServer::colourOf(14, center.x(), center.y()));
    for (const HttpTestServer::Request& request : server.requests())
        EXPECT_EQ(request.agent, fetching.agent.toStdString()) << request.path;
    EXPECT_LE(server.mostConnections(), 2);

    map.address = "WMTS:"_q + server.address("/elsewhere.xml") + ",layer=ground"_q;
    lum::TileImage wrong(map, fetching); // a picture instead of capabilities
    EXPECT_FALSE(wrong.fetchAll(viewOf(), seconds(20)));
    EXPECT_TRUE(wrong.trouble().contains("errors"_q)) << wrong.trouble().toStdString();
}

TEST_F(TileImageTest, ShowsAFileOfTilesWithoutAsking)
{
    const QString path = folder.path("底图 1.mbtiles");
    const QPoint center = tileAt(117, 40, 14);
    writeMbTiles(path, center, 14);
    map.address = path;
    ASSERT_EQ(lum::faultOf(map), QString());
    lum::TileImage image(map, fetching);
    ASSERT_TRUE(image.fetchAll(viewOf(), seconds(20))) << image.trouble().toStdString();
    EXPECT_EQ(paint(image, viewOf()).pixelColor(305, 200), HttpTestServer::colourOf(14, 3, 7));
    EXPECT_TRUE(server.requests().empty());

    map.address = folder.write("not tiles.mbtiles", "a text");
    lum::TileImage wrong(map, fetching);
    EXPECT_FALSE(wrong.fetchAll(viewOf(), seconds(20)));
    EXPECT_TRUE(wrong.trouble().contains("not tiles.mbtiles"_q)) << wrong.trouble().toStdString();
}

TEST_F(TileImageTest, TheEndOfTheProcessDoesNotWaitForAHangingService)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe"; // a process of its own
    const auto start = Clock::now();
    EXPECT_EXIT(
        {
            server.behave(Behaviour::Hangs);
            {
                fetching.timeoutS = 60;
                lum::TileImage image(map, fetching);
                while (server.requests().size() < 2)
                    (void)paint(image, viewOf());
            }
            lum::exitProcess(3);
        },
        testing::ExitedWithCode(3), "");
    EXPECT_LT(secondsSince(start), 10);
}
