#include "map/ui/DrawCommands.h"
#include "map/ui/MouseModeCommands.h"
#include "map/ui/ViewChangeCommand.h"
#include "map/ui/ZoomCommands.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"

#include <QHelpEvent>
#include <QToolTip>

#include <memory>

namespace {

using Heard = std::vector<std::string>;

const std::string kStatus = "UPDATE_SYSTEM_STATUS_EVENT";
const std::string kFirstPoint = "ON_DESIGN_POINT_SELECTED pointName=10015001,lineName=1001";

/// A map of a receiver line, a source line and two results that share a base station.
class Tools : public TestMap
{
public:
    Tools()
    {
        addDesign("1001", "10015001", 100, 100);
        addDesign("1001", "10015002", 100, 300);
        addDesign("2001", "20015001", 200, 100, 0);
        addResult("1001", "10015001", 150, 200, {300, 150}, {200, 190});
        addResult("1001", "10015002", 150, 250, {300, 150});
        publish(events::kRefreshDesignLayer);
        showAll();
        picture();
        m_log.events.clear();
    }

    template <class Command>
    std::unique_ptr<ICommandExecuterx> command(const char* config = "")
    {
        return std::make_unique<Command>(config, &host);
    }
    template <class Command>
    void run(const char* config = "")
    {
        command<Command>(config)->execute();
    }
    void move(const QPoint& to, Qt::MouseButtons buttons) { moveMouse(window, to, buttons); }
    void drag(const QPoint& from, const QPoint& to) { dragMouse(window, Qt::LeftButton, from, to); }
    [[nodiscard]] int mode() const { return status().integer(status::kMouseMode, 0); }
    [[nodiscard]] static const IDictionary& status() { return get_system_status_dictionary(); }
    [[nodiscard]] QString view() const { return viewOf(window.transform()); }
    [[nodiscard]] QPointF center() const { return window.transform().center(); }
    [[nodiscard]] double scale() const { return window.transform().GetScale(); }

    Heard heard() { return m_log.told(); }

private:
    EventLog m_log{host.events, "ON_DESIGN_POINT_SELECTED,ON_SURVEY_POINT_SELECTED,"
                                "ON_STATION_POINT_SELECTED,UPDATE_SYSTEM_STATUS_EVENT,"
                                "ON_INIT_BOUNDARY_RECT,ON_PAINTING_LAYER_UPDATE"};
};

} // namespace

/// The mouse handlers by real mouse events, the commands as the frame runs them.
class MapToolsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }
    void clickPicksADesignPoint()
    {
        Tools map;
        map.click(93, 207); // 9.9 pixels beside it
        QCOMPARE(map.heard(), Heard{kFirstPoint});
        QCOMPARE(map.shown(100, 200), QColor(Qt::red));
        QCOMPARE(map.shown(103, 200), QColor(Qt::red)); // a radius of 5
        map.click(300, 200);
        QCOMPARE(map.shown(100, 200), QColor(Qt::cyan)); // one at a time
        map.heard();
        map.click(110, 200); // ten pixels beside it
        QCOMPARE(map.heard(), Heard{});
        QCOMPARE(map.shown(300, 200), QColor(Qt::red)); // the highlight stays
        map.addDesign("1001", "10015002", 100, 380);    // moved, but not drawn there yet
        map.click(300, 200);
        QCOMPARE(map.heard().size(), 1U);

        map.click(20, 20, Qt::RightButton);
        map.setStatus(status::kViewShowWhich, "2"); // a view that shows nothing
        map.heard();
        map.click(100, 200);
        QCOMPARE(map.heard(), Heard{});
        QCOMPARE(map.shown(100, 200), QColor(Qt::cyan)); // the picture of before
    }

    void clickPicksAResultOrABaseStation()
    {
        Tools map;
        map.setStatus(status::kViewShowWhich, "0");
        map.publish(events::kRefreshSurveyLayer);
        map.showAll();
        map.picture();
        map.click(201, 151);
        QCOMPARE(map.heard(), Heard{"ON_SURVEY_POINT_SELECTED pointName=10015001,lineName=1001"});
        QCOMPARE(map.shown(200, 150), QColor(Qt::blue));
        QCOMPARE(map.shown(202, 147), QColor(Qt::blue)); // a cross, empty between its arms
        QVERIFY(map.shown(203, 150) != QColor(Qt::blue));
        QCOMPARE(map.shown(192, 110), QColor(Qt::blue)); // its design position: a ring
        QVERIFY(map.shown(196, 110) != QColor(Qt::blue));
        map.click(301, 151);
        QCOMPARE(map.heard(), Heard{"ON_STATION_POINT_SELECTED stationId=0"});
        QCOMPARE(map.shown(300, 153), QColor(Qt::blue));
        QVERIFY(map.shown(192, 110) != QColor(Qt::blue));
        map.click(250, 150); // without a design position the line ends at (0, 0)
        QCOMPARE(map.shown(0, 292), QColor(Qt::blue));
    }

    void theHighlightGoes()
    {
        Tools map;
        map.click(100, 200);
        map.click(20, 20, Qt::RightButton);
        QCOMPARE(map.shown(100, 200), QColor(Qt::cyan));
        map.click(100, 200);
        QTest::keyClick(&map.window, Qt::Key_Escape);
        QCOMPARE(map.shown(100, 200), QColor(Qt::cyan));
        map.heard();
        map.click(100, 200); // and picks on
        QCOMPARE(map.heard().size(), 1U);
        map.publish(events::kUpdateSystemStatus);
        QCOMPARE(map.shown(100, 200), QColor(Qt::red));
        map.setStatus(status::kProjectPath, "/another");
        map.publish(events::kUpdateSystemStatus);
        QCOMPARE(map.shown(100, 200), QColor(Qt::cyan));
    }

    void doubleClickShowsEverything()
    {
        Tools map;
        map.window.zoomAbout(100, 200, 8);
        map.click(100, 200);
        QTest::mouseDClick(&map.window, Qt::LeftButton, {}, QPoint(100, 200));
        QCOMPARE(map.center(), QPointF(200, 150));
        const QPoint place = map.window.transform().SurveyToScreen(100, 100).toPoint();
        QCOMPARE(map.picture().pixelColor(place), QColor(Qt::cyan)); // no highlight
    }

    void restingCursorTellsWhatIsThere()
    {
        Tools map;
        const auto tipAt = [&map](const QPoint& place) {
            QHelpEvent event(QEvent::ToolTip, place, map.window.mapToGlobal(place));
            QApplication::sendEvent(&map.window, &event);
            return QToolTip::isVisible() ? QToolTip::text() : QString();
        };
        QCOMPARE(tipAt({105, 203}),
                 "Line 1001, point 10015001 (receiver)\nN=100.000    E=100.000"_q);
        tipAt({150, 20});
        QTRY_VERIFY(!QToolTip::isVisible());
        tipAt({105, 203});
        QTest::keyClick(&map.window, Qt::Key_Home); // the point moves from under the cursor
        QTRY_VERIFY(!QToolTip::isVisible());
        map.showAll();
        map.addDesign("<b>1</b>", "2", 50, 50);
        map.publish(events::kRefreshDesignLayer);
        map.showAll();
        QVERIFY(tipAt({50, 250}).contains("&lt;b&gt;1"_q)); // a name is no markup
        map.layer().GetProperties().set("visible", "0");
        tipAt({105, 203});
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void dragPansWhileMoving()
    {
        Tools map;
        map.run<PPKMoveCommand>();
        QCOMPARE(map.cursor(), Qt::OpenHandCursor);
        map.move({200, 200}, Qt::NoButton);
        QCOMPARE(map.center(), QPointF(200, 150));
        QTest::mousePress(&map.window, Qt::LeftButton, {}, QPoint(100, 100));
        QCOMPARE(map.cursor(), Qt::ClosedHandCursor);
        map.move({110, 130}, Qt::LeftButton);
        map.move({90, 100}, Qt::LeftButton);
        QCOMPARE(map.center(), QPointF(210, 150));
        map.picture();
        QTest::mouseRelease(&map.window, Qt::LeftButton, {}, QPoint(90, 100));
        QVERIFY(!map.window.isUpToDate());
        QCOMPARE(map.cursor(), Qt::OpenHandCursor);
        map.move({0, 0}, Qt::NoButton);
        QCOMPARE(map.center(), QPointF(210, 150));
        QCOMPARE(map.heard(), Heard{kStatus}); // no pick
        map.picture();
        map.click(50, 50); // a click moves nothing, and paints nothing
        QVERIFY(map.window.isUpToDate());
    }

    void rectangleOfAnyDirectionIsZoomedTo()
    {
        Tools map;
        map.run<PPKZoomRectCommand>();
        map.drag({100, 50}, {300, 200});
        QCOMPARE(map.view(), "200, 175 at 0.5"_q);
        map.drag({300, 200}, {100, 50}); // towards the upper left
        QCOMPARE(map.view(), "200, 187.5 at 0.25"_q);
        map.showAll();
        map.click(100, 50); // zooms in about this place
        QCOMPARE(map.window.transform().SurveyToScreen({100, 250}).toPoint(), QPoint(100, 50));
        QVERIFY(map.scale() < 1);
        map.showAll();
        QTest::mouseRelease(&map.window, Qt::LeftButton, {}, QPoint(10, 10)); // pressed elsewhere
        QCOMPARE(map.scale(), 1.0);

        QTest::mousePress(&map.window, Qt::LeftButton, {}, QPoint(320, 20));
        map.move({380, 80}, Qt::LeftButton);
        QVERIFY(map.shown(350, 50) != QColor(Qt::white)); // the rectangle
        QTest::mouseRelease(&map.window, Qt::LeftButton, {}, QPoint(380, 80));
        map.showAll();
        map.picture();
        QCOMPARE(map.shown(350, 50), QColor(Qt::white));
    }

    void rightClickAndEscapeEndTheTool()
    {
        Tools map;
        int tools = 0;
        for (const auto& tool :
             {map.command<PPKMoveCommand>(), map.command<PPKZoomRectCommand>()}) {
            tool->execute();
            QVERIFY(tool->isCheckable() && tool->isChecked());
            map.heard();
            if (tools++ == 0)
                map.click(200, 20, Qt::RightButton);
            else
                QTest::keyClick(&map.window, Qt::Key_Escape);
            QVERIFY(!tool->isChecked());
            QCOMPARE(map.mode(), 0);
            QCOMPARE(map.cursor(), Qt::ArrowCursor);
            QCOMPARE(map.heard(), Heard{kStatus});
            map.click(100, 200);
            QCOMPARE(map.heard().size(), 1U); // picks again
        }
        map.run<PPKMoveCommand>();
        map.setStatus(status::kMouseMode, "2"); // another tool's by now
        map.click(200, 20, Qt::RightButton);
        QCOMPARE(map.mode(), 2);
    }

    void toolsAreSwitchedByTheirCommands()
    {
        Tools map;
        const auto pan = map.command<PPKMoveCommand>();
        const auto zoom = map.command<PPKZoomRectCommand>("reactor=ReactorZoomRectTrans");
        pan->execute();
        QCOMPARE(map.mode(), 1);
        zoom->execute();
        QCOMPARE(map.mode(), 2);
        QVERIFY(zoom->isChecked() && !pan->isChecked());
        QCOMPARE(map.cursor(), Qt::CrossCursor);
        pan->execute();
        map.heard();
        pan->execute(); // once more ends it
        QCOMPARE(map.mode(), 0);
        map.click(100, 200);
        QCOMPARE(map.heard(), (Heard{kStatus, kFirstPoint}));
    }

    void drawCommandsFlipTheirStatus()
    {
        Tools map;
        const struct
        {
            std::unique_ptr<ICommandExecuterx> command;
            const char* key;
            QString caption;
        } toggles[] = {{map.command<DrawExcitationCommand>(), "show_s_line", "show s line"_q},
                       {map.command<DrawReceiverCommand>(), "show_r_line", "show r line"_q}};
        for (const auto& [command, key, caption] : toggles) {
            QVERIFY(command->isCheckable() && command->isChecked() && command->isEnabled());
            QCOMPARE(command->caption(), "not "_q + caption);
            command->execute();
            QVERIFY(!command->isChecked());
            QCOMPARE(map.status().text(key), std::string_view("0"));
            QCOMPARE(command->caption(), caption);
            map.setStatus(key, "5");
            command->execute();
            QCOMPARE(map.status().text(key), std::string_view("1"));
            QCOMPARE(map.heard(), (Heard{kStatus, kStatus}));
            QCOMPARE(map.scale(), 200 / 360.0); // everything shows
        }
        map.showAll();
        map.run<DrawBoundaryCommand>();
        QCOMPARE(map.heard(), (Heard{"ON_INIT_BOUNDARY_RECT", kStatus}));
        QCOMPARE(map.scale(), 200 / 360.0);
    }

    void viewCommandsChangeThePictureAndKeepThePlace()
    {
        Tools map;
        const auto survey = map.command<ViewChangeCommand>("caption=Survey View,keep_place=1");
        const auto design = map.command<ViewChangeCommand>("caption=Design View,keep_place=1");
        map.window.zoomRect(180, 80, 310, 210);
        const QString place = map.view();
        survey->execute();
        QCOMPARE(map.status().text("view_show_which"), std::string_view("0"));
        QCOMPARE(map.heard(), (Heard{"ON_PAINTING_LAYER_UPDATE", kStatus}));
        QCOMPARE(map.host.windowRegistry.activated, QStringList("DataMap"_q));
        QCOMPARE(map.window.extent(), QRectF(200, 150, 100, 10)); // handed over
        QCOMPARE(map.view(), place);
        design->execute();
        QCOMPARE(map.view(), place);

        map.window.zoomRect(90, 90, 130, 120); // a design point, no result
        survey->execute();
        QCOMPARE(map.center(), QPointF(250, 155));
        map.window.zoomRect(280, 140, 320, 160); // the base station, no design point
        const QString atBase = map.view();
        survey->execute();
        QCOMPARE(map.view(), atBase);
        design->execute();
        QCOMPARE(map.center(), QPointF(200, 150));
        map.window.zoomRect(180, 140, 210, 160);
        map.run<ViewChangeCommand>("caption=Design View"); // does not keep the place
        QCOMPARE(map.center(), QPointF(200, 150));
        map.run<ViewChangeCommand>("caption=Another");
        QCOMPARE(map.status().text("view_show_which"), std::string_view("0"));
    }
};

QTEST_MAIN(MapToolsTest)
#include "MapToolsTest.moc"
