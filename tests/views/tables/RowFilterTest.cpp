#include "views/tables/RowFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

using Value = FilteredValue;

/// What the filter lets pass of some shown texts, joined by "|"; an empty one is "-".
std::string passed(const char* expression, Value value, const std::vector<std::string>& texts,
                   double tolerance = 0)
{
    const RowFilter filter(QString::fromUtf8(expression), value, tolerance);
    std::string all;
    for (const std::string& text : texts) {
        const auto number = [&] {
            char* end = nullptr;
            const double read = std::strtod(text.c_str(), &end);
            return *end == 0 && !text.empty() ? read : std::nan("");
        };
        if (filter.passes(number, [&] { return std::string_view(text); }))
            all += (all.empty() ? "" : "|") + (text.empty() ? "-" : text);
    }
    return all;
}

bool isFaulty(const char* expression, Value value)
{
    const RowFilter filter(QString::fromUtf8(expression), value);
    EXPECT_EQ(filter.isEmpty(), !filter.fault().isEmpty() || *expression == 0) << expression;
    return !filter.fault().isEmpty();
}

} // namespace

TEST(RowFilter, ComparesNumbers)
{
    const std::vector<std::string> numbers{"-1.5", "0.0500", "0.0501", "3.0000", "nan"};
    const std::pair<const char*, const char*> cases[] = {
        {"> 0.05", "0.0501|3.0000"},
        {">=0.05", "0.0500|0.0501|3.0000"},
        {"< 0.05", "-1.5"},
        {"<= 5e-2", "-1.5|0.0500"},
        {"= 3", "3.0000"},
        {"!= 3", "-1.5|0.0500|0.0501|nan"},
        {"!> 0.05", "-1.5|0.0500|nan"}, // what is no number is not over 0.05
        {"-2..0.05", "-1.5|0.0500"},
        {"3 .. 0.0501", "0.0501|3.0000"},
        {"05", "0.0500|0.0501"},
        {"> 0 & < 1", "0.0500|0.0501"},
        {"< 0; = 3;", "-1.5|3.0000"},
        {"< 0; > 0 & !0501", "-1.5|0.0500|3.0000"},
        {"＞ 1", "3.0000"},
        {"", "-1.5|0.0500|0.0501|3.0000|nan"},
    };
    for (const auto& [expression, expected] : cases)
        EXPECT_EQ(passed(expression, Value::Number, numbers), expected) << expression;
    EXPECT_EQ(passed("= 0.05", Value::Number, numbers, 0.00005), "0.0500");
    EXPECT_EQ(passed("= 0.05", Value::Number, {"0.05004", "0.04996"}, 0.00005), "0.05004|0.04996")
        << "both are shown as 0.0500";
}

TEST(RowFilter, FindsTexts)
{
    const std::vector<std::string> texts{"",          "fixed",  "Float",    "100%",
                                         "a \"b\";c", "王小石", "10015001", "1001",
                                         "> 5",       "A7",     "C10012034"};
    const std::pair<const char*, const char*> cases[] = {
        {"FLOAT", "Float"},
        {"!fixed & !1", "-|Float|a \"b\";c|王小石|> 5|A7"},
        {"%", "100%"},
        {"\"b\"", "a \"b\";c"}, // a text in quotes
        {"\"\"\"b\"\";\"", "a \"b\";c"},
        {"\"> 5\"", "> 5"},
        {"小", "王小石"},
        {"= 1001", "1001"},
        {"=", "-"},
        {"!= & !1 & !f", "a \"b\";c|王小石|> 5|A7"},
        {"1001..1040", "1001"}, // "10015001" is a greater number
        {"> 1001", "10015001"},
        {"A..B", "A7"},
        {"a7;王", "王小石|A7"},
    };
    for (const auto& [expression, expected] : cases)
        EXPECT_EQ(passed(expression, Value::Text, texts), expected) << expression;
}

TEST(RowFilter, ComparesTimesByTheirBeginning)
{
    const std::vector<std::string> times{"", "2024/04/30 23:59:59", "2024/05/01 00:00:00",
                                         "2024/05/01 12:30:00", "2024/05/02 08:00:00"};
    const std::pair<const char*, const char*> cases[] = {
        {"> 2024/05/01", "2024/05/02 08:00:00"},
        {">= 2024/05/01 12", "2024/05/01 12:30:00|2024/05/02 08:00:00"},
        {"= 2024/05/01", "2024/05/01 00:00:00|2024/05/01 12:30:00"},
        {"2024/04..2024/05/01", "2024/04/30 23:59:59|2024/05/01 00:00:00|2024/05/01 12:30:00"},
        {"12:30", "2024/05/01 12:30:00"},
        {"!= 2024/05 & !=", ""},
    };
    for (const auto& [expression, expected] : cases)
        EXPECT_EQ(passed(expression, Value::Time, times),
                  isFaulty(expression, Value::Time) ? passed("", Value::Time, times) : expected)
            << expression;
    EXPECT_TRUE(isFaulty("!= 2024/05 & !=", Value::Time)) << "a time is missing";
}

TEST(RowFilter, SaysWhatItCannotRead)
{
    const std::pair<const char*, Value> faulty[] = {
        {"> abc", Value::Number},     {"> 0,05", Value::Number},
        {">", Value::Number},         {"5..", Value::Number},
        {"..5", Value::Number},       {"a..b", Value::Number},
        {"> abc", Value::Text},       {"5..", Value::Text},
        {"!", Value::Text},           {"> 01.05", Value::Time},
        {"2024..x", Value::Time},     {"> 2024/05/01 12:30:001", Value::Time},
        {"> 1 & < x", Value::Number},
    };
    for (const auto& [expression, value] : faulty)
        EXPECT_TRUE(isFaulty(expression, value)) << expression;
    for (const char* expression : {"", "  ;  & ", "\"", "\"\"", "a \"", ">= -1e-3"})
        EXPECT_EQ(RowFilter(QString::fromUtf8(expression), Value::Number).fault(), QString())
            << expression;
}
