#include "basalt_utilities/LocalTimes.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <random>
#include <string>

namespace {

constexpr const char* kForm = "%Y/%m/%d %H:%M:%S";

void useZone(const char* name)
{
    ::setenv("TZ", name, 1);
    ::tzset();
}

std::string written(basalt::LocalTimes& times, std::int64_t milliseconds)
{
    std::array<char, basalt::LocalTimes::kTextSize> text{};
    return {text.data(), times.write(text.data(), milliseconds)};
}

/// As the C library writes it.
std::string plainlyWritten(std::int64_t seconds)
{
    const std::time_t time = seconds;
    std::tm civil{};
    ::localtime_r(&time, &civil);
    std::array<char, 64> text{};
    return {text.data(), std::strftime(text.data(), text.size(), kForm, &civil)};
}

struct Moment
{
    const char* text;
    std::int64_t seconds; ///< since 1970 UTC
    const char* back;     ///< what is written for them
};

void expectMoments(const char* zoneName, std::initializer_list<Moment> moments)
{
    useZone(zoneName);
    basalt::LocalTimes times;
    for (const auto& [text, seconds, back] : moments) {
        EXPECT_EQ(times.read(text), seconds * 1000) << text;
        EXPECT_EQ(written(times, seconds * 1000 + 999), back) << text;
    }
}

} // namespace

TEST(LocalTimes, FollowTheChangesOfTheZone)
{
    expectMoments("Europe/Berlin",
                  {{"2024/07/01 12:00:00", 1719828000, "2024/07/01 12:00:00"},
                   {"2024/03/31 01:59:59", 1711846799, "2024/03/31 01:59:59"},
                   {"2024/03/31 02:30:00", 1711848600, "2024/03/31 03:30:00"}, // does not exist
                   {"2024/03/31 03:00:00", 1711846800, "2024/03/31 03:00:00"},
                   {"2024/10/27 02:30:00", 1729989000, "2024/10/27 02:30:00"}, // occurs twice
                   {"2024/10/27 03:00:00", 1729994400, "2024/10/27 03:00:00"}});
    expectMoments("Pacific/Apia", // left a whole day out
                  {{"2011/12/30 12:00:00", 1325282400, "2011/12/31 12:00:00"}});
    expectMoments("Asia/Shanghai", {{"1970/01/01 08:00:00", 0, "1970/01/01 08:00:00"}});
    expectMoments("CST-8", {{"1970/01/01 08:00:00", 0, "1970/01/01 08:00:00"}});
    expectMoments("UTC", {{"1969/12/31 23:59:59", -1, "1969/12/31 23:59:59"},
                          {"9999/12/31 23:59:59", 253402300799, "9999/12/31 23:59:59"}});
}

TEST(LocalTimes, AgreeWithTheSystemOnAnyMoment)
{
    for (const char* name :
         {"Europe/Berlin", "Australia/Lord_Howe", "Africa/Casablanca", "America/St_Johns",
          "Asia/Tehran", "Pacific/Apia", "CST6CDT,M3.2.0,M11.1.0"}) {
        useZone(name);
        basalt::LocalTimes times;
        std::mt19937_64 random(11);
        for (int i = 0; i < 10000; ++i) {
            const auto seconds = static_cast<std::int64_t>(random() % 9000000000U) - 2000000000;
            const std::string text = plainlyWritten(seconds);
            ASSERT_EQ(written(times, seconds * 1000), text) << name << ' ' << seconds;
            // The second of two equal texts is read as the first, and is written as the same.
            const auto read = times.read(text);
            ASSERT_TRUE(read) << text;
            ASSERT_LE(*read, seconds * 1000) << name << ' ' << text;
            ASSERT_EQ(written(times, *read), text) << name;
        }
    }
}

TEST(LocalTimes, KeepAFixedOffset)
{
    useZone("Europe/Berlin");
    basalt::LocalTimes east(8);
    basalt::LocalTimes west(-11);
    EXPECT_EQ(written(east, 1719828000000), "2024/07/01 18:00:00");
    EXPECT_EQ(east.read("2024/07/01 18:00:00"), 1719828000000);
    EXPECT_EQ(written(west, 1719828000000), "2024/06/30 23:00:00");
    EXPECT_EQ(east.clockSeconds(1719828000999), 1719828000 + 8 * 3600);
    EXPECT_EQ(west.clockSeconds(-1), -1 - 11 * 3600);
}

TEST(LocalTimes, ReadAndWriteNothingElse)
{
    basalt::LocalTimes times(0);
    for (const char* text :
         {"", "2024/07/01", "2024-07-01 12:00:00", "2024/7/1 12:00:00", "2024/02/30 12:00:00",
          "2023/02/29 00:00:00", "2024/13/01 00:00:00", "2024/07/01 24:00:00",
          "2024/07/01 12:60:00", "2024/07/01 12:00:60", "2024/07/01 12:00:0x",
          "2024/07/01 12:00:00Z", " 2024/07/01 12:00:0", "-024/07/01 12:00:00"})
        EXPECT_FALSE(times.read(text)) << text;
    // The years without four digits, and the last second before them.
    EXPECT_EQ(written(times, 253402300800000), "");
    EXPECT_EQ(written(times, std::numeric_limits<std::int64_t>::max()), "");
    EXPECT_EQ(written(times, std::numeric_limits<std::int64_t>::min()), "");
    EXPECT_EQ(written(times, -62167219200000), "0000/01/01 00:00:00");
    EXPECT_EQ(written(times, -62167219201000), "");
}
