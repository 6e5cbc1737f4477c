#include "lum_desktop_sdkx/frame/Appearance.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/Translations.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "tests/app/FrameTest.h"
#include "tests/support/EventLog.h"
#include "tests/support/LogCapture.h"
#include "tests/support/OnEvent.h"
#include "tests/support/Points.h"

namespace {

using Names = std::vector<std::string>;

constexpr const char* kLayout = R"(<main_frame>
  <assistant class="DataProcess5"/>
  <menu caption="Settings">
    <command class="TimeZomeDlgCommand" name="Time Zone"/>
    <command class="CoordFormatCommand" name="Degree Format"/>
    <command class="CoordFormatCommand" name="Degree-minute-second Format"/>
  </menu>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
  <window class="ProgressStatusBarForSkyquill" name="Progress" area="status"/>
  <window class="CoordinateReadout" name="Coordinates" area="status"/>
</main_frame>)";

/// Counts the events of a kind that a widget gets.
class EventCounter : public QObject
{
public:
    EventCounter(QObject& object, QEvent::Type type) : m_type(type)
    {
        object.installEventFilter(this);
    }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
    int count = 0;

private:
    QEvent::Type m_type;
};

} // namespace

class AppComponentsTest : public FrameTest
{
    Q_OBJECT

    void start() { showProgram(layoutOf(kLayout)); }
    void publish(const char* name, const char* payload = nullptr)
    {
        m_host->eventManager().publish(name, payload, 0);
    }
    void progress(const char* payload) { publish(events::kProgress, payload); }
    [[nodiscard]] QWidget* widget(const char* name) const
    {
        return m_host->windows().find(QString::fromUtf8(name))->widget();
    }
    [[nodiscard]] QProgressBar* bar() const
    {
        return widget("Progress")->findChild<QProgressBar*>();
    }
    [[nodiscard]] QString barText() const
    {
        return widget("Progress")->findChild<QLabel*>()->text();
    }
    [[nodiscard]] QString readout() const
    {
        return qobject_cast<QLabel*>(widget("Coordinates"))->text();
    }
    [[nodiscard]] MapWindow& map() const { return dynamic_cast<MapWindow&>(*widget("DataMap")); }
    static void setUnit(const char* unit)
    {
        get_system_ini_parameter().dictionary().set("un_coordUnit", unit);
    }
    static void setSystem(const basalt::Dictionary& system)
    {
        get_project_coord_transform().initialise(system, system);
    }

private Q_SLOTS:
    void init()
    {
        prepare();
        get_system_status_dictionary().set(status::kProjectOpen, "1"); // else a page is on the map
        setSystem({});
    }
    void cleanup() { endProgram(); }

    void aProgressEventShowsMovesAndHidesTheBar()
    {
        start();
        QWidget* const window = widget("Progress");
        QVERIFY(!window->isVisible());
        QCOMPARE(bar()->size(), QSize(200, 15));

        progress("text=Loading Database,value=12.5,is_exec=0");
        QVERIFY(window->isVisible());
        QCOMPARE(barText(), "Loading Database"_q);
        QCOMPARE(bar()->value(), 12);

        progress(payload::progress("导入, 设计", 50).c_str());
        QTRY_COMPARE(bar()->value(), 50);
        QCOMPARE(barText(), "导入, 设计"_q);

        progress(payload::busy("Reading").c_str());
        QTRY_COMPARE(bar()->maximum(), 0);

        progress(nullptr);
        QTRY_COMPARE(barText(), QString());
        QVERIFY(window->isVisible());
        QTest::qWait(40);
        progress("text=\"no end,value=7");
        QCOMPARE(barText(), "no end,value=7"_q);

        progress("value=75");
        progress(payload::kProgressEnd);
        QVERIFY(!window->isVisible());
        QTest::qWait(60); // nothing that waited brings it back
        QVERIFY(!window->isVisible());
    }

    void payloadsWithinAFrameAreNotReadButTheLastIs()
    {
        start();
        const LogCapture log;
        progress("value=1");
        for (int i = 0; i < 20; ++i)
            progress("value=2,text=\"unclosed"); // reading it would be logged
        progress("value=99");
        QTRY_COMPARE(bar()->value(), 99);
        QVERIFY2(log.text().empty(), log.text().c_str());
    }

    void theBarIsPaintedWhileTheGuiThreadWorks()
    {
        start();
        const EventCounter paints(*bar(), QEvent::Paint);
        QElapsedTimer clock;
        clock.start();
        int published = 0;
        while (clock.elapsed() < 330) { // no event loop in here
            progress(payload::progress("Check Survey Line:1001", published % 100).c_str());
            ++published;
        }
        QVERIFY2(paints.count >= 2, "the bar must move during the work");
        QVERIFY2(paints.count <= 40, "and not be painted at every step");
        QVERIFY(published > 1000);
    }

    void theReadoutIsRightInEachSystemAndUnit()
    {
        const struct
        {
            const char* code; ///< of the system; in metres without one
            const char* position;
            const char* metres;
            const char* feet;
        } cases[] = {
            {"", "N=4411825.5 E=-200.25", "N=4411825.500    E=-200.250    m",
             "N=14474493.110    E=-656.988    ft"},
            {"", "N=304.8 E=-0.3048", "N=304.800    E=-0.305    m", "N=1000.000    E=-1.000    ft"},
            {"", "E=0.3048", "N=0.000    E=0.305    m", "N=0.000    E=1.000    ft"},
            {"32037", "N=3937 E=2000000", "N=1200.000    E=609601.219    m",
             "N=3937.000    E=2000000.000    ftUS"},
            {"2222", "N=3937 E=2000000", "N=1199.998    E=609600.000    m",
             "N=3937.000    E=2000000.000    ft"},
            {"32650", "N=3937 E=2000000", "N=3937.000    E=2000000.000    m",
             "N=12916.667    E=6561679.790    ft"}};
        start();
        const EventLog log(m_host->eventManager(), events::kXyChangedText);
        for (const auto& [code, position, metres, feet] : cases) {
            basalt::Dictionary system;
            if (*code != '\0')
                QCOMPARE(fillFromEpsg(code, system), std::string());
            setSystem(system);
            setUnit("0");
            publish(events::kXyChanged, position);
            QCOMPARE(readout(), QString::fromUtf8(metres));
            setUnit("1");
            publish(events::kUpdateSystemStatus);
            QCOMPARE(readout(), QString::fromUtf8(feet));
        }
        publish(events::kXyChanged);
        QCOMPARE(readout(), "N=0.000    E=0.000    ft"_q);
        QCOMPARE(log.payloads().front(), std::string("N=4411825.500    E=-200.250"));
    }

    void theReadoutIsNotOfAFormerSystemOrProject()
    {
        start();
        publish(events::kXyChanged, "N=304.8 E=-0.3048");
        for (const char* event : {events::kProjectChanged, events::kUpdateSystemStatus}) {
            publish(event);
            QCOMPARE(readout(), QString());
        }
        publish(events::kXyChanged, "N=304.8 E=-0.3048");
        QVERIFY(!readout().isEmpty());
        get_system_status_dictionary().set("project_open", "0");
        publish(events::kUpdateSystemStatus);
        QCOMPARE(readout(), QString());
        publish(events::kXyChanged, "N=4411825.5 E=-200.25");
        QCOMPARE(readout(), QString());
    }

    /// Showing the progress of a paint must not change the size of the map, which would paint anew.
    void theWindowComesToRest()
    {
        for (const char* language : {"en", "zh_CN"}) {
            for (const char* theme : {"light", "dark"}) {
                comesToRest(QLatin1String(language), QLatin1String(theme));
                cleanup();
                init();
            }
        }
    }

    void choosesATimeZone()
    {
        start();
        const EventLog log(m_host->eventManager(), "REFRESH_SURVEY_TABLE");
        const auto choose = [&](int radio, int index, const char* button) {
            whenDialog("TimeZomeDlg", [=](QDialog& dialog) {
                auto* const list = dialog.findChild<QComboBox*>();
                QCOMPARE(list->count(), 25);
                QCOMPARE(list->itemText(24), "UTC+12"_q);
                QTest::mouseClick(dialog.findChildren<QRadioButton*>()[radio], Qt::LeftButton, {},
                                  QPoint(8, 8));
                QCOMPARE(list->isEnabled(), radio == 2);
                list->setCurrentIndex(index);
                press(dialog, button);
            });
            run("Time Zone");
            return get_system_ini_parameter().dictionary().integer(settings::kTimeZone, -99);
        };
        QCOMPARE(choose(0, 5, "取消"), -99);
        QVERIFY(log.events.empty());
        QCOMPARE(choose(1, 5, "确认"), 0);
        QCOMPARE(log.events.size(), 1U);
        QCOMPARE(choose(2, 3, "确认"), -9);
        QCOMPARE(choose(0, 3, "确认"), 8);
    }

    void choosesACoordinateFormat()
    {
        start();
        const EventLog log(m_host->eventManager(), "REFRESH_SURVEY_TABLE,ON_CLEAR_SURVEY_TABLE");
        run("Degree Format"); // is in use already
        QVERIFY(log.events.empty());
        run("Degree-minute-second Format");
        QCOMPARE(get_system_status_dictionary().integer(status::kDegreeFormat), 1);
        QVERIFY(m_host->commands().action("Degree-minute-second Format"_q)->isChecked());
        get_system_status_dictionary().set(status::kShowAllLines, "1");
        run("Degree Format");
        QCOMPARE(log.names(), (Names{"REFRESH_SURVEY_TABLE", "ON_CLEAR_SURVEY_TABLE"}));
    }

private:
    void comesToRest(const QString& language, const QString& theme)
    {
        lum::loadTranslations(language, QStringLiteral(LANGUAGE_FOLDER), "skyquill"_q);
        desktop::applyAppearance(theme);
        start();
        for (const char* number : {"1", "2", "3"})
            DataProcessDataManager::instance().surveyPoints().set(surveyPoint(number, number));
        get_system_status_dictionary().set(status::kViewShowWhich, "0");
        QTRY_VERIFY(map().isUpToDate());
        EventCounter resizes(map(), QEvent::Resize);
        int pictures = 0;
        connect(&map(), &MapWindow::pictureChanged, &resizes, [&] { ++pictures; });
        const int height = m_frame->statusBar()->height();
        publish(events::kRefreshSurveyLayer);
        progress(payload::progress("测线 Ág", 1).c_str());
        QCOMPARE(m_frame->statusBar()->height(), height);
        QTRY_VERIFY(pictures > 0 && map().isUpToDate());
        QTest::qWait(150);
        QVERIFY2(pictures <= 2, qPrintable(QString::number(pictures)));
        QCOMPARE(resizes.count, 0);
        for (QTranslator* translator : qApp->findChildren<QTranslator*>())
            QCoreApplication::removeTranslator(translator);
    }
};

QTEST_MAIN(AppComponentsTest)
#include "AppComponentsTest.moc"
