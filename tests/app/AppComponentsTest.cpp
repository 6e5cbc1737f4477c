#include "lum_desktop_sdkx/frame/Appearance.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/Translations.h"
#include "lum_sdk/Transform.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QTranslator>
#include <QtTest>

namespace {

constexpr const char* kLayout = R"(<main_frame>
  <assistant class="DataProcess5"/>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
  <window class="ProgressStatusBarForSkyquill" name="Progress" area="status"/>
  <window class="CoordinateReadout" name="Coordinates" area="status"/>
</main_frame>)";

FrameLayout testLayout()
{
    FrameLayout layout;
    if (!desktop::readFrameLayout(kLayout, layout).isEmpty())
        qFatal("the test's layout is broken");
    return layout;
}

IMapWindow* mapOf(IDesktopHost& host)
{
    return host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}

/// Whether the map has its boundary and its data layer whenever an event comes: "10" for the first.
class LayerWatch final : public IEventHandler
{
public:
    LayerWatch(IDesktopHost& host, const char* event)
        : m_host(host), m_subscription(*this, event, host.eventManager())
    {
    }
    void handleEvent(const char* /*name*/, const char* payload, int /*reserved*/) override
    {
        QVERIFY(payload == nullptr);
        for (const char* name : {"BoundaryLayer", "DataProcessLayer"}) {
            const auto* const layer = mapOf(m_host)->layers().find(QString::fromUtf8(name));
            seen += layer != nullptr ? '1' : '0';
        }
    }
    QByteArray seen;

private:
    IDesktopHost& m_host;
    EventSubscription m_subscription;
};

class Program
{
public:
    Program()
    {
        frame = std::make_unique<MainFrame>(host, testLayout());
        frame->resize(900, 600);
        frame->show();
        QCoreApplication::processEvents();
    }

    void publish(const char* name, const char* payload) const
    {
        host.eventManager().publish(name, payload, 0);
    }
    void progress(const char* payload) const { publish(events::kProgress, payload); }
    QWidget* widget(const char* name) const
    {
        return host.windows().find(QString::fromUtf8(name))->widget();
    }
    QProgressBar* bar() const { return widget("Progress")->findChild<QProgressBar*>(); }
    QString barText() const { return widget("Progress")->findChild<QLabel*>()->text(); }
    QString readout() const { return qobject_cast<QLabel*>(widget("Coordinates"))->text(); }

    mutable DesktopHost host;
    std::unique_ptr<MainFrame> frame;
};

} // namespace

class AppComponentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerMapComponents();
        registerFrameComponents();
    }

    void init()
    {
        get_system_status_dictionary().clear();
        get_system_status_dictionary().set(status::kProjectOpen, "1"); // else a page is on the map
        get_system_ini_parameter().dictionary().clear();
        get_project_coord_transform().initialise(basalt::Dictionary(), basalt::Dictionary());
    }

    void aProgressEventShowsMovesAndHidesTheBar()
    {
        const Program program;
        QWidget* const bar = program.widget("Progress");
        QVERIFY(!bar->isVisible());
        QCOMPARE(program.bar()->size(), QSize(200, 15));

        program.progress("text=Loading Database,value=12.5,is_exec=0");
        QVERIFY(bar->isVisible());
        QCOMPARE(program.barText(), QStringLiteral("Loading Database"));
        QCOMPARE(program.bar()->value(), 12);

        program.progress(payload::progress("导入, 设计", 50).c_str());
        QTRY_COMPARE(program.bar()->value(), 50);
        QCOMPARE(program.barText(), QStringLiteral("导入, 设计"));

        program.progress(payload::busy("Reading").c_str());
        QTRY_COMPARE(program.bar()->maximum(), 0);

        program.progress(nullptr);
        QTRY_COMPARE(program.barText(), QString());
        QVERIFY(bar->isVisible());
        QTest::qWait(40);
        program.progress("text=\"no end,value=7");
        QCOMPARE(program.barText(), QStringLiteral("no end,value=7"));

        program.progress("value=75");
        program.progress(payload::kProgressEnd);
        QVERIFY(!bar->isVisible());
        QTest::qWait(60); // nothing that waited brings it back
        QVERIFY(!bar->isVisible());
    }

    void payloadsWithinAFrameAreNotReadButTheLastIs()
    {
        const Program program;
        const LogCapture log;
        program.progress("value=1");
        for (int i = 0; i < 20; ++i)
            program.progress("value=2,text=\"unclosed"); // reading it would be logged
        program.progress("value=99");
        QTRY_COMPARE(program.bar()->value(), 99);
        QVERIFY2(log.text().empty(), log.text().c_str());
    }

    void theBarIsPaintedWhileTheGuiThreadWorks()
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
        program.bar()->installEventFilter(&counter);
        QElapsedTimer clock;
        clock.start();
        int published = 0;
        while (clock.elapsed() < 330) { // no event loop in here
            program.progress(payload::progress("Check Survey Line:1001", published % 100).c_str());
            ++published;
        }
        QVERIFY2(counter.paints >= 2, "the bar must move during the work");
        QVERIFY2(counter.paints <= 40, "and not be painted at every step");
        QVERIFY(published > 1000);
    }

    void theReadoutIsInMetresOrFeet()
    {
        const Program program;
        const EventLog log(program.host.eventManager(), events::kXyChangedText);
        program.publish(events::kXyChanged, "N=4411825.5 E=-200.25");
        QCOMPARE(program.readout(), QStringLiteral("N=4411825.500    E=-200.250    m"));
        QCOMPARE(log.payloads().front(), std::string("N=4411825.500    E=-200.250"));
        get_system_ini_parameter().dictionary().set("un_coordUnit", "1");
        program.publish(events::kXyChanged, "N=304.8 E=-0.3048");
        QCOMPARE(program.readout(), QStringLiteral("N=1000.000    E=-1.000    ft"));
        program.publish(events::kXyChanged, "E=0.3048");
        QCOMPARE(program.readout(), QStringLiteral("N=0.000    E=1.000    ft"));
        program.publish(events::kXyChanged, nullptr);
        QCOMPARE(program.readout(), QStringLiteral("N=0.000    E=0.000    ft"));
    }

    void theReadoutIsRightForASystemInFeet()
    {
        const struct
        {
            const char* code;
            const char* metres;
            const char* feet;
        } systems[] = {
            {"32037", "N=1200.000    E=609601.219    m", "N=3937.000    E=2000000.000    ftUS"},
            {"2222", "N=1199.998    E=609600.000    m", "N=3937.000    E=2000000.000    ft"},
            {"32650", "N=3937.000    E=2000000.000    m", "N=12916.667    E=6561679.790    ft"}};
        for (const auto& [code, metres, feet] : systems) {
            basalt::Dictionary system;
            QCOMPARE(fillFromEpsg(code, system), std::string());
            get_project_coord_transform().initialise(system, system);
            const Program program;
            for (const char* const expected : {metres, feet}) {
                get_system_ini_parameter().dictionary().set("un_coordUnit",
                                                            expected == feet ? "1" : "0");
                program.publish(events::kXyChanged, "N=3937 E=2000000");
                QCOMPARE(program.readout(), QString::fromUtf8(expected));
            }
        }
    }

    void theReadoutFollowsTheUnitAndNotAFormerSystem()
    {
        const Program program;
        program.publish(events::kXyChanged, "N=304.8 E=-0.3048");
        get_system_ini_parameter().dictionary().set("un_coordUnit", "1");
        program.publish(events::kUpdateSystemStatus, nullptr);
        QCOMPARE(program.readout(), QStringLiteral("N=1000.000    E=-1.000    ft"));
        program.publish(events::kProjectChanged, nullptr);
        QCOMPARE(program.readout(), QString());
        program.publish(events::kUpdateSystemStatus, nullptr);
        QCOMPARE(program.readout(), QString());
    }

    void aClosedProjectHasNoPosition()
    {
        const Program program;
        program.publish(events::kXyChanged, "N=4411825.5 E=-200.25");
        get_system_status_dictionary().set("project_open", "0");
        program.publish(events::kUpdateSystemStatus, nullptr);
        QCOMPARE(program.readout(), QString());
        program.publish(events::kXyChanged, "N=4411825.5 E=-200.25");
        QCOMPARE(program.readout(), QString());
    }

    void theWindowComesToRest_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("theme");
        for (const char* language : {"en", "zh_CN"}) {
            for (const char* theme : {"light", "dark"})
                QTest::addRow("%s %s", language, theme)
                    << QString::fromUtf8(language) << QString::fromUtf8(theme);
        }
    }

    /// Showing the progress of a paint must not change the size of the map, which would paint anew.
    void theWindowComesToRest()
    {
        QFETCH(const QString, language);
        QFETCH(const QString, theme);
        struct ResizeCounter : QObject
        {
            bool eventFilter(QObject* object, QEvent* event) override
            {
                resizes += event->type() == QEvent::Resize ? 1 : 0;
                return QObject::eventFilter(object, event);
            }
            int resizes = 0;
        };
        lum::loadTranslations(language, QStringLiteral(LANGUAGE_FOLDER),
                              QStringLiteral("skyquill"));
        desktop::applyAppearance(theme);
        const Program program;
        for (const char* number : {"1", "2", "3"}) {
            SurveyPoint point;
            point.lineNumber = point.pointNumber = number;
            DataProcessDataManager::instance().surveyPoints().set(point);
        }
        get_system_status_dictionary().set(status::kViewShowWhich, "0");
        auto& map = dynamic_cast<MapWindow&>(*mapOf(program.host));
        QTRY_VERIFY(map.isUpToDate());
        ResizeCounter counter;
        map.installEventFilter(&counter);
        int pictures = 0;
        QObject::connect(&map, &MapWindow::pictureChanged, &counter, [&] { ++pictures; });
        const int height = program.frame->statusBar()->height();
        program.publish(events::kRefreshSurveyLayer, nullptr);
        program.progress(payload::progress("测线 Ág", 1).c_str());
        QCOMPARE(program.frame->statusBar()->height(), height);
        QTRY_VERIFY(pictures > 0 && map.isUpToDate());
        QTest::qWait(150);
        QVERIFY2(pictures <= 2, qPrintable(QString::number(pictures)));
        QCOMPARE(counter.resizes, 0);
        for (QTranslator* translator : qApp->findChildren<QTranslator*>())
            QCoreApplication::removeTranslator(translator);
    }

    void aProgressTextLeavesANarrowWindowAsItIs()
    {
        const Program program;
        program.frame->resize(600, 400);
        QCoreApplication::processEvents();
        const QSize before = program.frame->size();
        program.progress(payload::progress(std::string(300, 'W'), 1).c_str());
        QCoreApplication::processEvents();
        QCOMPARE(program.frame->size(), before);
        QVERIFY(program.bar()->isVisible());
    }

    void theCursorOverTheMapIsReadOut()
    {
        const Program program;
        IMapWindow* const map = mapOf(program.host);
        map->setExtent(500000, 4400000, 501000, 4401000);
        const QPoint cursor(120, 80);
        QTest::mouseMove(program.widget("DataMap"), cursor);
        const QPointF position = map->transform().ScreenToSurvey(QPointF(cursor));
        QTRY_COMPARE(program.readout(), QStringLiteral("N=%1    E=%2    m")
                                            .arg(QString::number(position.y(), 'f', 3),
                                                 QString::number(position.x(), 'f', 3)));
    }

    void layersAreAddedAroundTheEvent()
    {
        DesktopHost host;
        const LayerWatch watch(host, events::kSettingViewFinished);
        const MainFrame frame(host, testLayout());
        QCOMPARE(watch.seen, QByteArray("10")); // heard once
        QVERIFY(mapOf(host)->layers().find(QStringLiteral("DataProcessLayer")) != nullptr);
    }
};

QTEST_MAIN(AppComponentsTest)
#include "AppComponentsTest.moc"
