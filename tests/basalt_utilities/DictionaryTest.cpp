#include "basalt_utilities/Dictionary.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace {

std::string keysOf(const IDictionary& dictionary)
{
    std::string keys;
    for (std::size_t i = 0; i < dictionary.size(); ++i)
        keys.append(dictionary.keyAt(i)).append(" ");
    return keys;
}

} // namespace

TEST(Dictionary, ReadsLeadingNumbersAndFallsBackOnlyForMissingKeys)
{
    const auto dictionary = dictionary_get_instance();
    dic_set_value(*dictionary, "factor", 0.9996);
    dic_set_value(*dictionary, "zone", -50);
    dictionary->set("percent", "45.5 %");
    dictionary->set("word", "many");
    dictionary->set("empty", "");

    EXPECT_EQ(dictionary->text("factor"), "0.9996"); // not 0,9996
    EXPECT_EQ(dictionary->text("zone"), "-50");
    EXPECT_EQ(dictionary->integer("percent", -1), 45);
    EXPECT_DOUBLE_EQ(dictionary->number("percent", -1), 45.5);
    EXPECT_EQ(dictionary->integer("word", -1), 0);
    EXPECT_EQ(dictionary->text("empty", "fallback"), "");
    EXPECT_EQ(dictionary->text("EMPTY", "fallback"), "fallback");
    EXPECT_DOUBLE_EQ(dictionary->number("missing", 2.5), 2.5);
    dictionary->set("zone", "replaced in its place");
    EXPECT_EQ(keysOf(*dictionary), "factor zone percent word empty ");
}

// Small and large dictionaries find their keys in different ways: both against std::map.
TEST(Dictionary, AgreesWithAMapThroughGrowthRemovalAndClearing)
{
    std::mt19937 random(7);
    basalt::Dictionary dictionary;
    std::map<std::string, std::string> expected;
    for (int step = 0; step < 20000; ++step) {
        const std::string key = "key" + std::to_string(random() % 60);
        const std::string value = std::to_string(random());
        const auto choice = random() % 1000;
        if (choice == 0) {
            dictionary.clear();
            expected.clear();
        } else if (choice < 125) {
            EXPECT_EQ(dictionary.remove(key), expected.erase(key) == 1);
        } else {
            dictionary.set(key, value);
            expected[key] = value;
        }
        const auto found = expected.find(key);
        ASSERT_EQ(dictionary.contains(key), found != expected.end()) << "step " << step;
        ASSERT_EQ(dictionary.text(key), found != expected.end() ? found->second : "");
        ASSERT_EQ(dictionary.size(), expected.size());
    }
}
