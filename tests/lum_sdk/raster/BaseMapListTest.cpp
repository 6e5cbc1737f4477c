#include "lum_sdk/raster/BaseMapList.h"

#include "basalt_utilities/Product.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/raster/UserBaseMaps.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QDir>
#include <QSet>

#include <gtest/gtest.h>

using lum::BaseMap;
using lum::BaseMapKind;
using lum::BaseMapList;

namespace {

constexpr const char* kInstalled = R"(<base_maps>
  <base_map name="Streets" kind="road" address="https://a.example/{z}/{x}/{y}" attribution="A"/>
  <base_map name="Relief" kind="terrain" address="https://b.example/{z}/{x}/{y}" attribution="B"
            least_zoom="3" greatest_zoom="14" tile_size="512" keep_tiles="0"/>
</base_maps>)";

BaseMapList installedList(const QByteArray& xml = kInstalled)
{
    BaseMapList list;
    EXPECT_EQ(list.readInstalled(xml), QString());
    return list;
}

/// A list with every kind of change: one changed, one hidden, one added.
BaseMapList changedList()
{
    BaseMapList list = installedList();
    auto entries = list.entries();
    entries[0].map.name = "街道 <Streets> & \"more\""_q;
    entries[0].map.address = "https://other.example/{z}/{x}/{y}?key=1&b=2"_q;
    entries[1].isHidden = true;
    BaseMapList::Entry own;
    own.map = {"Site photo"_q, BaseMapKind::Satellite, "/数据/site.mbtiles"_q, 1, 20, 256, "C"_q,
               false};
    entries.push_back(own);
    list.set(entries);
    return list;
}

/// The list of this process, its files in a folder of its own.
class UserList : public testing::Test
{
protected:
    UserList()
    {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        get_system_ini_parameter().dictionary().clear();
        QDir().mkpath(QFileInfo(file()).path());
        lum::rereadUserBaseMaps();
    }
    [[nodiscard]] static QString file()
    {
        return QString::fromStdString(basalt::settingsFolder()) + "/base_maps.xml"_q;
    }

    TestFolder m_folder;
};

} // namespace

TEST(BaseMapLists, TheUsersChangesComeBackAsTheyWere)
{
    const BaseMapList changed = changedList();
    BaseMapList again = installedList();
    ASSERT_EQ(again.readUsers(changed.writeUsers()), QString());
    ASSERT_EQ(again.entries().size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(again.entries()[i].map, changed.entries()[i].map);
        EXPECT_EQ(again.entries()[i].isHidden, changed.entries()[i].isHidden);
        EXPECT_EQ(again.entries()[i].installed, changed.entries()[i].installed);
    }
    EXPECT_EQ(again.find("Relief"_q), nullptr); // hidden
    EXPECT_EQ(again.first(BaseMapKind::Terrain), nullptr);
    EXPECT_FALSE(installedList().writeUsers().contains("<base_map ")); // nothing is changed
}

TEST(BaseMapLists, WhatTheUserDidNotChangeFollowsANewInstallation)
{
    BaseMapList next = installedList(
        R"(<base_maps><base_map name="Streets" address="https://new.example/{z}/{x}/{y}"
           attribution="New"/></base_maps>)");
    ASSERT_EQ(next.readUsers(changedList().writeUsers()), QString());
    ASSERT_EQ(next.entries().size(), 2U); // "Relief" is not installed any more
    EXPECT_EQ(next.entries()[0].map.address, "https://other.example/{z}/{x}/{y}?key=1&b=2"_q);
    EXPECT_EQ(next.entries()[0].map.attribution, "New"_q);
    EXPECT_EQ(next.entries()[1].map.name, "Site photo"_q);
}

TEST(BaseMapLists, AFaultIsNamedWithItsLineAndChangesNothing)
{
    const std::pair<const char*, const char*> faults[] = {
        {"", "line 1: "},
        {"<maps/>", "line 1: <maps> where <base_maps> is wanted"},
        {"<base_maps>\n<base_map name='a'/></base_maps>", "line 2: <base_map> without name or"},
        {"<base_maps><base_map name='a' address='b' kind='moon'/></base_maps>",
         "unknown kind \"moon\""},
        {"<base_maps><base_map name='a' address='b' adress='c'/></base_maps>",
         "unknown attribute \"adress\""},
        {"<base_maps><base_map name='a' address='b' least_zoom='-1'/></base_maps>",
         "least_zoom=\"-1\" is no number from 0 to"},
        {"<base_maps><base_map name='a' address='b' hidden='yes'/></base_maps>",
         "hidden=\"yes\" is no number from 0 to 1"},
        {"<base_maps><base_map installed='Relief' hidden='1'/></base_maps", "line 1: "},
    };
    for (const auto& [xml, told] : faults) {
        BaseMapList list = installedList();
        const QString fault = list.readUsers(xml);
        EXPECT_TRUE(fault.contains(QString::fromUtf8(told))) << xml << ": " << fault.toStdString();
        EXPECT_EQ(list.entries().size(), 2U) << xml;
        EXPECT_NE(list.find("Relief"_q), nullptr) << xml;
    }
}

TEST_F(UserList, EveryInstalledBaseMapCanBeUsedAndNamesItsSource)
{
    QSet<QString> names;
    QSet<int> kinds;
    for (const auto& [map, installed, isHidden] : lum::userBaseMaps().entries()) {
        EXPECT_EQ(lum::faultOf(map), QString()) << map.name.toStdString();
        EXPECT_TRUE(map.address.startsWith("https://"_q)) << map.name.toStdString();
        EXPECT_FALSE(isHidden);
        names.insert(map.name.toLower());
        kinds.insert(static_cast<int>(map.kind));
    }
    EXPECT_EQ(kinds.size(), 3); // the menu has one for each entry
    EXPECT_EQ(names.size(), static_cast<int>(lum::userBaseMaps().entries().size()));
}

TEST_F(UserList, AnUnreadableFileIsToldAndKept)
{
    ASSERT_FALSE(m_folder.write("Tarvona/Skyquill/base_maps.xml", "<base_maps><mine/>").isEmpty());
    lum::rereadUserBaseMaps();
    EXPECT_TRUE(lum::userBaseMapsFault().contains("base_maps.xml"_q));
    const std::size_t installed = lum::userBaseMaps().entries().size();
    EXPECT_GT(installed, 0U);

    auto entries = lum::userBaseMaps().entries();
    entries[0].isHidden = true;
    EXPECT_EQ(lum::setUserBaseMaps(entries), QString());
    EXPECT_EQ(TestFolder::read(file() + ".unreadable"_q), "<base_maps><mine/>");
    lum::rereadUserBaseMaps();
    EXPECT_EQ(lum::userBaseMapsFault(), QString());
    EXPECT_EQ(lum::userBaseMaps().entries().size(), installed);
    EXPECT_TRUE(lum::userBaseMaps().entries()[0].isHidden);
}
