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

struct BadAddress
{
    const char* name;
    const char* address;
    const char* says; ///< a part of the sentence
};

class BaseMapAddressFault : public testing::TestWithParam<BadAddress>
{
};

TEST_P(BaseMapAddressFault, IsTold)
{
    const std::string fault = faultAt(GetParam().address);
    EXPECT_NE(fault.find(GetParam().says), std::string::npos) << fault;
}

INSTANTIATE_TEST_SUITE_P(
    All, BaseMapAddressFault,
    testing::Values(
        BadAddress{"Empty", "  ", "no address"},
        BadAddress{"NoPlaceholders", "https://tiles.org/map.png", "has no \"{"},
        BadAddress{"NoRow", "https://tiles.org/{z}/{x}.png", "no \"{y}\""},
        BadAddress{"OtherPlaceholder", "https://tiles.org/{z}/{x}/{y}.png?k={apikey}", "{apikey}"},
        BadAddress{"OtherProtocol", "ftp://tiles.org/{z}/{x}/{y}.png", "neither a web address"},
        BadAddress{"NoMachine", "https:///{z}/{x}/{y}.png", "neither a web address"},
        BadAddress{"NoFile", "/no such/底图.mbtiles", "/no such/底图.mbtiles"},
        BadAddress{"WmsWithoutLayer", "https://a.org/wms?service=WMS", "LAYERS="},
        BadAddress{"WmsInAProjectedSystem", "https://a.org/wms?layers=a&srs=EPSG:32650",
                   "EPSG:32650"},
        BadAddress{"WmsInNoSystem", "https://a.org/wms?layers=a&srs=EPSG:1", "EPSG:1"},
        BadAddress{"WmtsNoWebAddress", "WMTS:capabilities.xml,layer=a", "neither a web address"}),
    [](const auto& test) { return test.param.name; });

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

TEST(BaseMap, AFileIsOpenedByItsPath)
{
    const TestFolder folder;
    const QString path = folder.write("底图 1.mbtiles", "x");
    const QString asUrl = "file://"_q + path;
    for (const QString& address : {path, asUrl}) {
        EXPECT_EQ(lum::faultOf(mapAt(address)), QString());
        EXPECT_TRUE(lum::isFile(mapAt(address)));
        EXPECT_EQ(lum::rasterNameOf(mapAt(address), {}), path);
        EXPECT_EQ(lum::hostOf(mapAt(address)), QString());
    }
}
