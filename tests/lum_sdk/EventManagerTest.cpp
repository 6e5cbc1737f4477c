#include "lum_sdk/events/EventManager.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Events.h"

#include <QtTest>

#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

/// Writes down what it hears, and does what it is told then.
class Listener final : public IEventHandler
{
public:
    explicit Listener(std::function<void()> reaction = {}) : m_reaction(std::move(reaction)) {}

    void handleEvent(const char* eventName, const char* payload, int reserved) override
    {
        heard << QStringLiteral("%1:%2").arg(QString::fromUtf8(eventName),
                                             payload != nullptr ? QString::fromUtf8(payload)
                                                                : QStringLiteral("null"));
        thread = QThread::currentThread();
        QCOMPARE(reserved, 0);
        if (m_reaction)
            m_reaction();
    }

    QStringList heard;
    QThread* thread = nullptr;

private:
    std::function<void()> m_reaction;
};

} // namespace

class EventManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreComparedByteForByte();
    void deliversInTheOrderOfSubscription();
    void handlersMayComeAndGoDuringADelivery();
    void handlersMayPublishAndDieDuringADelivery();
    void aThrowingHandlerHoldsNobodyUp();
    void aWorkersPublishArrivesOnTheManagersThread();
    void subscriptionsEndWithTheirComponent();
    void aNameThatIsTooLongIsRefused();
    void aReporterHidesTheBarOnce();
};

void EventManagerTest::namesAreComparedByteForByte()
{
    EventManager manager;
    Listener listener;
    manager.subscribe("REFRESH_DESIGN_LAYER", &listener);
    manager.publish("refresh_design_layer", "", 0);
    manager.publish("REFRESH_DESIGN_LAYE", "", 0);
    manager.publish("REFRESH_SURVEY_LAYER", "", 0); // same length, same ends
    manager.publish("", "", 0);
    QVERIFY(listener.heard.isEmpty());
    manager.publish("REFRESH_DESIGN_LAYER", nullptr, 0);
    manager.publish("REFRESH_DESIGN_LAYER", "", 0);
    QCOMPARE(listener.heard, QStringList({QStringLiteral("REFRESH_DESIGN_LAYER:null"),
                                          QStringLiteral("REFRESH_DESIGN_LAYER:")}));
}

void EventManagerTest::deliversInTheOrderOfSubscription()
{
    EventManager manager;
    QStringList order;
    Listener second([&] { order << QStringLiteral("second"); });
    Listener first([&] { order << QStringLiteral("first"); });
    manager.subscribe("E", &first);
    manager.subscribe("E", &second);
    manager.subscribe("E", &first); // once, whatever it asks
    manager.publish("E", nullptr, 0);
    QCOMPARE(order, QStringList({QStringLiteral("first"), QStringLiteral("second")}));
}

void EventManagerTest::handlersMayComeAndGoDuringADelivery()
{
    EventManager manager;
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

    manager.publish("E", nullptr, 0);
    QCOMPARE(self.heard.size(), 1);
    QCOMPARE(victim.heard.size(), 0);
    QCOMPARE(late.heard.size(), 0);
    QCOMPARE(last.heard.size(), 1);

    manager.publish("E", nullptr, 0);
    QCOMPARE(self.heard.size(), 1);
    QCOMPARE(late.heard.size(), 1);
    QCOMPARE(last.heard.size(), 2);
}

void EventManagerTest::handlersMayPublishAndDieDuringADelivery()
{
    EventManager manager;
    struct Component
    {
        Component(IEventHandler& handler, IEventManager& events)
            : subscription(handler, "E,F", events)
        {
        }
        EventSubscription subscription;
    };
    Listener dying;
    auto component = std::make_unique<Component>(dying, manager);
    int depth = 0;
    Listener nesting([&] {
        component.reset();
        if (++depth < 5)
            manager.publish("E", "again", 0);
    });
    manager.subscribe("E", &nesting);
    Listener survivor;
    manager.subscribe("E", &survivor);

    manager.publish("E", nullptr, 0);
    QCOMPARE(dying.heard.size(), 1);
    QCOMPARE(nesting.heard.size(), 5);
    QCOMPARE(survivor.heard.size(), 5);
    manager.publish("F", nullptr, 0);
    QCOMPARE(dying.heard.size(), 1);
}

void EventManagerTest::aThrowingHandlerHoldsNobodyUp()
{
    EventManager manager;
    Listener bad([] { throw std::runtime_error("broken handler"); });
    Listener good;
    manager.subscribe("E", &bad);
    manager.subscribe("E", &good);
    manager.publish("E", nullptr, 0);
    manager.unsubscribe("E", &bad);
    manager.publish("E", nullptr, 0);
    QCOMPARE(bad.heard.size(), 1);
    QCOMPARE(good.heard.size(), 2);
}

void EventManagerTest::aWorkersPublishArrivesOnTheManagersThread()
{
    EventManager manager;
    Listener listener;
    manager.subscribe("E", &listener);
    std::thread worker([&] {
        for (int i = 0; i < 100; ++i)
            manager.publish("E", i % 2 != 0 ? std::to_string(i).c_str() : nullptr, 0);
    });
    worker.join();
    QVERIFY(listener.heard.isEmpty());
    QTRY_COMPARE(listener.heard.size(), 100);
    QCOMPARE(listener.heard.at(99), QStringLiteral("E:99"));
    QCOMPARE(listener.heard.at(98), QStringLiteral("E:null"));
    QCOMPARE(listener.thread, manager.thread());
}

void EventManagerTest::subscriptionsEndWithTheirComponent()
{
    EventManager manager;
    Listener listener;
    {
        const EventSubscription subscription(listener, "A,,B, C ,", manager);
        for (const char* name : {"A", "B", "C", ""})
            manager.publish(name, nullptr, 0);
        QCOMPARE(listener.heard.size(), 3);
    }
    for (const char* name : {"A", "B", "C"})
        manager.publish(name, nullptr, 0);
    QCOMPARE(listener.heard.size(), 3);
}

void EventManagerTest::aNameThatIsTooLongIsRefused()
{
    EventManager manager;
    Listener listener;
    std::string log;
    basalt::setLogListener([](void* text, ILogger::Level,
                              std::string_view line) { *static_cast<std::string*>(text) += line; },
                           &log);
    const std::string fits(100, 'L');
    const std::string tooLong(101, 'L');
    const EventSubscription subscription(listener, fits + "," + tooLong + ",E", manager);
    basalt::setLogListener(nullptr, nullptr);
    for (const std::string& name : {fits, tooLong, std::string("E")})
        manager.publish(name.c_str(), nullptr, 0);
    QCOMPARE(listener.heard.size(), 2);
    QVERIFY(log.find("more than 100 characters: " + tooLong) != std::string::npos);
}

void EventManagerTest::aReporterHidesTheBarOnce()
{
    EventManager manager;
    Listener bar;
    manager.subscribe(events::kProgress, &bar);
    {
        ProgressReporter silent(&manager);
        silent.finish();
    }
    QVERIFY(bar.heard.isEmpty());
    {
        ProgressReporter reporter(&manager);
        reporter.report(QStringLiteral("导入, 设计"), 1, 3);
        reporter.report(QStringLiteral("Empty"), 0, 0);
        reporter.busy(QStringLiteral("Waiting"));
    }
    const QString name = QString::fromLatin1(events::kProgress) + QLatin1Char(':');
    QCOMPARE(bar.heard,
             QStringList({name + QStringLiteral("text=\"导入, 设计\",value=33.3333,is_exec=0"),
                          name + QStringLiteral("text=Empty,value=100,is_exec=0"),
                          name + QStringLiteral("text=Waiting,scroll=1"),
                          name + QStringLiteral("show=0")}));
}

QTEST_GUILESS_MAIN(EventManagerTest)
#include "EventManagerTest.moc"
