#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/CommandExecuterxBase.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Host.h"
#include "lum_sdk/Transform.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"

#include <QLabel>
#include <QProgressBar>
#include <QtTest>

namespace {

QStringList done;

class RememberingSave final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override { done << QStringLiteral("save"); }
};

constexpr const char* kLayout = R"(<main_frame>
  <assistant class="DataProcess5"/>
  <menu caption="Project"><command class="RememberingSave" name="Save Project"/></menu>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
  <window class="ProgressStatusBarForSkyquill" name="Progress" area="status"/>
  <window class="CoordinateReadout" name="Coordinates" area="status"/>
</main_frame>)";

/// Listens to one event and keeps its payloads.
class Listener final : public IEventHandler
{
public:
    Listener(IEventManager& manager, const char* name) : m_subscription(*this, name, manager) {}
    void handleEvent(const char* /*name*/, const char* payload, int /*reserved*/) override
    {
        payloads << QString::fromUtf8(payload);
        if (reaction)
            reaction();
    }
    QStringList payloads;
    std::function<void()> reaction;

private:
    EventSubscription m_subscription;
};

class Program
{
public:
    Program()
    {
        FrameLayout layout;
        if (!desktop::readFrameLayout(kLayout, layout).isEmpty())
            qFatal("the test's layout is broken");
        frame = std::make_unique<MainFrame>(host, layout);
        frame->resize(900, 600);
        frame->show();
        QCoreApplication::processEvents();
    }

    void publish(const char* name, const char* payload) const
    {
        host.eventManager().publish(name, payload, 0);
    }
    QWidget* widget(const char* name) const
    {
        return host.windows().find(QString::fromUtf8(name))->widget();
    }
    template <class Part>
    Part* progress() const
    {
        return widget("Progress")->findChild<Part*>();
    }
    QString readout() const { return qobject_cast<QLabel*>(widget("Coordinates"))->text(); }

    mutable DesktopHost host;
    std::unique_ptr<MainFrame> frame;
};

} // namespace

class AppComponentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aProgressEventShowsMovesAndHidesTheBar();
    void payloadsWithinAFrameAreNotReadButTheLastIs();
    void theBarReadsMissingAndFaultyKeys();
    void theBarIsPaintedWhileTheGuiThreadWorks();
    void theReadoutIsInMetresOrFeet();
    void theCursorOverTheMapIsReadOut();
    void layersAreAddedAroundTheEvent();
    void theCloseQuestionDecides();
    void anOpenProjectIsSavedBeforeTheQuestion();
    void databaseQueriesBecomeProgress();
    void theFirstDataManagerStaysTheInstance();
};

void AppComponentsTest::initTestCase()
{
    registerMapComponents();
    registerFrameComponents();
    using Make = desktop::Maker<ICommandExecuterx, RememberingSave, IDesktopHost*>;
    extensible_factory_register_ICommandExecuterx("RememberingSave", "", Make::create,
                                                  Make::destroy);
}

void AppComponentsTest::init()
{
    get_system_status_dictionary().clear();
    get_system_ini_parameter().dictionary().clear();
    done.clear();
}

void AppComponentsTest::aProgressEventShowsMovesAndHidesTheBar()
{
    const Program program;
    QWidget* const bar = program.widget("Progress");
    QVERIFY(!bar->isVisible());
    QCOMPARE(program.progress<QProgressBar>()->size(), QSize(200, 15));

    program.publish(events::kProgress, "text=Loading Database,value=12.5,is_exec=0");
    QVERIFY(bar->isVisible());
    QCOMPARE(program.progress<QLabel>()->text(), QStringLiteral("Loading Database"));
    QCOMPARE(program.progress<QProgressBar>()->value(), 12);

    program.publish(events::kProgress, payload::progress("导入, 设计", 50).c_str());
    QTRY_COMPARE(program.progress<QProgressBar>()->value(), 50);
    QCOMPARE(program.progress<QLabel>()->text(), QStringLiteral("导入, 设计"));

    program.publish(events::kProgress, payload::busy("Reading").c_str());
    QTRY_COMPARE(program.progress<QProgressBar>()->maximum(), 0);

    program.publish(events::kProgress, "value=75");
    program.publish(events::kProgress, payload::kProgressEnd);
    QVERIFY(!bar->isVisible());
    QTest::qWait(60); // nothing that waited brings it back
    QVERIFY(!bar->isVisible());
}

void AppComponentsTest::payloadsWithinAFrameAreNotReadButTheLastIs()
{
    const Program program;
    int logLines = 0;
    basalt::setLogListener(
        [](void* count, ILogger::Level, std::string_view) { ++*static_cast<int*>(count); },
        &logLines);
    program.publish(events::kProgress, "value=1");
    for (int i = 0; i < 20; ++i)
        program.publish(events::kProgress, "value=2,text=\"unclosed"); // reading it would be logged
    program.publish(events::kProgress, "value=99");
    QTRY_COMPARE(program.progress<QProgressBar>()->value(), 99);
    basalt::setLogListener(nullptr, nullptr);
    QCOMPARE(logLines, 0);
}

void AppComponentsTest::theBarReadsMissingAndFaultyKeys()
{
    const Program program;
    program.publish(events::kProgress, "text=Start,value=30,show=1");
    program.publish(events::kProgress, nullptr);
    QTRY_COMPARE(program.progress<QLabel>()->text(), QString());
    QVERIFY(program.widget("Progress")->isVisible());
    QTest::qWait(40);
    program.publish(events::kProgress, "text=\"no end,value=7");
    QCOMPARE(program.progress<QLabel>()->text(), QStringLiteral("no end,value=7"));
}

void AppComponentsTest::theBarIsPaintedWhileTheGuiThreadWorks()
{
    struct PaintCounter : QObject
    {
        bool eventFilter(QObject* object, QEvent* event) override
        {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(object, event);
        }
        int paints = 0;
    };
    const Program program;
    PaintCounter counter;
    program.progress<QProgressBar>()->installEventFilter(&counter);
    QElapsedTimer clock;
    clock.start();
    int published = 0;
    while (clock.elapsed() < 330) { // no event loop in here
        program.publish(events::kProgress,
                        payload::progress("Check Survey Line:1001", published % 100).c_str());
        ++published;
    }
    QVERIFY2(counter.paints >= 2, "the bar must move during the work");
    QVERIFY2(counter.paints <= 40, "and not be painted at every step");
    QVERIFY(published > 1000);
}

void AppComponentsTest::theReadoutIsInMetresOrFeet()
{
    const Program program;
    program.publish(events::kXyChanged, "N=4411825.5 E=-200.25");
    QCOMPARE(program.readout(), QStringLiteral("N=4411825.500    E=-200.250"));

    get_system_ini_parameter().dictionary().set("un_coordUnit", "1");
    program.publish(events::kXyChanged, "N=304.8 E=-0.3048");
    QCOMPARE(program.readout(), QStringLiteral("N=1000.000    E=-1.000"));
    program.publish(events::kXyChanged, "E=0.3048");
    QCOMPARE(program.readout(), QStringLiteral("N=0.000    E=1.000"));
    program.publish(events::kXyChanged, nullptr);
    QCOMPARE(program.readout(), QStringLiteral("N=0.000    E=0.000"));
}

void AppComponentsTest::theCursorOverTheMapIsReadOut()
{
    const Program program;
    auto* const map = program.host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
    QVERIFY(map != nullptr);
    map->setExtent(500000, 4400000, 501000, 4401000);
    const QPoint cursor(120, 80);
    QTest::mouseMove(program.widget("DataMap"), cursor);
    const QPointF position = map->transform().ScreenToSurvey(QPointF(cursor));
    QTRY_COMPARE(program.readout(), QStringLiteral("N=%1    E=%2")
                                        .arg(QString::number(position.y(), 'f', 3),
                                             QString::number(position.x(), 'f', 3)));
}

void AppComponentsTest::layersAreAddedAroundTheEvent()
{
    DesktopHost host;
    Listener finished(host.eventManager(), events::kSettingViewFinished);
    QStringList layersThen;
    finished.reaction = [&] {
        auto* const map = host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
        for (const char* name : {"BoundaryLayer", "DataProcessLayer"}) {
            if (map->layers().find(QString::fromUtf8(name)) != nullptr)
                layersThen << QString::fromUtf8(name);
        }
    };
    FrameLayout layout;
    QVERIFY(desktop::readFrameLayout(kLayout, layout).isEmpty());
    const MainFrame frame(host, layout);
    QCOMPARE(finished.payloads.size(), 1);
    QVERIFY(finished.payloads.first().isNull());
    QCOMPARE(layersThen, QStringList(QStringLiteral("BoundaryLayer")));
}

void AppComponentsTest::theCloseQuestionDecides()
{
    const Program program;
    QVERIFY(DataProcessDataManager::instance() != nullptr);
    auto answer = LumMessageBox::Button::No;
    const LumMessageBox::Responder responder([&](const LumMessageBox::Message& message) {
        done << message.title << message.text;
        return answer;
    });
    QVERIFY(!program.frame->close());
    QVERIFY(program.frame->isVisible());
    QVERIFY(DataProcessDataManager::instance() != nullptr);
    QCOMPARE(done, QStringList({QStringLiteral("提示"), QStringLiteral("是否退出程序？")}));

    answer = LumMessageBox::Button::Yes;
    QVERIFY(program.frame->close());
    QVERIFY(DataProcessDataManager::instance() == nullptr);
}

void AppComponentsTest::anOpenProjectIsSavedBeforeTheQuestion()
{
    const Program program;
    const LumMessageBox::Responder responder([&](const LumMessageBox::Message&) {
        done << QStringLiteral("ask");
        return LumMessageBox::Button::No;
    });
    get_system_status_dictionary().set("project_open", "0");
    program.frame->close();
    get_system_status_dictionary().set("project_open", "1");
    program.frame->close();
    QCOMPARE(done,
             QStringList({QStringLiteral("ask"), QStringLiteral("save"), QStringLiteral("ask")}));
}

void AppComponentsTest::databaseQueriesBecomeProgress()
{
    const Program program;
    Listener progress(program.host.eventManager(), events::kProgress);
    program.publish(events::kDbQueryProcess, nullptr);
    program.publish(events::kDbQueryProcess, "count=1,total=3");
    program.publish(events::kDbQueryProcess, "count=1,total=0");
    const QString text = QStringLiteral("text=Loading Database,value=%1,is_exec=0");
    QCOMPARE(progress.payloads,
             QStringList({text.arg(QStringLiteral("100")), text.arg(QStringLiteral("33.3333")),
                          text.arg(QStringLiteral("100"))}));
}

void AppComponentsTest::theFirstDataManagerStaysTheInstance()
{
    Host host;
    auto first = std::make_unique<DataProcessDataManager>(&host);
    {
        const DataProcessDataManager second(&host);
        QCOMPARE(DataProcessDataManager::instance(), first.get());
    }
    QCOMPARE(DataProcessDataManager::instance(), first.get());
    first.reset();
    QVERIFY(DataProcessDataManager::instance() == nullptr);
}

QTEST_MAIN(AppComponentsTest)
#include "AppComponentsTest.moc"
