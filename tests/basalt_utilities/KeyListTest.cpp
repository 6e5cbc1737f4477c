#include "basalt_utilities/KeyList.h"

#include "basalt_utilities/Dictionary.h"
#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

namespace {

struct KeyListCase
{
    const char* text;
    char separator;
    const char* entries; ///< "key|value;" in order
    bool wellFormed;
};

// clang-format off
const KeyListCase kCases[] = {
    {"", ',', "", true},
    {"text=Loading Database,value=12.5,is_exec=0", ',',
     "text|Loading Database;value|12.5;is_exec|0;", true},
    {"N=100.5  E=-7", ' ', "N|100.5;E|-7;", true},
    {"text=\"a,b=c\",value=1", ',', "text|a,b=c;value|1;", true},
    {"text=\"say \"\"hi\"\", now\",v=2", ',', "text|say \"hi\", now;v|2;", true},
    {"height=5\" antenna,v=2", ',', "height|5\" antenna;v|2;", true},
    {"a=,,b=2,", ',', "a|;b|2;", true},
    {"a=1,a=2", ',', "a|2;", true},
    {"path=x=y", ',', "path|x=y;", true},
    {" a =1, b= 2", ',', "a|1;b| 2;", true},
    {"show,value=3", ',', "value|3;", false},
    {"value=3,show", ',', "value|3;", false},
    {"=1,b=2", ',', "b|2;", false},
    {"a=1,text=\"never, ends", ',', "a|1;text|never, ends;", false},
    {"text=\"", ',', "text|;", false},
    {"text=\"a\"b,c=1", ',', "text|a;c|1;", false},
    {"text=正在加载数据库,value=5", ',', "text|正在加载数据库;value|5;", true},
};
// clang-format on

std::string entriesOf(const IDictionary& dictionary)
{
    std::string entries;
    for (std::size_t i = 0; i < dictionary.size(); ++i) {
        entries.append(dictionary.keyAt(i)).append("|");
        entries.append(dictionary.valueAt(i)).append(";");
    }
    return entries;
}

} // namespace

TEST(KeyList, ReadsWhatIsSoundAndReportsTheRest)
{
    for (const auto& [text, separator, entries, wellFormed] : kCases) {
        const LogCapture log;
        basalt::Dictionary dictionary;
        EXPECT_EQ(csa_to_dictionary(dictionary, text, '=', separator), wellFormed) << text;
        EXPECT_EQ(entriesOf(dictionary), entries);
        EXPECT_EQ(log.lines().empty(), wellFormed) << text;
    }
}

TEST(KeyListFaults, AreReportedOnceHoweverMany)
{
    const LogCapture log;
    std::string text;
    for (int i = 0; i < 1'000'000; ++i)
        text += "x,";
    text += "a=1";
    basalt::Dictionary dictionary;

    EXPECT_FALSE(csa_to_dictionary(dictionary, text));

    EXPECT_EQ(entriesOf(dictionary), "a|1;");
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST(KeyListWriting, WhatIsWrittenReadsBack)
{
    basalt::Dictionary written;
    for (const char* value : {"Line 12", "houses, fence", "\"quoted\"", "a \"b\", c", ""})
        written.set(std::to_string(written.size()), value);

    basalt::Dictionary read;
    EXPECT_TRUE(csa_to_dictionary(read, dictionary_to_csa(written)));
    EXPECT_EQ(entriesOf(read), entriesOf(written));
}
