#include "basalt_utilities/Utf8.h"

#include <gtest/gtest.h>

#include <string>

TEST(Utf8, KnowsWellFormedTextWhereverItStands)
{
    for (std::size_t blanks = 0; blanks < 40; ++blanks) {
        const std::string before(blanks, ' ');
        for (const char* text : {"", "plain", "\xC2\x80", "测线", "\xEF\xBF\xBF",
                                 "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF"}) {
            EXPECT_TRUE(basalt::isUtf8(before + text)) << text;
            EXPECT_TRUE(basalt::isUtf8(text + before)) << text;
        }
        for (const char* text :
             {"\x80", "\xC1\xBF", "\xC2", "\xC2 ", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xE6\xB5",
              "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"}) {
            EXPECT_FALSE(basalt::isUtf8(before + text)) << blanks;
            EXPECT_FALSE(basalt::isUtf8(text + before)) << blanks;
        }
    }
}
