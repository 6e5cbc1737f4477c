#include "basalt_utilities/FatalReport.h"

#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(FatalReport, LogsAndThrowsTheSameTextCutToItsBuffer)
{
    const LogCapture log;
    std::string thrown;
    try {
        fatal_report("load(%s) fail!", std::string(5000, 'x').c_str());
    } catch (const std::runtime_error& fault) {
        thrown = fault.what();
    }
    EXPECT_EQ(thrown.size(), 2039U);
    EXPECT_EQ(thrown.substr(0, 7), "load(xx");
    EXPECT_EQ(log.lines(ILogger::Level::Error), std::vector<std::string>{thrown});
}
