#include "lum_sdk/ComponentFactory.h"

#include "tests/support/LogCapture.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

int alive = 0;

struct Tool
{
    explicit Tool(std::string text) : config(std::move(text)) { ++alive; }
    ~Tool() { --alive; }
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;
    std::string config;
};

template <int N>
Tool* create(const char* config)
{
    return std::make_unique<Tool>(config + std::to_string(N)).release();
}

void destroy(Tool* tool)
{
    std::default_delete<Tool>()(tool);
}

class Factory : public testing::Test
{
protected:
    ComponentFactory<Tool, const char*> m_factory{"ITool"};
    LogCapture m_log;
};

} // namespace

TEST_F(Factory, TheFirstClassKeepsATakenName)
{
    EXPECT_TRUE(m_factory.add("Pan", "平移", create<1>, destroy));
    EXPECT_FALSE(m_factory.add("Pan", "other", create<2>, destroy));

    EXPECT_EQ(m_factory.make("Pan", "n")->config, "n1");
    EXPECT_TRUE(m_log.holds("\"Pan\""));
    EXPECT_EQ(m_factory.captions(),
              (std::vector<std::pair<std::string, std::string>>{{"Pan", "平移"}}));
}

TEST_F(Factory, WhatCannotBeMadeIsNullAndLoggedWithItsName)
{
    m_factory.add(
        "Pan", "", [](const char*) -> Tool* { throw std::runtime_error("no memory"); }, destroy);
    EXPECT_EQ(m_factory.make("Pan", ""), nullptr);
    EXPECT_TRUE(m_log.holds("\"Pan\" cannot be made: no memory"));
    EXPECT_EQ(m_factory.make("pan", ""), nullptr);
    EXPECT_TRUE(m_log.holds("No ITool is registered as \"pan\""));
}

TEST_F(Factory, WhatIsLentIsEndedOnceByItsOwnClass)
{
    m_factory.add("Pan", "", create<1>, destroy);
    Tool* const tool = m_factory.get("Pan", "");
    EXPECT_EQ(alive, 1);
    for (Tool* ended : {tool, tool, static_cast<Tool*>(nullptr)}) {
        m_factory.release(ended);
        EXPECT_EQ(alive, 0);
    }
}
