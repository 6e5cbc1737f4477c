#include "lum_desktop_sdkx/frame/MainFrame.h"

#include "basalt_utilities/Files.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/CommandExecuterxBase.h"
#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/dialogs/SilencedBoxes.h"
#include "lum_desktop_sdkx/frame/Appearance.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/DockWidget.h>
#include <QToolBar>
#include <QtTest>

namespace {

int windowsAlive = 0;
int executions = 0;
bool refuses = false;
bool closeThrows = false;
QStringList openedFiles;

class TestWindow : public QLabel, public IWindowx
{
public:
    TestWindow(const char* config, IDesktopHost* /*host*/)
        : m_parameters(desktop::componentParameters(config))
    {
        ++windowsAlive;
    }
    ~TestWindow() override { --windowsAlive; }
    QWidget* widget() override { return this; }
    IDictionary& parameters() override { return m_parameters; }

private:
    basalt::Dictionary m_parameters;
};
class OtherWindow final : public TestWindow
{
public:
    using TestWindow::TestWindow;
};

/// A command whose entry names the status keys that enable and check it.
class StatusCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    bool isEnabled() const override { return status("enabled_by") != 0; }
    bool isCheckable() const override { return true; }
    bool isChecked() const override { return status("checked_by") != 0; }
    QString caption() const override { return isChecked() ? "hide"_q : "show"_q; }
    void execute() override
    {
        ++executions;
        get_system_status_dictionary().set("checked", isChecked() ? "0" : "1");
    }

private:
    int status(const char* parameter) const
    {
        return get_system_status_dictionary().integer(parameters().text(parameter));
    }
};

class ThrowingCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override { throw std::runtime_error("no such column"); }
};

class TestAssistant final : public GuiAssistantBase
{
public:
    TestAssistant(const char* /*config*/, IDesktopHost* /*host*/) {}
    int queryClose() override
    {
        if (closeThrows)
            throw std::runtime_error("broken assistant");
        return refuses ? 0 : 1;
    }
    int openFile(const QString& path) override
    {
        openedFiles << path;
        return path.endsWith("x"_q) ? 1 : 0;
    }
};

constexpr const char* kLayout = R"(<main_frame>
  <assistant class="TestAssistant"/>
  <assistant class="UnknownAssistant"/>
  <menu caption="First">
    <separator/>
    <command class="UnknownCommand" name="Unknown"/>
    <separator/>
    <command class="StatusCommand" name="Save Project" enabled_by="open" checked_by="checked" shortcut="Ctrl+S"/>
    <separator/>
    <command class="UnknownCommand" name="Unknown Too"/>
    <separator/>
    <command class="ThrowingCommand" name="Throw"/>
    <separator/>
    <menu caption="Empty"><command class="UnknownCommand" name="Unknown Three"/></menu>
  </menu>
  <menu caption="Nothing"><command class="UnknownCommand" name="Unknown Four"/></menu>
  <menu caption="Windows"><docks/></menu>
  <toolbar name="bar" caption="Bar">
    <separator/><command name="Save Project"/><separator/><separator/><command name="Unknown"/><separator/>
  </toolbar>
  <toolbar name="none" caption="None"><command name="Unknown"/></toolbar>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
  <window class="TestWindow" name="Survey Data List" caption="Survey" area="left" width="200"/>
  <window class="UnknownWindow" name="Unknown" area="left"/>
  <window class="MessageWindow" name="Messages" area="bottom" height="100"/>
  <window class="LayerWindow" name="Layers" area="left" place="below" width="200"
          height="150"/>
  <window class="CoordinateReadout" name="Coordinates" area="status"/>
</main_frame>)";

QByteArray installedLayout()
{
    QFile file(QStringLiteral(SOURCE_FOLDER
                              "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no main_frame.xml");
    return file.readAll();
}

FrameLayout layoutOf(const QByteArray& xml)
{
    FrameLayout layout;
    const QString fault = desktop::readFrameLayout(xml, layout);
    if (!fault.isEmpty())
        qFatal("%s", qPrintable(fault));
    return layout;
}

/// Answers message boxes, and keeps their texts.
struct Told
{
    QStringList texts;
    const LumMessageBox::Responder responder{[this](const LumMessageBox::Message& message) {
        texts << message.text;
        return LumMessageBox::Button::Ok;
    }};
};

/// A frame that is shown, with its host, as the application object makes them.
struct ShownFrame
{
    explicit ShownFrame(const QByteArray& xml = kLayout) : frame(host, layoutOf(xml))
    {
        frame.show();
        QCoreApplication::processEvents();
    }

    ads::CDockWidget* dock(const char* name) const
    {
        return frame.findChild<ads::CDockManager*>()->findDockWidget(QString::fromUtf8(name));
    }

    DesktopHost host;
    MainFrame frame;
};

/// A table's header, its filters, the line with the count, twelve rows and a scroll bar, in pixels,
/// with the letters of a usual desktop.
constexpr int kTwelveRows = 345;

/// The map on top in the middle, the tables below it, trees on the left, attributes on the right.
void checkPlaces(const ShownFrame& shown)
{
    const auto area = [&](const char* name) { return shown.dock(name)->dockAreaWidget(); };
    const auto placeOf = [&](const char* name) {
        return QRect(area(name)->mapTo(&shown.frame, QPoint(0, 0)), area(name)->size());
    };
    const QRect map = placeOf("DataMap");
    const QRect tables = placeOf("Survey Data List");
    QVERIFY(tables.top() > map.bottom() && tables.height() < map.height());
    QVERIFY(tables.left() == map.left() && tables.right() == map.right());
    QCOMPARE(area("Design Data List"), area("Survey Data List"));
    QCOMPARE(area("Messages"), area("Survey Data List"));
    QVERIFY(!shown.dock("Messages")->isCurrentTab());
    for (const char* name : {"Design Lines", "Survey Lines"})
        QVERIFY2(placeOf(name).right() < map.left() && placeOf(name).width() < map.width(), name);
    for (const char* name : {"Attributes", "Layers"})
        QVERIFY2(placeOf(name).left() > map.right() && placeOf(name).width() < map.width(), name);
    QVERIFY(placeOf("Design Lines").bottom() < placeOf("Survey Lines").top());
    QVERIFY(placeOf("Attributes").bottom() < placeOf("Layers").top());
    QVERIFY(placeOf("Attributes").height() > placeOf("Layers").height());
}

} // namespace

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerMapComponents();
        registerFrameComponents();
        using namespace desktop::registration;
        window<TestWindow>("TestWindow", "");
        window<OtherWindow>("OtherWindow", "");
        window<OtherWindow>("ThirdWindow", "");
        command<StatusCommand>("StatusCommand", "");
        command<ThrowingCommand>("ThrowingCommand", "");
        assistant<TestAssistant>("TestAssistant", "");
    }

    void init()
    {
        QDir(QString::fromStdString(basalt::settingsFolder())).removeRecursively();
        get_system_status_dictionary().clear();
        executions = 0;
    }

    void leavesOutWhatIsNotRegistered()
    {
        const ShownFrame shown;
        QStringList menus;
        for (const QAction* action : shown.frame.menuBar()->actions()) {
            if (action->isVisible())
                menus << action->text();
        }
        QCOMPARE(menus, QStringList({"First"_q, "Windows"_q}));

        QStringList items;
        for (const QAction* action : shown.frame.menuBar()->actions().at(0)->menu()->actions())
            items << (action->isSeparator() ? "-"_q : action->objectName());
        QCOMPARE(items, QStringList({"Save Project"_q, "-"_q, "Throw"_q}));

        const auto bars =
            shown.frame.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(bars.size(), 1);
        QCOMPARE(bars.at(0)->actions().size(), 1);

        Q_EMIT shown.frame.menuBar()->actions().last()->menu()->aboutToShow();
        QStringList docks;
        for (const QAction* action : shown.frame.menuBar()->actions().last()->menu()->actions())
            docks << action->text();
        QCOMPARE(docks, QStringList({"&1  Survey"_q, "&2  Messages"_q, "&3  Layers"_q}));
    }

    void readsCommandStatesOnTheStatusEvent()
    {
        ShownFrame shown;
        QAction* const action = shown.host.commands().action("Save Project"_q);
        QVERIFY(!action->isEnabled());
        QVERIFY(!shown.host.commands().execute("Save Project"_q));
        QVERIFY(!shown.host.commands().execute("Unknown"_q));
        QCOMPARE(executions, 0);

        get_system_status_dictionary().set("open", "1");
        shown.host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
        QVERIFY(action->isEnabled() && !action->isChecked());

        shown.frame.activateWindow();
        QTRY_VERIFY(shown.frame.isActiveWindow());
        QTest::keyClick(&shown.frame, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(executions, 1);
        QVERIFY(action->isChecked()); // read again after the command
        QCOMPARE(action->text(), "hide"_q);
    }

    void aFileWaitsForTheEndOfDialogs()
    {
        ShownFrame shown;
        Told told;
        openedFiles.clear();
        shown.frame.openWhenFree({"/a.x"_q});
        QCOMPARE(openedFiles.join(QLatin1Char(' ')), "/a.x"_q);

        QDialog second(&shown.frame);
        QDialog first(&shown.frame);
        QTimer::singleShot(0, [&] {
            shown.frame.openWhenFree({"/b.x"_q});
            shown.frame.openWhenFree({"/c.x"_q, "/d.x"_q});
            first.accept();
        });
        QTimer::singleShot(50, [&] {
            QCOMPARE(openedFiles.size(), 1);
            second.accept();
        });
        first.exec();
        second.exec(); // what the same command asks next
        QCOMPARE(openedFiles.size(), 1);
        QTRY_COMPARE(openedFiles.join(QLatin1Char(' ')), "/a.x /b.x /c.x /d.x"_q);

        QVERIFY(told.texts.isEmpty());
        shown.frame.openWhenFree({"/d.txt"_q, "/e.x"_q});
        QCOMPARE(told.texts, QStringList("\"/d.txt\" is not a file that can be opened here."_q));
        QCOMPARE(openedFiles.last(), "/e.x"_q);
    }

    void comesToTheFrontFromTheTaskBar()
    {
        ShownFrame shown;
        shown.frame.showMaximized();
        shown.frame.setWindowState(shown.frame.windowState() | Qt::WindowMinimized);
        QTRY_VERIFY(shown.frame.isMinimized());
        shown.frame.comeToFront();
        QTRY_VERIFY(shown.frame.isActiveWindow());
        QVERIFY(!shown.frame.isMinimized() && shown.frame.isMaximized());
    }

    void theKeyboardReachesEveryEntry()
    {
        ShownFrame shown(R"(<main_frame>
          <menu caption="&amp;None"><command class="UnknownCommand" name="Unknown"/></menu>
          <menu caption="&amp;First">
            <command class="StatusCommand" name="Off" enabled_by="never"/>
            <command class="StatusCommand" name="Lines" caption="Line&amp;s" enabled_by="open"/>
          </menu></main_frame>)");
        QAction* const lines = shown.host.commands().action("Lines"_q);
        QCOMPARE(lines->text(), "&show"_q); // the command's own text with the layout's letter
        get_system_status_dictionary().set("open", "1");
        shown.host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);

        shown.frame.activateWindow();
        QTRY_VERIFY(shown.frame.isActiveWindow());
        QTest::keyClick(&shown.frame, Qt::Key_F10);
        QMenu* const menu = shown.frame.menuBar()->actions().at(1)->menu();
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->activeAction(), lines);
        QTest::keyClick(menu, Qt::Key_Return);
        QCOMPARE(executions, 1);
    }

    void theLayoutCanMakeAnEntryFollowTheStatus()
    {
        ShownFrame shown(R"(<main_frame><menu caption="M">
        <command class="StatusCommand" name="Rows" enabled_by="open" enabled_while="view=1"/>
        <command class="SettingChoiceCommand" name="A" setting="a" checked_while="view=1"/>
        <command class="SettingChoiceCommand" name="B" setting="a" checked_while="view=0"/>
        </menu></main_frame>)");
        auto& commands = shown.host.commands();
        get_system_status_dictionary().set("open", "1");
        for (const char* view : {"1", "0", "2", "1"}) {
            get_system_status_dictionary().set("view", view);
            shown.host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
            QCOMPARE(commands.action("Rows"_q)->isEnabled(), *view == '1');
            QCOMPARE(commands.execute("Rows"_q), *view == '1');
            QCOMPARE(commands.action("A"_q)->isChecked(), *view == '1');
            QCOMPARE(commands.action("B"_q)->isChecked(), *view == '0');
        }
    }

    void theEntriesOfAGroupExcludeOneAnother()
    {
        ShownFrame shown(R"(<main_frame><menu caption="M">
        <command class="SettingChoiceCommand" name="Metres" setting="un_coordUnit" value="0" group="unit"/>
        <command class="SettingChoiceCommand" name="Feet" setting="un_coordUnit" value="1" group="unit"/>
        </menu></main_frame>)");
        QAction* const metres = shown.host.commands().action("Metres"_q);
        QAction* const feet = shown.host.commands().action("Feet"_q);
        QVERIFY(metres->actionGroup() != nullptr && metres->actionGroup()->isExclusive());
        QCOMPARE(feet->actionGroup(), metres->actionGroup());
        for (QAction* chosen : {feet, metres, feet}) {
            chosen->trigger();
            QCOMPARE(metres->actionGroup()->checkedAction(), chosen);
        }
        get_system_ini_parameter().dictionary().clear();
    }

    void theDocksShowWhereTheFocusIs()
    {
        ShownFrame shown;
        shown.frame.activateWindow();
        QTRY_VERIFY(shown.frame.isActiveWindow());
        const auto focused = [&] {
            QStringList names;
            for (const char* name : {"DataMap", "Messages", "Layers"}) {
                if (shown.dock(name)->dockAreaWidget()->property("focused").toBool())
                    names << QString::fromUtf8(name);
            }
            return names.join(QLatin1Char(' '));
        };
        for (const char* name : {"Messages", "Layers", "DataMap"}) {
            shown.host.windows().find(QString::fromUtf8(name))->widget()->setFocus();
            QCOMPARE(focused(), QString::fromUtf8(name));
        }
    }

    void survivesACommandThatThrows()
    {
        ShownFrame shown;
        Told told;
        shown.host.commands().action("Throw"_q)->trigger();
        QCOMPARE(told.texts, QStringList("The command failed: no such column"_q));
    }

    void findsWindowsByClassNameAndCaption()
    {
        ShownFrame shown;
        WindowRegistry& windows = shown.host.windows();
        IWindow* const window = windows.find("TestWindow"_q);
        QVERIFY(window != nullptr);
        QCOMPARE(windows.find("Survey Data List"_q), window);
        QCOMPARE(windows.find("Survey"_q), window);
        QCOMPARE(windows.find("survey"_q), nullptr);
        QVERIFY(!windows.activate("Unknown"_q));

        QVERIFY(!windows.close("Unknown"_q));
        QVERIFY(windows.close("Survey"_q));
        QVERIFY(!window->widget()->isVisible());
        QVERIFY(!shown.dock("Survey Data List")->toggleViewAction()->isChecked());
        QVERIFY(windows.activate("Survey"_q));
        QVERIFY(window->widget()->isVisible());
    }

    void opensAWindowOnceAndPassesItsParametersOn()
    {
        ShownFrame shown;
        basalt::Dictionary parameters;
        parameters.set("caption", "OtherName");
        parameters.set("title", "Other, Title");
        parameters.set("isSetActive", "1");
        WindowRegistry& windows = shown.host.windows();
        IWindow* const other = windows.open("OtherWindow"_q, parameters);
        QVERIFY(other != nullptr);
        QCOMPARE(windows.find("OtherName"_q), other);
        QCOMPARE(shown.dock("OtherName")->windowTitle(), "Other, Title"_q);
        QVERIFY(shown.dock("OtherName")->isCurrentTab());
        QCOMPARE(shown.dock("OtherName")->dockAreaWidget(),
                 shown.dock("DataMap")->dockAreaWidget());
        QCOMPARE(windows.open("OtherWindow"_q, parameters), other);

        IWindow* const survey = windows.open("TestWindow"_q, parameters);
        QCOMPARE(survey, windows.find("Survey Data List"_q));
        QCOMPARE(shown.dock("Survey Data List")->windowTitle(), "Other, Title"_q);
        QCOMPARE(survey->parameters().text("name"), std::string_view("Survey Data List"));

        // A third tab that is not set active stays behind the one in front.
        parameters.set("isSetActive", "0");
        parameters.set("caption", "Third");
        QVERIFY(windows.open("ThirdWindow"_q, parameters) != nullptr);
        QVERIFY(shown.dock("OtherName")->isCurrentTab());
        QMenu* const menu = shown.frame.menuBar()->actions().last()->menu();
        Q_EMIT menu->aboutToShow();
        QVERIFY(menu->actions().contains(shown.dock("Third")->toggleViewAction()));
        QCOMPARE(windows.open("UnknownWindow"_q, parameters), nullptr);
    }

    void restoresTheDocksOfTheLastSession()
    {
        {
            ShownFrame shown;
            QVERIFY(!shown.dock("Messages")->isClosed());
            shown.dock("Messages")->toggleView(false);
            auto* const manager = shown.frame.findChild<ads::CDockManager*>();
            manager->addDockWidget(ads::RightDockWidgetArea, shown.dock("Survey Data List"));
            shown.frame.resize(700, 500);
            QVERIFY(shown.frame.close());
        }
        {
            const ShownFrame again;
            QVERIFY(again.dock("Messages")->isClosed());
            const auto centerOf = [](const QWidget* widget) {
                return widget->mapToGlobal(widget->rect().center()).x();
            };
            QVERIFY(centerOf(again.dock("Survey Data List")) > centerOf(again.dock("DataMap")));
            QCOMPARE(again.frame.size(), QSize(700, 500));
        }
        QByteArray more(kLayout); // the saved docks are of another set of windows
        more.replace("</main_frame>",
                     "<window class=\"OtherWindow\" name=\"New\" area=\"right\"/></main_frame>");
        const ShownFrame other(more);
        QVERIFY(!other.dock("New")->isClosed());
        QVERIFY(!other.dock("Messages")->isClosed());
    }

    void aLargerScreensWindowIsCutToThisOne()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        {
            ShownFrame shown;
            QVERIFY(screen.contains(shown.frame.geometry())); // without a last session
            shown.frame.setGeometry(screen.adjusted(300, 200, 900, 700));
            QVERIFY(shown.frame.close());
        }
        ShownFrame again;
        QVERIFY(screen.contains(again.frame.geometry()));

        WindowRegistry& windows = again.host.windows();
        again.dock("Messages")->setFloating();
        again.dock("Messages")->window()->setGeometry(screen.adjusted(100, 100, 800, 50));
        QVERIFY(windows.restoreState(windows.saveState()));
        QVERIFY(again.dock("Messages")->isFloating());
        QTRY_VERIFY(screen.contains(again.dock("Messages")->window()->geometry()));
    }

    void shortcutsWorkInAFloatingWindow()
    {
        ShownFrame shown;
        get_system_status_dictionary().set("open", "1");
        shown.host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
        shown.dock("Messages")->setFloating();
        QWidget* const floating = shown.dock("Messages")->window();
        QVERIFY(floating != &shown.frame);
        floating->activateWindow();
        QTRY_VERIFY(floating->isActiveWindow());
        QTest::keyClick(shown.dock("Messages")->widget(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(executions, 1);
        shown.frame.activateWindow();
        QTRY_VERIFY(shown.frame.isActiveWindow());
        QTest::keyClick(&shown.frame, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(executions, 2);
    }

    void resetGivesEverySizeBack()
    {
        ShownFrame shown;
        const auto sizes = [&] {
            QVector<QSize> all{shown.frame.size()};
            for (const char* name : {"DataMap", "Survey Data List", "Messages", "Layers"})
                all << shown.dock(name)->size();
            return all;
        };
        const QVector<QSize> before = sizes();
        for (QSplitter* splitter : shown.frame.findChildren<QSplitter*>())
            splitter->setSizes({50, 500});
        shown.dock("Layers")->setFloating();
        shown.frame.resize(500, 400);
        QCoreApplication::processEvents();
        QVERIFY(sizes() != before);
        for (const auto state : {Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowFullScreen}) {
            shown.frame.setWindowState(state);
            QCoreApplication::processEvents();
            shown.frame.resetArrangement();
            QCoreApplication::processEvents();
            const QVector<QSize> after = sizes();
            for (int i = 0; i < before.size(); ++i) {
                const QSize change = after[i] - before[i]; // the frame's own title and borders
                QVERIFY2(qAbs(change.width()) < 10 && qAbs(change.height()) < 10,
                         qPrintable(
                             "%1: %2 x %3 more"_q.arg(i).arg(change.width()).arg(change.height())));
            }
        }
    }

    void resetsTheLayout()
    {
        ShownFrame shown;
        const QRect before = shown.dock("Layers")->geometry();
        for (const char* name : {"Messages", "Layers", "Survey Data List"})
            shown.dock(name)->toggleView(false);
        basalt::Dictionary parameters; // a window that was opened later must not matter
        QVERIFY(shown.host.windows().open("OtherWindow"_q, parameters) != nullptr);
        auto* const bar = shown.frame.findChild<QToolBar*>("bar"_q);
        bar->hide();
        shown.frame.resetArrangement();
        QCoreApplication::processEvents();
        QVERIFY(bar->isVisible());
        for (const char* name : {"Messages", "Layers", "Survey Data List"})
            QVERIFY2(!shown.dock(name)->isClosed(), name);
        QVERIFY(qAbs(shown.dock("Layers")->width() - before.width()) <= 2);
    }

    void theMapTakesWhatTheFrameGains()
    {
        ShownFrame shown;
        const auto widths = [&] {
            QCoreApplication::processEvents();
            return std::pair(shown.dock("Layers")->width(), shown.dock("DataMap")->width());
        };
        const auto [layers, map] = widths();
        shown.frame.resize(shown.frame.width() + 300, shown.frame.height() + 100);
        QCOMPARE(widths(), std::pair(layers, map + 300));

        auto* const manager = shown.frame.findChild<ads::CDockManager*>();
        manager->addDockWidget(ads::RightDockWidgetArea, shown.dock("Messages"));
        const auto [layersThen, mapThen] = widths();
        shown.frame.resize(shown.frame.width() - 200, shown.frame.height());
        QCOMPARE(widths(), std::pair(layersThen, mapThen - 200));
    }

    void staysOpenWhenTheAssistantRefuses()
    {
        ShownFrame shown;
        for (bool* const obstacle : {&refuses, &closeThrows}) {
            *obstacle = true;
            QVERIFY(!shown.frame.close());
            *obstacle = false;
        }
        QVERIFY(!file_system_check_file(basalt::settingsFolder() + "/frame.xml"));
        QVERIFY(shown.frame.close());
        QVERIFY(file_system_check_file(basalt::settingsFolder() + "/frame.xml"));
    }

    void goesOnWithoutASettingsFolder()
    {
        const QString folder = QString::fromStdString(basalt::settingsFolder());
        QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
        QFile inTheWay(folder); // a file where the folder should be
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        inTheWay.close();
        const LogCapture log;
        {
            ShownFrame shown("<main_frame/>");
            QVERIFY(shown.frame.close());
        }
        inTheWay.remove();
        QVERIFY2(log.holds(folder.toStdString()), log.text().c_str());
    }

    void keepsSettingChoices()
    {
        ShownFrame shown(R"(<main_frame><menu caption="M">
        <command class="SettingChoiceCommand" name="Feet" setting="un_coordUnit" value="1"/>
        <command class="SettingChoiceCommand" name="Dark" setting="theme" value="dark" restart="1"/>
        </menu></main_frame>)");
        Told told;
        QAction* const feet = shown.host.commands().action("Feet"_q);
        feet->trigger();
        QVERIFY(feet->isChecked());
        feet->trigger(); // it has the value already
        QVERIFY(feet->isChecked());
        QVERIFY(told.texts.isEmpty());
        shown.host.commands().action("Dark"_q)->trigger();
        QCOMPARE(told.texts.size(), 1);

        SystemParameter read(basalt::settingsFolder() + "/settings.xml");
        QVERIFY(read.load(SOURCE_FOLDER
                          "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/data_process_5.sys"));
        QCOMPARE(read.dictionary().integer("un_coordUnit"), 1);
        QCOMPARE(read.dictionary().text("theme"), std::string_view("dark"));
        get_system_ini_parameter().dictionary().clear();
    }

    void showsSilencedQuestionsAgain()
    {
        ShownFrame shown(R"(<main_frame><menu caption="M">
        <command class="ShowQuestionsCommand" name="Again"/></menu></main_frame>)");
        SilencedBoxes::add("first");
        SilencedBoxes::add("second");
        Told told;
        for (int i = 0; i < 2; ++i)
            QVERIFY(shown.host.commands().execute("Again"_q));
        QVERIFY(!SilencedBoxes::contains("first"));
        QVERIFY2(told.texts.value(0).contains("again: 2"_q), qPrintable(told.texts.join("\n"_q)));
        QVERIFY(told.texts.value(1) != told.texts.value(0));
    }

    void theTitleTellsWhatIsOpen()
    {
        ShownFrame shown("<main_frame/>");
        shown.frame.setTitle("Program"_q);
        shown.host.setDocument({"a[*]b"_q, true, true});
        QCOMPARE(shown.frame.windowTitle(), "a[*][*]b[*] [read-only] - Program"_q);
        QVERIFY(shown.frame.isWindowModified());
        shown.host.setDocument({});
        QCOMPARE(shown.frame.windowTitle(), "Program"_q);
        QVERIFY(!shown.frame.isWindowModified());
    }

    void endsItsWindowsOnce()
    {
        for (int round = 0; round < 3; ++round) {
            ShownFrame shown;
            shown.dock("Survey Data List")->setFloating();
            shown.dock("Messages")->toggleView(false);
            QCOMPARE(windowsAlive, 1);
            QVERIFY(shown.frame.close());
        }
        QCOMPARE(windowsAlive, 0);
    }

    // Of the product's windows the platform knows nothing; empty ones stand for them.
    void theInstalledLayoutPlacesItsWindows()
    {
        for (const char* name : {"DesignLineTable", "SurveyDataTable", "DesignLineControl",
                                 "SurveyDataControl", "AttributeControl"})
            desktop::registration::window<OtherWindow>(name, "");
        struct Case
        {
            QSize docks;
            QSize leastMap;
            int leastTable;
        };
        // What title, menus, tool bars and status bar leave of 1920 x 1080 and 1366 x 768, and of
        // both at 200 %.
        for (const auto& [size, leastMap, leastTable] :
             {Case{{1920, 975}, {1000, 550}, kTwelveRows}, Case{{1366, 663}, {800, 330}, 230},
              Case{{960, 435}, {450, 200}, 140}, Case{{683, 279}, {330, 100}, 80}}) {
            ShownFrame shown(installedLayout());
            shown.frame.showNormal();
            QCoreApplication::processEvents(); // fits the frame to the screen
            const auto* const docks = shown.frame.findChild<ads::CDockManager*>();
            shown.frame.resize(size + shown.frame.size() - docks->size());
            QCoreApplication::processEvents();
            QCOMPARE(docks->size(), size);
            shown.host.windows().resetLayout();
            QCoreApplication::processEvents();
            checkPlaces(shown);
            const QSize map = shown.dock("DataMap")->widget()->size();
            QVERIFY2(map.width() >= leastMap.width() && map.height() >= leastMap.height(),
                     qPrintable("%1 x %2"_q.arg(map.width()).arg(map.height())));
            const ads::CDockWidget* const inFront =
                shown.dock("Survey Data List")->dockAreaWidget()->currentDockWidget();
            const int table = inFront->widget()->height();
            QVERIFY2(table >= leastTable, qPrintable(QString::number(table)));
        }
    }

    void aRevealedWindowCoversNoOther()
    {
        ShownFrame shown(R"(<main_frame>
          <window class="MapWindow" name="DataMap" area="center"/>
          <window class="TestWindow" name="One" area="bottom"/>
          <window class="OtherWindow" name="Two" area="bottom"/>
          <window class="CoordinateReadout" name="Coordinates" area="status"/></main_frame>)");
        WindowRegistry& windows = shown.host.windows();
        const auto reveal = [&](const char* name) {
            return windows.reveal(QString::fromUtf8(name), "DataMap"_q);
        };
        QVERIFY(shown.dock("One")->isCurrentTab());
        windows.find("DataMap"_q)->widget()->setFocus();
        QWidget* const focus = shown.frame.focusWidget();
        QVERIFY(reveal("Two") && shown.dock("Two")->isCurrentTab());
        QVERIFY(reveal("Two")); // is in front already
        QCOMPARE(shown.frame.focusWidget(), focus);
        QVERIFY(!reveal("Coordinates") && !reveal("Three"));

        shown.dock("One")->toggleView(false);
        QVERIFY(!reveal("One") && shown.dock("One")->isClosed());
        shown.dock("One")->toggleView(true);
        shown.dock("One")->setFloating();
        QVERIFY(reveal("One") && reveal("Two"));
        QVERIFY(shown.dock("One")->isFloating());

        // The user has stacked tables and map: none comes over the map, nor the map over them.
        auto* const manager = shown.frame.findChild<ads::CDockManager*>();
        ads::CDockAreaWidget* const stack = shown.dock("DataMap")->dockAreaWidget();
        for (const char* name : {"One", "Two"})
            manager->addDockWidget(ads::CenterDockWidgetArea, shown.dock(name), stack);
        shown.dock("DataMap")->setAsCurrentTab();
        QVERIFY(!reveal("One") && !reveal("Two") && shown.dock("DataMap")->isCurrentTab());
        shown.dock("Two")->setAsCurrentTab();
        QVERIFY(reveal("Two"));
        QVERIFY(!windows.reveal("DataMap"_q, "Two"_q) && shown.dock("Two")->isCurrentTab());
    }

    void keysLeadFromWindowToWindow()
    {
        ShownFrame shown(R"(<main_frame>
          <menu caption="M">
            <command class="GoToWindowCommand" name="A" window="DataMap" shortcut="Ctrl+1"/>
            <command class="GoToWindowCommand" name="B" window="Layers" shortcut="Ctrl+2"/>
            <command class="GoToWindowCommand" name="C" window="Unknown"/>
          </menu>
          <window class="MapWindow" name="DataMap" area="center"/>
          <window class="MessageWindow" name="Messages" area="center"/>
          <window class="LayerWindow" name="Layers" area="left"/></main_frame>)");
        shown.frame.activateWindow();
        QTRY_VERIFY(shown.frame.isActiveWindow());
        QVERIFY(!shown.host.commands().action("C"_q)->isEnabled());
        const auto has = [&](const char* name) {
            QWidget* const widget = shown.host.windows().find(QString::fromUtf8(name))->widget();
            QWidget* const focus = QApplication::focusWidget();
            return widget->isVisible() && (widget == focus || widget->isAncestorOf(focus));
        };
        shown.dock("Messages")->setAsCurrentTab();
        shown.dock("Layers")->toggleView(false);
        QTest::keyClick(&shown.frame, Qt::Key_2, Qt::ControlModifier);
        QVERIFY(has("Layers"));
        QTest::keyClick(&shown.frame, Qt::Key_1, Qt::ControlModifier);
        QVERIFY(has("DataMap"));
        shown.dock("Layers")->setFloating();
        QTest::keyClick(&shown.frame, Qt::Key_2, Qt::ControlModifier);
        QTRY_VERIFY(has("Layers"));
    }

    void everyIconOfTheInstalledLayoutIsThere()
    {
        const QString xml = QString::fromUtf8(installedLayout());
        for (const QString& theme : {"light"_q, "dark"_q}) {
            desktop::applyAppearance(theme);
            static const QRegularExpression icon("icon=\"([^\"]+)\""_q);
            for (auto match = icon.globalMatch(xml); match.hasNext();) {
                const QString name = match.next().captured(1);
                const QIcon shown = QIcon::fromTheme(name);
                QVERIFY2(!shown.pixmap(22, 22).isNull(), qPrintable(theme + name));
                // The theme's own, or a drawing of ours; not another one of a similar name.
                QVERIFY2(shown.name() == name || shown.name().isEmpty(), qPrintable(theme + name));
            }
        }
    }
};

QTEST_MAIN(MainFrameTest)
#include "MainFrameTest.moc"
