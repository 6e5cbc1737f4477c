#include "lum_sdk/events/EventManager.h"

#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"

#include <QCoreApplication>
#include <QThread>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <thread>

namespace {

using Texts = std::vector<std::string>;

/// Counts what it hears, and does what it is told then.
class Listener final : public IEventHandler
{
public:
    explicit Listener(std::function<void()> reaction = {}) : m_reaction(std::move(reaction)) {}

    void handleEvent(const char* /*eventName*/, const char* /*payload*/, int reserved) override
    {
        ++heard;
        EXPECT_EQ(reserved, 0);
        if (m_reaction)
            m_reaction();
    }

    int heard = 0;

private:
    std::function<void()> m_reaction;
};

class EventManagerTest : public testing::Test
{
protected:
    void publish(const char* name, const char* payload = nullptr)
    {
        manager.publish(name, payload, 0);
    }

    EventManager manager;
};

} // namespace

TEST_F(EventManagerTest, DeliversOnceInTheOrderOfSubscriptionByTheExactName)
{
    const EventLog log(manager, "E");
    std::string order;
    Listener second([&] { order += '2'; });
    Listener first([&] { order += '1'; });
    for (Listener* listener : {&first, &second, &first})
        manager.subscribe("E", listener);
    for (const char* other : {"e", "EE", ""})
        publish(other, "");
    publish("E");
    publish("E", "");
    EXPECT_EQ(order, "1212");
    EXPECT_EQ(log.payloads(), Texts({"(null)", ""}));
}

TEST_F(EventManagerTest, HandlersMayComeAndGoDuringADelivery)
{
    Listener late;
    Listener victim;
    Listener last;
    Listener self([&] {
        manager.unsubscribe("E", &self);
        manager.unsubscribe("E", &victim);
        manager.subscribe("E", &late);
    });
    for (Listener* listener : {&self, &victim, &last})
        manager.subscribe("E", listener);

    publish("E");
    EXPECT_EQ(late.heard, 0);
    publish("E");
    EXPECT_EQ(self.heard, 1);
    EXPECT_EQ(victim.heard, 0);
    EXPECT_EQ(late.heard, 1);
    EXPECT_EQ(last.heard, 2);
}

TEST_F(EventManagerTest, HandlersMayPublishAndDieDuringADelivery)
{
    Listener dying;
    std::optional<EventSubscription> subscription(std::in_place, dying, "E,F", manager);
    int depth = 0;
    Listener nesting([&] {
        subscription.reset();
        if (++depth < 5)
            publish("E", "again");
    });
    manager.subscribe("E", &nesting);
    Listener survivor;
    manager.subscribe("E", &survivor);

    publish("E");
    publish("F");
    EXPECT_EQ(dying.heard, 1);
    EXPECT_EQ(nesting.heard, 5);
    EXPECT_EQ(survivor.heard, 5);
}

TEST_F(EventManagerTest, AThrowingHandlerIsLoggedAndHoldsNobodyUp)
{
    Listener bad([] { throw std::runtime_error("broken handler"); });
    Listener worse([] { throw 1; });
    Listener good;
    for (Listener* listener : {&bad, &worse, &good})
        manager.subscribe("E", listener);
    const LogCapture log;
    publish("E");
    EXPECT_EQ(log.lines(ILogger::Level::Error),
              Texts({"A handler of E failed: broken handler", "A handler of E failed"}));
    manager.unsubscribe("E", &bad);
    manager.unsubscribe("E", &worse);
    publish("E");
    EXPECT_EQ(bad.heard, 1);
    EXPECT_EQ(good.heard, 2);
}

TEST_F(EventManagerTest, AWorkersEventsAreQueuedForTheManagersThread)
{
    int count = 0;
    const QCoreApplication application(count, nullptr);
    const EventLog log(manager, "E");
    bool isOwnThread = true;
    Listener listener([&] {
        isOwnThread &= QThread::currentThread() == manager.thread();
        throw std::runtime_error("the rest is delivered all the same");
    });
    std::thread worker([&] {
        for (int i = 0; i < 100; ++i)
            publish("E", i % 2 != 0 ? std::to_string(i).c_str() : nullptr);
        publish("unheard");
    });
    worker.join();
    EXPECT_TRUE(log.events.empty());
    manager.subscribe("E", &listener); // before the delivery is soon enough
    QCoreApplication::processEvents();
    ASSERT_EQ(log.events.size(), 100U);
    EXPECT_EQ(log.events[98].payload, "(null)");
    EXPECT_EQ(log.events[99].payload, "99");
    EXPECT_EQ(listener.heard, 100);
    EXPECT_TRUE(isOwnThread);
}

TEST_F(EventManagerTest, ASubscriptionTakesProperNamesUntilItEnds)
{
    const LogCapture log;
    const std::string fits(100, 'L');
    const std::string tooLong(101, 'L');
    Listener listener;
    std::optional<EventSubscription> subscription(std::in_place, listener,
                                                  "A,," + fits + ", C ," + tooLong, manager);
    for (const char* name : {"A", "", fits.c_str(), tooLong.c_str(), "C"})
        publish(name);
    EXPECT_EQ(listener.heard, 3); // A, fits and C
    EXPECT_TRUE(log.holds("more than 100 characters: " + tooLong));
    subscription.reset();
    for (const char* name : {"A", fits.c_str(), "C"})
        publish(name);
    EXPECT_EQ(listener.heard, 3);
}
