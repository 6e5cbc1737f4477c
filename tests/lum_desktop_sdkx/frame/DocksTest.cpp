#include "basalt_utilities/Product.h"
#include "tests/lum_desktop_sdkx/frame/ShownFrame.h"
#include "tests/support/TestFolder.h"

#include <QtWidgets>

namespace {

constexpr const char* kLayout = R"(<main_frame>
  <menu caption="M">
    <command class="ExitCommand" name="Exit"/>
    <command class="GoToWindowCommand" name="A" window="DataMap" shortcut="Ctrl+1"/>
    <command class="GoToWindowCommand" name="B" window="Layers" shortcut="Ctrl+2"/>
    <command class="GoToWindowCommand" name="C" window="Unknown"/>
  </menu>
  <menu caption="Windows"><docks/></menu>
  <toolbar name="bar" caption="Bar"><command name="Exit"/></toolbar>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
  <window class="TestWindow" name="Survey Data List" caption="Survey" area="left" width="200"/>
  <window class="MessageWindow" name="Messages" area="bottom" height="100"/>
  <window class="LayerWindow" name="Layers" area="left" place="below" width="200" height="150"/>
  <window class="CoordinateReadout" name="Coordinates" area="status"/>
</main_frame>)";

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

/// The windows of the frame in their docks.
class DocksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerTestWindows(); }

    void init()
    {
        QDir(QString::fromStdString(basalt::settingsFolder())).removeRecursively();
        get_system_status_dictionary().clear();
    }

    void restoresTheDocksOfTheLastSession()
    {
        {
            ShownFrame shown(kLayout);
            shown.dock("Messages")->toggleView(false);
            shown.docks().addDockWidget(ads::RightDockWidgetArea, shown.dock("Survey Data List"));
            shown.frame.resize(700, 500);
            QVERIFY(shown.frame.close());
        }
        {
            const ShownFrame again(kLayout);
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
            ShownFrame shown(kLayout);
            QVERIFY(screen.contains(shown.frame.geometry())); // without a last session
            shown.frame.setGeometry(screen.adjusted(300, 200, 900, 700));
            QVERIFY(shown.frame.close());
        }
        ShownFrame again(kLayout);
        QVERIFY(screen.contains(again.frame.geometry()));

        WindowRegistry& windows = again.host.windows();
        again.dock("Messages")->setFloating();
        again.dock("Messages")->window()->setGeometry(screen.adjusted(100, 100, 800, 50));
        QVERIFY(windows.restoreState(windows.saveState()));
        QVERIFY(again.dock("Messages")->isFloating());
        QTRY_VERIFY(screen.contains(again.dock("Messages")->window()->geometry()));
    }

    void resetGivesEverySizeBack()
    {
        ShownFrame shown(kLayout);
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
        shown.dock("Messages")->toggleView(false);
        shown.frame.resize(500, 400);
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
            ShownFrame shown(TestFolder::read(QStringLiteral(
                SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml")));
            shown.frame.showNormal();
            QCoreApplication::processEvents(); // fits the frame to the screen
            shown.frame.resize(size + shown.frame.size() - shown.docks().size());
            QCoreApplication::processEvents();
            QCOMPARE(shown.docks().size(), size);
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
            return windows.reveal(QString::fromUtf8(name), {"DataMap"_q});
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
        ads::CDockAreaWidget* const stack = shown.dock("DataMap")->dockAreaWidget();
        for (const char* name : {"One", "Two"})
            shown.docks().addDockWidget(ads::CenterDockWidgetArea, shown.dock(name), stack);
        shown.dock("DataMap")->setAsCurrentTab();
        QVERIFY(!reveal("One") && !reveal("Two") && shown.dock("DataMap")->isCurrentTab());
        shown.dock("Two")->setAsCurrentTab();
        QVERIFY(reveal("Two"));
        QVERIFY(!windows.reveal("DataMap"_q, {"Two"_q}) && shown.dock("Two")->isCurrentTab());
    }

    void keysLeadFromWindowToWindowAndTheDocksShowTheFocus()
    {
        ShownFrame shown(kLayout);
        QVERIFY(!shown.action("C")->isEnabled());
        const auto hasFocus = [&](const char* name) {
            QWidget* const widget = shown.host.windows().find(QString::fromUtf8(name))->widget();
            QWidget* const focus = QApplication::focusWidget();
            return widget->isVisible() && (widget == focus || widget->isAncestorOf(focus));
        };
        const auto isMarked = [&](const char* name) {
            return shown.dock(name)->dockAreaWidget()->property("focused").toBool();
        };
        shown.docks().addDockWidget(ads::CenterDockWidgetArea, shown.dock("Messages"),
                                    shown.dock("DataMap")->dockAreaWidget());
        shown.dock("Layers")->toggleView(false);
        shown.pressKey(Qt::Key_2, Qt::ControlModifier);
        QVERIFY(hasFocus("Layers") && isMarked("Layers") && !isMarked("Messages"));
        shown.pressKey(Qt::Key_1, Qt::ControlModifier); // hidden behind the messages
        QVERIFY(hasFocus("DataMap") && isMarked("DataMap") && !isMarked("Layers"));
        shown.dock("Layers")->setFloating();
        QTest::keyClick(&shown.frame, Qt::Key_2, Qt::ControlModifier);
        QTRY_VERIFY(hasFocus("Layers"));
    }
};

QTEST_MAIN(DocksTest)
#include "DocksTest.moc"
