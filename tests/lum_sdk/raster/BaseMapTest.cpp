#include "lum_sdk/raster/BaseMap.h"

#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

lum::BaseMap mapAt(const QString& address)
{
    lum::BaseMap map;
    map.name = "地图"_q;
    map.address = address;
    map.attribution = "© somebody"_q;
    return map;
}

std::string serverOf(const char* address)
{
    const QString xml = lum::rasterNameOf(mapAt(QString::fromUtf8(address)), {});
    return xml.section("<ServerUrl>"_q, 1).section("</ServerUrl>"_q, 0, 0).toStdString();
}

std::string faultAt(const char* address)
{
    return lum::faultOf(mapAt(QString::fromUtf8(address))).toStdString();
}

} // namespace

TEST(BaseMap, TellsWhatIsWrongWithAnAddress)
{
    const std::pair<const char*, const char*> cases[] = {
        // address, a part of the sentence
        {"  ", "no address"},
        {"https://tiles.org/map.png", "has no \"{"},
        {"https://tiles.org/{z}/{x}.png", "no \"{y}\""},
        {"https://tiles.org/{z}/{x}/{y}.png?k={apikey}", "{apikey}"},
        {"ftp://tiles.org/{z}/{x}/{y}.png", "neither a web address"},
        {"https:///{z}/{x}/{y}.png", "neither a web address"},
        {"/no such/底图.mbtiles", "/no such/底图.mbtiles"},
        {"https://a.org/wms?service=WMS", "LAYERS="},
        {"https://a.org/wms?layers=a&srs=EPSG:32650", "EPSG:32650"},
        {"https://a.org/wms?layers=a&srs=EPSG:1", "EPSG:1"},
        {"WMTS:capabilities.xml,layer=a", "neither a web address"}};
    for (const auto& [address, part] : cases) {
        const std::string fault = faultAt(address);
        EXPECT_NE(fault.find(part), std::string::npos) << fault;
    }
}

TEST(BaseMap, TellsWhatElseIsWrong)
{
    const lum::BaseMap good = mapAt("https://tiles.org/{z}/{x}/{y}.png"_q);
    EXPECT_EQ(lum::faultOf(good), QString());
    const auto isRefused = [&](auto change) {
        lum::BaseMap map = good;
        change(map);
        return !lum::faultOf(map).isEmpty();
    };
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) { map.name = " "_q; }));
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) { map.attribution.clear(); }));
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) { map.leastZoom = 19; }));
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) { map.leastZoom = -1; }));
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) { map.tileSize = 0; }));
    EXPECT_FALSE(isRefused([](lum::BaseMap& map) { map.greatestZoom = 22; }));
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) { map.greatestZoom = 23; }));
    EXPECT_TRUE(isRefused([](lum::BaseMap& map) {
        map.greatestZoom = 22;
        map.tileSize = 512; // the world would have 2^31 pixels
    }));
}

TEST(BaseMap, TakesTheFormsOfAddressesThatServicesPublish)
{
    EXPECT_EQ(serverOf("https://{s}.tiles.org/{z}/{x}/{y}.png"),
              "https://a.tiles.org/${z}/${x}/${y}.png");
    EXPECT_EQ(serverOf("https://{switch:t1,t2}.tiles.org/${z}/${x}/${y}.png?a=1&b=ü"),
              "https://t1.tiles.org/${z}/${x}/${y}.png?a=1&amp;b=%C3%BC");
    EXPECT_EQ(serverOf("http://a.org/wmts/Layer/{TileMatrix}/{TileRow}/{TileCol}.jpg"),
              "http://a.org/wmts/Layer/${z}/${y}/${x}.jpg");
    EXPECT_EQ(serverOf("http://a.org/w?map=x&SERVICE=WMS&Request=GetMap&LAYERS=l&bbox={bbox}&width="
                       "{width}&height={height}&srs={proj}"),
              "http://a.org/w?map=x");
    EXPECT_EQ(lum::hostOf(mapAt("https://{s}.tiles.org/{z}/{x}/{y}.png"_q)), "a.tiles.org"_q);
}
