#include "lum_sdk/files/DictionaryXml.h"

#include "basalt_utilities/Dictionary.h"
#include "tests/support/LogCapture.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(DictionaryXml, EveryKeyAndValueComesBackByteForByte)
{
    basalt::Dictionary written;
    written.set("re_code", "F");
    written.set("blanks", "  two  blanks\tand a tab \n and a line\r\n");
    written.set("markup", "<a href=\"x\">&amp; ]]> '</a>");
    written.set("中文键", "复测代码");
    written.set("control\x01", "\x02\x1b[0m");
    written.set("gb18030", "\xb2\xe2\xcf\xdf"); // not UTF-8
    written.set("zero", "a\0b"s);
    written.set("noncharacter", "\xef\xbf\xbf");
    written.set("", "a value without a key");
    written.set("empty", "");

    basalt::Dictionary read;
    EXPECT_EQ(lum::readDictionary(lum::writeDictionary(written), read).toStdString(), "");

    ASSERT_EQ(read.size(), written.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        EXPECT_EQ(read.keyAt(i), written.keyAt(i));
        EXPECT_EQ(read.valueAt(i), written.valueAt(i)) << "key " << read.keyAt(i);
    }
}

TEST(DictionaryXml, IsRefusedWholeWithItsLine)
{
    for (const auto& [xml, reason] :
         {std::pair("", "line 1"),
          std::pair("<dictionary>\n<entry key=\"a\" value=\"1\"/>\n<entry key=", "line 3"),
          std::pair("<settings/>", "<dictionary>"),
          std::pair("<dictionary>\n\n<item/></dictionary>", "line 3: unknown element <item>"),
          std::pair("<dictionary><entry key=\"a\"/></dictionary>", "without key or value"),
          std::pair("<dictionary><entry key=\"?\" value=\"!\" encoding=\"base64\"/></dictionary>",
                    "not base64"),
          std::pair("<dictionary><entry key=\"a\" value=\"b\" encoding=\"hex\"/></dictionary>",
                    "\"hex\""),
          std::pair("<dictionary/>\nmore", "line 2"),
          std::pair(
              "<!DOCTYPE d [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">"
              "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
              "<dictionary><entry key=\"a\" value=\"&d;&d;\"/></dictionary>",
              "line 1")}) {
        basalt::Dictionary dictionary;
        dictionary.set("old", "kept");
        const std::string fault = lum::readDictionary(xml, dictionary).toStdString();
        EXPECT_NE(fault.find(reason), std::string::npos) << fault;
        EXPECT_EQ(dictionary.size(), 1U) << xml;
    }
}

TEST(DictionaryXmlFile, AFailedWriteKeepsTheOldFile)
{
    const TestFolder folder;
    const std::string path = folder.path("质量 参数.ini").toStdString();
    basalt::Dictionary values;
    values.set("pdop_max", "3");
    ASSERT_TRUE(dictionary_to_xml(values, path));

    EXPECT_FALSE(dictionary_to_xml(values, folder.path("no/x.xml").toStdString()));
    EXPECT_FALSE(dictionary_to_xml(values, folder.path().toStdString())); // a folder
    values.set("pdop_max", std::string(100000, '9'));
    {
        const SmallFiles fullDisk(1000);
        EXPECT_FALSE(dictionary_to_xml(values, path));
    }
    basalt::Dictionary read;
    EXPECT_TRUE(xml_to_dictionary(path, read));
    EXPECT_EQ(read.text("pdop_max"), "3");
    const LogCapture log;
    EXPECT_FALSE(xml_to_dictionary("/no/such/qc_param.ini", read));
    EXPECT_TRUE(log.holds("\"/no/such/qc_param.ini\"")) << log.text();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}
