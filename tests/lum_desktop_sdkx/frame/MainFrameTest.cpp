#include "lum_desktop_sdkx/frame/MainFrame.h"

#include "basalt_utilities/Files.h"
#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/CommandExecuterxBase.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/Appearance.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/DockWidget.h>
#include <QToolBar>
#include <QtTest>

namespace {

int windowsAlive = 0;
int executions = 0;
bool mayClose = true;
bool closeThrows = false;

class TestWindow final : public QLabel, public IWindowx
{
public:
    TestWindow(const char* config, IDesktopHost* /*host*/)
    {
        csa_to_dictionary(m_parameters, config);
        ++windowsAlive;
    }
    ~TestWindow() override { --windowsAlive; }
    QWidget* widget() override { return this; }
    IDictionary& parameters() override { return m_parameters; }

private:
    basalt::Dictionary m_parameters;
};
class OtherWindow final : public QLabel, public IWindowx
{
public:
    OtherWindow(const char* /*config*/, IDesktopHost* /*host*/) { ++windowsAlive; }
    ~OtherWindow() override { --windowsAlive; }
    QWidget* widget() override { return this; }
    IDictionary& parameters() override { return m_parameters; }

private:
    basalt::Dictionary m_parameters;
};

/// Enabled, checked and called by the status keys that its entry names.
class StatusCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    bool isEnabled() const override { return status("enabled_by") != 0; }
    bool isCheckable() const override { return true; }
    bool isChecked() const override { return status("checked_by") != 0; }
    QString caption() const override
    {
        return isChecked() ? QStringLiteral("hide") : QStringLiteral("show");
    }
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
        return mayClose ? 1 : 0;
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
  <window class="LayerWindow" name="Layers" area="left" place="below" width="200"/>
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

/// A frame with its host, shown, as the application object makes them.
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

} // namespace

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void leavesOutWhatIsNotRegistered();
    void readsCommandStatesOnTheStatusEvent();
    void survivesACommandThatThrows();
    void findsWindowsByClassNameAndCaption();
    void opensAWindowOnceAndPassesItsParametersOn();
    void restoresTheDocksOfTheLastSession();
    void refusesDocksOfAnotherSetOfWindows();
    void resetsTheLayout();
    void theMapTakesWhatTheFrameGains();
    void staysOpenWhenTheAssistantRefuses();
    void goesOnWithoutASettingsFolder();
    void keepsSettingChoices();
    void endsItsWindowsOnce();
    void theInstalledLayoutPlacesItsWindows();
    void everyIconOfTheInstalledLayoutIsThere();
};

void MainFrameTest::initTestCase()
{
    registerMapComponents();
    registerFrameComponents();
    const auto window = [](const char* name, auto* type) {
        using Make = desktop::Maker<IWindow, std::remove_pointer_t<decltype(type)>, IDesktopHost*>;
        extensible_factory_register_IWindow(name, "", Make::create, Make::destroy);
    };
    window("TestWindow", static_cast<TestWindow*>(nullptr));
    window("OtherWindow", static_cast<OtherWindow*>(nullptr));
    window("ThirdWindow", static_cast<OtherWindow*>(nullptr));
    using Status = desktop::Maker<ICommandExecuterx, StatusCommand, IDesktopHost*>;
    extensible_factory_register_ICommandExecuterx("StatusCommand", "", Status::create,
                                                  Status::destroy);
    using Throwing = desktop::Maker<ICommandExecuterx, ThrowingCommand, IDesktopHost*>;
    extensible_factory_register_ICommandExecuterx("ThrowingCommand", "", Throwing::create,
                                                  Throwing::destroy);
    using Assistant = desktop::Maker<IGuiAssistant, TestAssistant, IDesktopHost*>;
    extensible_factory_register_IGuiAssistant("TestAssistant", "", Assistant::create,
                                              Assistant::destroy);
}

void MainFrameTest::init()
{
    QDir(QString::fromStdString(basalt::settingsFolder())).removeRecursively();
    get_system_status_dictionary().clear();
    mayClose = true;
    executions = 0;
}

void MainFrameTest::leavesOutWhatIsNotRegistered()
{
    const ShownFrame shown;
    QStringList menus;
    for (const QAction* action : shown.frame.menuBar()->actions()) {
        if (action->isVisible())
            menus << action->text();
    }
    QCOMPARE(menus, QStringList({QStringLiteral("First"), QStringLiteral("Windows")}));

    QStringList items;
    for (const QAction* action : shown.frame.menuBar()->actions().at(0)->menu()->actions())
        items << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    QCOMPARE(items, QStringList({QStringLiteral("Save Project"), QStringLiteral("-"),
                                 QStringLiteral("Throw")}));

    const auto bars = shown.frame.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(bars.size(), 1);
    QCOMPARE(bars.at(0)->actions().size(), 1);

    Q_EMIT shown.frame.menuBar()->actions().last()->menu()->aboutToShow();
    QStringList docks;
    for (const QAction* action : shown.frame.menuBar()->actions().last()->menu()->actions())
        docks << action->text();
    QCOMPARE(docks, QStringList({QStringLiteral("Survey"), QStringLiteral("Messages"),
                                 QStringLiteral("Layers")}));
}

void MainFrameTest::readsCommandStatesOnTheStatusEvent()
{
    ShownFrame shown;
    QAction* const action = shown.host.commands().action(QStringLiteral("Save Project"));
    QVERIFY(!action->isEnabled());
    QVERIFY(!shown.host.commands().execute(QStringLiteral("Save Project")));
    QVERIFY(!shown.host.commands().execute(QStringLiteral("Unknown")));
    QCOMPARE(executions, 0);

    get_system_status_dictionary().set("open", "1");
    shown.host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
    QVERIFY(action->isEnabled());
    QVERIFY(!action->isChecked());
    QCOMPARE(action->text(), QStringLiteral("show"));

    shown.frame.activateWindow();
    QTRY_VERIFY(shown.frame.isActiveWindow());
    QTest::keyClick(&shown.frame, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(executions, 1);
    QVERIFY(action->isChecked()); // read again after the command
    QCOMPARE(action->text(), QStringLiteral("hide"));
}

void MainFrameTest::survivesACommandThatThrows()
{
    ShownFrame shown;
    QStringList told;
    const LumMessageBox::Responder responder([&](const LumMessageBox::Message& message) {
        told << message.text;
        return LumMessageBox::Button::Ok;
    });
    shown.host.commands().action(QStringLiteral("Throw"))->trigger();
    QVERIFY(shown.host.commands().execute(QStringLiteral("Throw")));
    QCOMPARE(told, QStringList({QStringLiteral("The command failed: no such column"),
                                QStringLiteral("The command failed: no such column")}));
}

void MainFrameTest::findsWindowsByClassNameAndCaption()
{
    ShownFrame shown;
    WindowRegistry& windows = shown.host.windows();
    IWindow* const window = windows.find(QStringLiteral("TestWindow"));
    QVERIFY(window != nullptr);
    QCOMPARE(windows.find(QStringLiteral("Survey Data List")), window);
    QCOMPARE(windows.find(QStringLiteral("Survey")), window);
    QCOMPARE(windows.find(QStringLiteral("survey")), nullptr);
    QVERIFY(!windows.activate(QStringLiteral("Unknown")));

    shown.dock("Survey Data List")->toggleView(false);
    QVERIFY(!window->widget()->isVisible());
    QVERIFY(windows.activate(QStringLiteral("Survey")));
    QVERIFY(window->widget()->isVisible());
}

void MainFrameTest::opensAWindowOnceAndPassesItsParametersOn()
{
    ShownFrame shown;
    basalt::Dictionary parameters;
    parameters.set("caption", "OtherName");
    parameters.set("title", "Other, Title");
    parameters.set("isSetActive", "1");
    WindowRegistry& windows = shown.host.windows();
    IWindow* const other = windows.open(QStringLiteral("OtherWindow"), parameters);
    QVERIFY(other != nullptr);
    QCOMPARE(windows.find(QStringLiteral("OtherName")), other);
    QCOMPARE(shown.dock("OtherName")->windowTitle(), QStringLiteral("Other, Title"));
    QVERIFY(shown.dock("OtherName")->isCurrentTab());
    QCOMPARE(shown.dock("OtherName")->dockAreaWidget(), shown.dock("DataMap")->dockAreaWidget());
    QCOMPARE(windows.open(QStringLiteral("OtherWindow"), parameters), other);

    IWindow* const survey = windows.open(QStringLiteral("TestWindow"), parameters);
    QCOMPARE(survey, windows.find(QStringLiteral("Survey Data List")));
    QCOMPARE(shown.dock("Survey Data List")->windowTitle(), QStringLiteral("Other, Title"));
    QCOMPARE(survey->parameters().text("name"), std::string_view("Survey Data List"));

    // A third tab that does not ask for it leaves the one in front alone.
    parameters.set("isSetActive", "0");
    parameters.set("caption", "Third");
    QVERIFY(windows.open(QStringLiteral("ThirdWindow"), parameters) != nullptr);
    QVERIFY(shown.dock("OtherName")->isCurrentTab());
    QMenu* const menu = shown.frame.menuBar()->actions().last()->menu();
    Q_EMIT menu->aboutToShow();
    QVERIFY(menu->actions().contains(shown.dock("Third")->toggleViewAction()));
    QCOMPARE(windows.open(QStringLiteral("UnknownWindow"), parameters), nullptr);
}

void MainFrameTest::restoresTheDocksOfTheLastSession()
{
    {
        ShownFrame shown;
        QVERIFY(!shown.dock("Messages")->isClosed());
        shown.dock("Messages")->toggleView(false);
        auto* const manager = shown.frame.findChild<ads::CDockManager*>();
        manager->addDockWidget(ads::RightDockWidgetArea, shown.dock("Survey Data List"));
        shown.frame.resize(900, 500);
        QVERIFY(shown.frame.close());
    }
    const ShownFrame again;
    QVERIFY(again.dock("Messages")->isClosed());
    const auto centerOf = [](const QWidget* widget) {
        return widget->mapToGlobal(widget->rect().center()).x();
    };
    QVERIFY(centerOf(again.dock("Survey Data List")) > centerOf(again.dock("DataMap")));
    QCOMPARE(again.frame.size(), QSize(900, 500));
}

void MainFrameTest::refusesDocksOfAnotherSetOfWindows()
{
    {
        ShownFrame shown;
        shown.dock("Messages")->toggleView(false);
        QVERIFY(shown.frame.close());
    }
    QByteArray more(kLayout);
    more.replace("</main_frame>",
                 "<window class=\"OtherWindow\" name=\"New\" area=\"right\"/></main_frame>");
    const ShownFrame again(more);
    QVERIFY(!again.dock("New")->isClosed());
    QVERIFY(!again.dock("Messages")->isClosed());
}

void MainFrameTest::resetsTheLayout()
{
    ShownFrame shown;
    const QRect before = shown.dock("Layers")->geometry();
    for (const char* name : {"Messages", "Layers", "Survey Data List"})
        shown.dock(name)->toggleView(false);
    basalt::Dictionary parameters; // a window that came later does not stand in the way
    QVERIFY(shown.host.windows().open(QStringLiteral("OtherWindow"), parameters) != nullptr);
    auto* const bar = shown.frame.findChild<QToolBar*>(QStringLiteral("bar"));
    bar->hide();
    shown.frame.resetArrangement();
    QCoreApplication::processEvents();
    QVERIFY(bar->isVisible());
    for (const char* name : {"Messages", "Layers", "Survey Data List"})
        QVERIFY2(!shown.dock(name)->isClosed(), name);
    QVERIFY(qAbs(shown.dock("Layers")->width() - before.width()) <= 2);
}

void MainFrameTest::theMapTakesWhatTheFrameGains()
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

void MainFrameTest::staysOpenWhenTheAssistantRefuses()
{
    ShownFrame shown;
    mayClose = false;
    QVERIFY(!shown.frame.close());
    QVERIFY(shown.frame.isVisible());
    QVERIFY(!file_system_check_file(basalt::settingsFolder() + "/frame.xml"));
    closeThrows = true;
    QVERIFY(!shown.frame.close());
    closeThrows = false;
    QVERIFY(shown.frame.isVisible());
    mayClose = true;
    QVERIFY(shown.frame.close());
    QVERIFY(file_system_check_file(basalt::settingsFolder() + "/frame.xml"));
}

void MainFrameTest::goesOnWithoutASettingsFolder()
{
    const QString folder = QString::fromStdString(basalt::settingsFolder());
    QVERIFY(QDir().mkpath(QFileInfo(folder).path()));
    QFile inTheWay(folder); // not even root can make a folder of it
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    std::string log;
    basalt::setLogListener([](void* text, ILogger::Level,
                              std::string_view line) { *static_cast<std::string*>(text) += line; },
                           &log);
    {
        ShownFrame shown("<main_frame/>");
        QVERIFY(shown.frame.close());
    }
    basalt::setLogListener(nullptr, nullptr);
    inTheWay.remove();
    QVERIFY2(log.find(folder.toStdString()) != std::string::npos, log.c_str());
}

void MainFrameTest::keepsSettingChoices()
{
    ShownFrame shown(R"(<main_frame><menu caption="M">
        <command class="SettingChoiceCommand" name="Feet" setting="un_coordUnit" value="1"/>
        <command class="SettingChoiceCommand" name="Dark" setting="theme" value="dark" restart="1"/>
        </menu></main_frame>)");
    QStringList told;
    const LumMessageBox::Responder responder([&](const LumMessageBox::Message& message) {
        told << message.text;
        return LumMessageBox::Button::Ok;
    });
    QAction* const feet = shown.host.commands().action(QStringLiteral("Feet"));
    feet->trigger();
    QVERIFY(feet->isChecked());
    feet->trigger(); // chosen already
    QVERIFY(feet->isChecked());
    QVERIFY(told.isEmpty());
    shown.host.commands().action(QStringLiteral("Dark"))->trigger();
    QCOMPARE(told.size(), 1);

    SystemParameter read(basalt::settingsFolder() + "/settings.xml");
    QVERIFY(read.load(SOURCE_FOLDER
                      "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/data_process_5.sys"));
    QCOMPARE(read.dictionary().integer("un_coordUnit"), 1);
    QCOMPARE(read.dictionary().text("theme"), std::string_view("dark"));
    get_system_ini_parameter().dictionary().clear();
}

void MainFrameTest::endsItsWindowsOnce()
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

// Every window of the finished program, here as an empty one of its name.
void MainFrameTest::theInstalledLayoutPlacesItsWindows()
{
    using Make = desktop::Maker<IWindow, OtherWindow, IDesktopHost*>;
    for (const char* name : {"DesignLineTable", "SurveyDataTable", "DesignLineControl",
                             "SurveyDataControl", "AttributeControl"})
        extensible_factory_register_IWindow(name, "", Make::create, Make::destroy);
    ShownFrame shown(installedLayout());
    shown.frame.resize(1400, 900);
    QCoreApplication::processEvents();

    const auto area = [&](const char* name) { return shown.dock(name)->dockAreaWidget(); };
    QCOMPARE(area("Design Data List"), area("DataMap"));
    QCOMPARE(area("Survey Data List"), area("DataMap"));
    QVERIFY(shown.dock("DataMap")->isCurrentTab());

    const auto placeOf = [&](const char* name) {
        return QRect(area(name)->mapTo(&shown.frame, QPoint(0, 0)), area(name)->size());
    };
    const QRect map = placeOf("DataMap");
    for (const char* name : {"Design Lines", "Survey Lines"})
        QVERIFY2(placeOf(name).right() < map.left() && placeOf(name).width() < map.width(), name);
    for (const char* name : {"Attributes", "Layers"})
        QVERIFY2(placeOf(name).left() > map.right() && placeOf(name).width() < map.width(), name);
    QVERIFY(placeOf("Design Lines").bottom() < placeOf("Survey Lines").top());
    QVERIFY(placeOf("Attributes").bottom() < placeOf("Layers").top());
    QVERIFY(placeOf("Attributes").height() > placeOf("Layers").height());
    QVERIFY(placeOf("Messages").top() > map.bottom());
    QCOMPARE(placeOf("Messages").left(), map.left());
}

void MainFrameTest::everyIconOfTheInstalledLayoutIsThere()
{
    const QString xml = QString::fromUtf8(installedLayout());
    for (const QString& theme : {QStringLiteral("light"), QStringLiteral("dark")}) {
        desktop::applyAppearance(theme);
        static const QRegularExpression icon(QStringLiteral("icon=\"([^\"]+)\""));
        for (auto match = icon.globalMatch(xml); match.hasNext();) {
            const QString name = match.next().captured(1);
            QVERIFY2(!QIcon::fromTheme(name).pixmap(22, 22).isNull(), qPrintable(theme + name));
        }
    }
}

QTEST_MAIN(MainFrameTest)
#include "MainFrameTest.moc"
