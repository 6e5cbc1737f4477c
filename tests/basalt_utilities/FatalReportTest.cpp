#include "basalt_utilities/FatalReport.h"

#include "basalt_utilities/ILogger.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

TEST(FatalReport, LogsAndThrowsTheSameTextCutToItsBuffer)
{
    std::string logged;
    basalt::setLogListener(
        [](void* text, ILogger::Level level, std::string_view line) {
            EXPECT_EQ(level, ILogger::Level::Error);
            *static_cast<std::string*>(text) = line;
        },
        &logged);
    std::string thrown;
    try {
        fatal_report("load(%s) fail!", std::string(5000, 'x').c_str());
    } catch (const std::runtime_error& fault) {
        thrown = fault.what();
    }
    basalt::setLogListener(nullptr, nullptr);

    EXPECT_EQ(thrown.size(), 2039U);
    EXPECT_EQ(thrown.substr(0, 7), "load(xx");
    EXPECT_EQ(logged, thrown);
}
