#include "lum_sdk/files/SystemParameter.h"

#include "basalt_utilities/Files.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

namespace {

class Settings : public testing::Test
{
protected:
    Settings()
    {
        basalt::Dictionary installed;
        installed.set("un_coordUnit", "0");
        installed.set("time_zone", "8");
        dictionary_to_xml(installed, m_installed);
    }

    [[nodiscard]] std::string path(const char* name) const
    {
        return m_folder.path(name).toStdString();
    }

    TestFolder m_folder;
    std::string m_installed = path("tool.sys");
    std::string m_user = path("用户/settings.xml");
};

} // namespace

TEST_F(Settings, OnlyWhatTheUserChangedIsKeptOverTheInstalledValues)
{
    SystemParameter first(m_user);
    ASSERT_TRUE(first.load(m_installed));
    first.dictionary().set("time_zone", "-3");
    ASSERT_TRUE(first.save());

    basalt::Dictionary stored;
    ASSERT_TRUE(xml_to_dictionary(m_user, stored));
    EXPECT_EQ(stored.size(), 1U);
    SystemParameter second(m_user);
    ASSERT_TRUE(second.load(m_installed));
    EXPECT_EQ(second.dictionary().integer("time_zone"), -3);
    EXPECT_EQ(second.dictionary().integer("un_coordUnit", -1), 0);
}

TEST_F(Settings, WhatIsBrokenOrInTheWayLeavesTheValues)
{
    SystemParameter parameter(m_installed + "/below a file/settings.xml");
    EXPECT_TRUE(parameter.load(m_installed));
    parameter.dictionary().set("time_zone", "0");
    EXPECT_FALSE(parameter.save());
    EXPECT_FALSE(parameter.load(path("missing.sys")));
    EXPECT_EQ(parameter.dictionary().integer("time_zone"), 0);

    file_system_create_dir(path("用户"));
    m_folder.write("用户/settings.xml", "<dictionary><entry");
    SystemParameter other(m_user);
    EXPECT_TRUE(other.load(m_installed)); // the user's file is passed over
    EXPECT_EQ(other.dictionary().integer("time_zone"), 8);
}
