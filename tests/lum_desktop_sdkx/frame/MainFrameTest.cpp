#include "basalt_utilities/Files.h"
#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/CommandExecuterxBase.h"
#include "lum_desktop_sdkx/frame/StatusText.h"
#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "tests/lum_desktop_sdkx/frame/ShownFrame.h"
#include "tests/support/LogCapture.h"

#include <QtWidgets>

namespace {

int executions = 0;
bool refuses = false;
bool closeThrows = false;
QStringList openedFiles;

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
  <window class="UnknownWindow" name="Unknown" area="left"/>
  <window class="MessageWindow" name="Messages" area="bottom"/>
  <window class="TestWindow" name="Survey Data List" caption="Survey" area="left"/>
</main_frame>)";

} // namespace

/// The entries of menus and tool bars, and the life of the frame.
class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerTestWindows();
        desktop::registration::command<StatusCommand>("StatusCommand", "");
        desktop::registration::command<ThrowingCommand>("ThrowingCommand", "");
        desktop::registration::assistant<TestAssistant>("TestAssistant", "");
    }

    void init()
    {
        QDir(QString::fromStdString(basalt::settingsFolder())).removeRecursively();
        get_system_status_dictionary().clear();
        executions = 0;
    }

    void leavesOutWhatIsNotRegistered()
    {
        const ShownFrame shown(kLayout);
        const QMenuBar& menuBar = *shown.frame.menuBar();
        QStringList menus;
        for (const QAction* action : menuBar.actions()) {
            if (action->isVisible())
                menus << action->text();
        }
        QCOMPARE(menus, QStringList({"First"_q, "Windows"_q}));

        QStringList items;
        for (const QAction* action : menuBar.actions().at(0)->menu()->actions())
            items << (action->isSeparator() ? "-"_q : action->objectName());
        QCOMPARE(items, QStringList({"Save Project"_q, "-"_q, "Throw"_q}));

        const auto bars =
            shown.frame.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(bars.size(), 1);
        QCOMPARE(bars.at(0)->actions().size(), 1);

        QMenu& windows = *menuBar.actions().last()->menu();
        Q_EMIT windows.aboutToShow();
        QStringList docks;
        for (const QAction* action : windows.actions())
            docks << action->text();
        QCOMPARE(docks, QStringList({"&1  Messages"_q, "&2  Survey"_q}));
    }

    void commandsFollowTheStatusAndWorkInEveryWindow()
    {
        ShownFrame shown(kLayout);
        QAction* const action = shown.action("Save Project");
        QVERIFY(!action->isEnabled());
        QVERIFY(!shown.host.commands().execute("Save Project"_q));
        QVERIFY(!shown.host.commands().execute("Unknown"_q));
        QCOMPARE(executions, 0);

        shown.setStatus("open", "1");
        QVERIFY(action->isEnabled() && !action->isChecked());
        shown.pressKey(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(executions, 1);
        QVERIFY(action->isChecked()); // read again after the command
        QCOMPARE(action->text(), "hide"_q);

        shown.dock("Messages")->setFloating();
        QWidget* const floating = shown.dock("Messages")->window();
        QVERIFY(floating != &shown.frame);
        floating->activateWindow();
        QTRY_VERIFY(floating->isActiveWindow());
        QTest::keyClick(shown.dock("Messages")->widget(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(executions, 2);
        shown.pressKey(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(executions, 3);

        Boxes boxes;
        shown.action("Throw")->trigger();
        QCOMPARE(boxes.last.text, "The command failed: no such column"_q);
    }

    void aFileWaitsForTheEndOfDialogs()
    {
        ShownFrame shown(kLayout);
        Boxes boxes;
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

        QVERIFY(boxes.told().isEmpty());
        shown.frame.openWhenFree({"/d.txt"_q, "/e.x"_q});
        QCOMPARE(boxes.last.text, "\"/d.txt\" is not a file that can be opened here."_q);
        QCOMPARE(openedFiles.last(), "/e.x"_q);
    }

    void comesToTheFrontFromTheTaskBar()
    {
        ShownFrame shown(kLayout);
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
        QAction* const lines = shown.action("Lines");
        QCOMPARE(lines->text(), "&show"_q); // the command's own text with the layout's letter
        shown.setStatus("open", "1");
        shown.pressKey(Qt::Key_F10);
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
        shown.setStatus("open", "1");
        for (const char* view : {"1", "0", "2", "1"}) {
            shown.setStatus("view", view);
            QCOMPARE(shown.action("Rows")->isEnabled(), *view == '1');
            QCOMPARE(shown.host.commands().execute("Rows"_q), *view == '1');
            QCOMPARE(shown.action("A")->isChecked(), *view == '1');
            QCOMPARE(shown.action("B")->isChecked(), *view == '0');
        }
    }

    void choicesOfASettingExcludeOneAnotherAndAreKept()
    {
        ShownFrame shown(R"(<main_frame><menu caption="M">
        <command class="SettingChoiceCommand" name="Metres" setting="un_coordUnit" value="0" group="unit"/>
        <command class="SettingChoiceCommand" name="Feet" setting="un_coordUnit" value="1" group="unit"/>
        <command class="SettingChoiceCommand" name="Dark" setting="theme" value="dark" restart="1"/>
        <command class="SettingChoiceCommand" name="Ties" setting="ties" value="1" otherwise="0"/>
        </menu></main_frame>)");
        Boxes boxes;
        QAction* const metres = shown.action("Metres");
        QAction* const feet = shown.action("Feet");
        QVERIFY(metres->actionGroup() != nullptr && metres->actionGroup()->isExclusive());
        for (QAction* chosen : {feet, metres, feet, feet}) { // the last has the value already
            chosen->trigger();
            QCOMPARE(metres->actionGroup()->checkedAction(), chosen);
        }
        for (const bool isShown : {true, false, true}) {
            shown.action("Ties")->trigger();
            QCOMPARE(shown.action("Ties")->isChecked(), isShown);
            QCOMPARE(get_system_ini_parameter().dictionary().integer("ties"), isShown ? 1 : 0);
        }
        QVERIFY(boxes.told().isEmpty());
        shown.action("Dark")->trigger();
        QCOMPARE(boxes.told().size(), 1);

        basalt::Dictionary kept;
        QVERIFY(xml_to_dictionary(basalt::settingsFolder() + "/settings.xml", kept));
        QCOMPARE(kept.integer("un_coordUnit"), 1);
        QCOMPARE(kept.text("theme"), std::string_view("dark"));
        get_system_ini_parameter().dictionary().clear();
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

    void staysOpenWhenTheAssistantRefuses()
    {
        ShownFrame shown(kLayout);
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
};

QTEST_MAIN(MainFrameTest)
#include "MainFrameTest.moc"
