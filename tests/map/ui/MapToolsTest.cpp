#include "map/ui/DrawCommands.h"
#include "map/ui/MouseModeCommands.h"
#include "map/ui/ViewChangeCommand.h"
#include "map/ui/ZoomCommands.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/map/ui/TestMap.h"

#include <QHelpEvent>
#include <QToolTip>

#include <memory>

namespace {

constexpr const char* kHeard[] = {events::kDesignPointSelected,  events::kSurveyPointSelected,
                                  events::kStationPointSelected, events::kUpdateSystemStatus,
                                  events::kInitBoundaryRect,     events::kPaintingLayerUpdate};

} // namespace

/// The mouse handlers by real mouse events, the commands as the frame runs them.
class MapToolsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }
    void init();
    void cleanup();

    void clickPicksADesignPoint();
    void clickPicksAResultOrABaseStation();
    void clickBesideEverythingKeepsTheHighlight();
    void otherViewsSwallowClicks();
    void rightClickTakesTheHighlightAway();
    void highlightGoesWithItsProject();
    void doubleClickShowsEverything();
    void restingCursorTellsTheName();
    void dragPansWhileMoving();
    void rectangleOfAnyDirectionIsZoomedTo();
    void rightClickAndEscapeEndTheTool();
    void toolsAreSwitchedByTheirCommands();
    void zoomCommandsZoom();
    void lineCommandsFlipTheirStatus();
    void boundaryCommandFlipsItsStatus();
    void viewCommandsChangeThePicture();
    void withoutAMapCommandsOnlyTell();

private:
    template <class Command>
    std::unique_ptr<ICommandExecuterx> command(const char* config = "")
    {
        return std::make_unique<Command>(config, &m_map->host);
    }
    void click(int x, int y, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&m_map->window, button, {}, QPoint(x, y));
    }
    void move(const QPoint& to, Qt::MouseButtons buttons);
    void drag(const QPoint& from, const QPoint& to);
    [[nodiscard]] int mode() const
    {
        return get_system_status_dictionary().integer(status::kMouseMode, 0);
    }
    [[nodiscard]] QPointF center() const { return m_map->window.transform().center(); }
    [[nodiscard]] double scale() const { return m_map->window.transform().GetScale(); }
    [[nodiscard]] QColor shown(int x, int y)
    {
        return m_map->window.grab().toImage().pixelColor(x, y);
    }
    /// "EVENT payload" of all events since the last call.
    QStringList heard();

    std::unique_ptr<TestMap> m_map;
    TestListener m_listener;
};

/// A receiver line and a source line, two results that share a base station.
void MapToolsTest::init()
{
    m_map = std::make_unique<TestMap>();
    m_map->addDesign("1001", "10015001", 100, 100);
    m_map->addDesign("1001", "10015002", 100, 300);
    m_map->addDesign("2001", "20015001", 200, 100, 0);
    m_map->addResult("1001", "10015001", 150, 200, {300, 150}, {200, 190});
    m_map->addResult("1001", "10015002", 150, 250, {300, 150});
    m_map->publish(events::kRefreshDesignLayer);
    m_map->showAll();
    m_map->picture();
    m_listener = TestListener();
    for (const char* name : kHeard)
        m_map->host.events.subscribe(name, &m_listener);
}

void MapToolsTest::cleanup()
{
    for (const char* name : kHeard)
        m_map->host.events.unsubscribe(name, &m_listener);
    m_map.reset();
}

void MapToolsTest::move(const QPoint& to, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, to, m_map->window.mapToGlobal(to), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&m_map->window, &event);
}

void MapToolsTest::drag(const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&m_map->window, Qt::LeftButton, {}, from);
    move((from + to) / 2, Qt::LeftButton);
    move(to, Qt::LeftButton);
    QTest::mouseRelease(&m_map->window, Qt::LeftButton, {}, to);
}

QStringList MapToolsTest::heard()
{
    QStringList list;
    for (int i = 0; i < m_listener.names.size(); ++i)
        list.append((m_listener.names[i] + QLatin1Char(' ') + m_listener.payloads[i]).trimmed());
    m_listener.names.clear();
    m_listener.payloads.clear();
    return list;
}

void MapToolsTest::clickPicksADesignPoint()
{
    click(93, 207); // 9.9 pixels beside it
    QCOMPARE(heard(), QStringList(QStringLiteral(
                          "ON_DESIGN_POINT_SELECTED pointName=10015001,lineName=1001")));
    QCOMPARE(shown(100, 200), QColor(Qt::red));
    QCOMPARE(shown(103, 200), QColor(Qt::red)); // a radius of 5
    click(300, 200);
    QCOMPARE(shown(300, 200), QColor(Qt::red));
    QCOMPARE(shown(100, 200), QColor(Qt::cyan)); // one at a time
    heard();
    m_map->addDesign("1001", "10015002", 100, 380); // moved, but not drawn there yet
    click(300, 200);
    QCOMPARE(heard().size(), 1);
}

void MapToolsTest::clickPicksAResultOrABaseStation()
{
    m_map->setStatus(status::kViewShowWhich, "0");
    m_map->publish(events::kRefreshSurveyLayer);
    m_map->showAll();
    m_map->picture();
    click(201, 151);
    QCOMPARE(heard(), QStringList(QStringLiteral(
                          "ON_SURVEY_POINT_SELECTED pointName=10015001,lineName=1001")));
    QCOMPARE(shown(200, 150), QColor(Qt::blue));
    QCOMPARE(shown(200, 107), QColor(Qt::blue)); // its design position
    click(301, 151);
    QCOMPARE(heard(), QStringList(QStringLiteral("ON_STATION_POINT_SELECTED stationId=0")));
    QCOMPARE(shown(300, 153), QColor(Qt::blue));
    QVERIFY(shown(200, 107) != QColor(Qt::blue));
    click(250, 150);
    QCOMPARE(shown(0, 299), QColor(Qt::blue)); // without a design position the line ends at (0, 0)
}

void MapToolsTest::clickBesideEverythingKeepsTheHighlight()
{
    click(100, 200);
    heard();
    click(150, 20);
    click(110, 200); // ten pixels beside it
    QCOMPARE(heard(), QStringList());
    QCOMPARE(shown(100, 200), QColor(Qt::red));
}

void MapToolsTest::otherViewsSwallowClicks()
{
    m_map->setStatus(status::kViewShowWhich, "2");
    click(100, 200);
    QCOMPARE(heard(), QStringList());
    QCOMPARE(shown(100, 200), QColor(Qt::cyan)); // the picture of before
}

void MapToolsTest::rightClickTakesTheHighlightAway()
{
    click(100, 200);
    click(20, 20, Qt::RightButton);
    QCOMPARE(shown(100, 200), QColor(Qt::cyan));
    click(100, 200);
    QTest::keyClick(&m_map->window, Qt::Key_Escape);
    QCOMPARE(shown(100, 200), QColor(Qt::cyan));
    heard();
    click(100, 200); // and picks on
    QCOMPARE(heard().size(), 1);
}

void MapToolsTest::highlightGoesWithItsProject()
{
    click(100, 200);
    m_map->publish(events::kUpdateSystemStatus);
    QCOMPARE(shown(100, 200), QColor(Qt::red));
    m_map->setStatus(status::kProjectPath, "/another");
    m_map->publish(events::kUpdateSystemStatus);
    QCOMPARE(shown(100, 200), QColor(Qt::cyan));
}

void MapToolsTest::doubleClickShowsEverything()
{
    m_map->window.zoomAbout(100, 200, 8);
    click(100, 200);
    QTest::mouseDClick(&m_map->window, Qt::LeftButton, {}, QPoint(100, 200));
    const QRectF extent(100, 100, 200, 100);
    QCOMPARE(center(), extent.center());
    m_map->picture();
    const QPoint place = m_map->window.transform().SurveyToScreen(100, 100).toPoint();
    QCOMPARE(shown(place.x(), place.y()), QColor(Qt::cyan));
}

void MapToolsTest::restingCursorTellsTheName()
{
    const auto tipAt = [this](const QPoint& place) {
        QHelpEvent event(QEvent::ToolTip, place, m_map->window.mapToGlobal(place));
        QApplication::sendEvent(&m_map->window, &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    QCOMPARE(tipAt({105, 203}), QStringLiteral("10015001"));
    QCOMPARE(tipAt({103, 103}), QStringLiteral("20015001"));
    tipAt({150, 20});
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(tipAt({105, 203}), QStringLiteral("10015001"));
    QTest::keyClick(&m_map->window, Qt::Key_Home); // the point moves from under the cursor
    QTRY_VERIFY(!QToolTip::isVisible());
    m_map->showAll();
    m_map->layer().GetProperties().set("visible", "0");
    QCOMPARE(tipAt({105, 203}), QString());
}

void MapToolsTest::dragPansWhileMoving()
{
    command<PPKMoveCommand>()->execute();
    QCOMPARE(m_map->window.cursor().shape(), Qt::OpenHandCursor);
    move({200, 200}, Qt::NoButton);
    QCOMPARE(center(), QPointF(200, 150));
    QTest::mousePress(&m_map->window, Qt::LeftButton, {}, QPoint(100, 100));
    QCOMPARE(m_map->window.cursor().shape(), Qt::ClosedHandCursor);
    move({110, 130}, Qt::LeftButton);
    QCOMPARE(center(), QPointF(190, 180));
    move({90, 100}, Qt::LeftButton);
    QCOMPARE(center(), QPointF(210, 150));
    m_map->picture();
    QTest::mouseRelease(&m_map->window, Qt::LeftButton, {}, QPoint(90, 100));
    QVERIFY(!m_map->window.isUpToDate());
    QCOMPARE(m_map->window.cursor().shape(), Qt::OpenHandCursor);
    move({0, 0}, Qt::NoButton);
    QCOMPARE(center(), QPointF(210, 150));
    QCOMPARE(heard(), QStringList(QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT"))); // no pick

    m_map->picture();
    click(50, 50); // a click moves nothing, and paints nothing
    QVERIFY(m_map->window.isUpToDate());
}

void MapToolsTest::rectangleOfAnyDirectionIsZoomedTo()
{
    command<PPKZoomRectCommand>()->execute();
    drag({100, 50}, {300, 200});
    QCOMPARE(center(), QPointF(200, 175));
    QCOMPARE(scale(), 0.5);
    drag({300, 200}, {100, 50}); // towards the upper left
    QCOMPARE(center(), QPointF(200, 187.5));
    QCOMPARE(scale(), 0.25);
    m_map->showAll();
    click(200, 150);
    QCOMPARE(center(), QPointF(200, 150));
    QVERIFY(scale() < 1); // nearer
    m_map->showAll();
    QTest::mouseRelease(&m_map->window, Qt::LeftButton, {}, QPoint(10, 10)); // pressed elsewhere
    QCOMPARE(scale(), 1.0);

    QTest::mousePress(&m_map->window, Qt::LeftButton, {}, QPoint(320, 20));
    move({380, 80}, Qt::LeftButton);
    QVERIFY(m_map->window.grab().toImage().pixelColor(350, 50) != QColor(Qt::white)); // the band
    QTest::mouseRelease(&m_map->window, Qt::LeftButton, {}, QPoint(380, 80));
    m_map->showAll();
    m_map->picture();
    QCOMPARE(shown(350, 50), QColor(Qt::white));
}

void MapToolsTest::rightClickAndEscapeEndTheTool()
{
    int rightClicks = 0;
    for (const auto& tool : {command<PPKMoveCommand>(), command<PPKZoomRectCommand>()}) {
        tool->execute();
        QVERIFY(tool->isChecked());
        heard();
        if (rightClicks++ == 0)
            click(200, 20, Qt::RightButton);
        else
            QTest::keyClick(&m_map->window, Qt::Key_Escape);
        QVERIFY(!tool->isChecked());
        QCOMPARE(mode(), 0);
        QCOMPARE(m_map->window.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(heard(), QStringList(QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")));
        click(100, 200);
        QCOMPARE(heard().size(), 1); // picks again
    }
    command<PPKMoveCommand>()->execute();
    m_map->setStatus(status::kMouseMode, "2"); // another tool's by now
    click(200, 20, Qt::RightButton);
    QCOMPARE(mode(), 2);
}

void MapToolsTest::toolsAreSwitchedByTheirCommands()
{
    const auto pan = command<PPKMoveCommand>();
    const auto zoom = command<PPKZoomRectCommand>("reactor=ReactorZoomRectTrans");
    pan->execute();
    QCOMPARE(mode(), 1);
    zoom->execute();
    QCOMPARE(mode(), 2);
    QVERIFY(zoom->isChecked() && !pan->isChecked());
    drag({100, 50}, {300, 200});
    QCOMPARE(scale(), 0.5);
    m_map->showAll();
    pan->execute();
    drag({100, 100}, {110, 100});
    QCOMPARE(center(), QPointF(190, 150));
    m_map->showAll();
    heard();
    pan->execute();
    QCOMPARE(mode(), 0);
    click(100, 200);
    QCOMPARE(heard(), (QStringList{QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT"),
                                   QStringLiteral("ON_DESIGN_POINT_SELECTED "
                                                  "pointName=10015001,lineName=1001")}));
    command<PPKZoomRectCommand>("reactor=ReactorMoveTrans")->execute(); // as configured
    drag({100, 100}, {110, 100});
    QCOMPARE(center(), QPointF(190, 150));
}

void MapToolsTest::zoomCommandsZoom()
{
    command<PPKZoomInCommand>()->execute();
    QVERIFY(scale() < 1);
    command<PPKZoomOutCommand>()->execute();
    QCOMPARE(scale(), 1.0);
    command<PPKZoomAllCommand>()->execute();
    QCOMPARE(center(), QPointF(200, 150));
    QCOMPARE(scale(), 200 / 360.0);
    QCOMPARE(heard(), QStringList());
}

void MapToolsTest::lineCommandsFlipTheirStatus()
{
    const struct
    {
        std::unique_ptr<ICommandExecuterx> command;
        const char* key;
        const char* shownCaption;
        const char* hiddenCaption;
    } toggles[] = {
        {command<DrawExcitationCommand>(), "show_s_line", "not show s line", "show s line"},
        {command<DrawReceiverCommand>(), "show_r_line", "not show r line", "show r line"}};
    for (const auto& toggle : toggles) {
        QVERIFY(toggle.command->isCheckable() && toggle.command->isChecked());
        QCOMPARE(toggle.command->caption(), QLatin1String(toggle.shownCaption));
        toggle.command->execute();
        QVERIFY(!toggle.command->isChecked());
        QCOMPARE(get_system_status_dictionary().text(toggle.key), std::string_view("0"));
        QCOMPARE(toggle.command->caption(), QLatin1String(toggle.hiddenCaption));
        m_map->setStatus(toggle.key, "5");
        toggle.command->execute();
        QCOMPARE(get_system_status_dictionary().text(toggle.key), std::string_view("1"));
        QCOMPARE(heard(), (QStringList{QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT"),
                                       QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")}));
        QCOMPARE(scale(), 200 / 360.0); // everything shows
    }
}

void MapToolsTest::boundaryCommandFlipsItsStatus()
{
    const auto boundary = command<DrawBoundaryCommand>();
    QVERIFY(!boundary->isChecked());
    boundary->execute();
    QVERIFY(boundary->isChecked());
    QCOMPARE(heard(), (QStringList{QStringLiteral("ON_INIT_BOUNDARY_RECT"),
                                   QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")}));
    boundary->execute();
    QVERIFY(!boundary->isChecked());
    QCOMPARE(heard(), QStringList(QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")));
    QCOMPARE(scale(), 200 / 360.0);
}

void MapToolsTest::viewCommandsChangeThePicture()
{
    command<ViewChangeCommand>("caption=Survey View")->execute();
    QCOMPARE(get_system_status_dictionary().text("view_show_which"), std::string_view("0"));
    QCOMPARE(heard(), (QStringList{QStringLiteral("ON_PAINTING_LAYER_UPDATE"),
                                   QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")}));
    QCOMPARE(m_map->host.windowRegistry.activated, QStringList(QStringLiteral("DataMap")));
    QCOMPARE(m_map->window.extent(), QRectF(200, 150, 100, 0.0).united({200, 150, 100, 10}));
    QCOMPARE(center(), QPointF(250, 155)); // of the survey's extent, handed over before
    command<ViewChangeCommand>("caption=Design View")->execute();
    QCOMPARE(center(), QPointF(200, 150));
    QCOMPARE(get_system_status_dictionary().text("view_show_which"), std::string_view("1"));
    command<ViewChangeCommand>("caption=Another")->execute();
    QCOMPARE(get_system_status_dictionary().text("view_show_which"), std::string_view("0"));
}

void MapToolsTest::withoutAMapCommandsOnlyTell()
{
    m_map->host.windowRegistry.windows.clear();
    const std::unique_ptr<ICommandExecuterx> tellers[] = {
        command<PPKMoveCommand>(),        command<PPKZoomRectCommand>(),
        command<DrawExcitationCommand>(), command<DrawReceiverCommand>(),
        command<DrawBoundaryCommand>(),   command<ViewChangeCommand>("caption=Survey View")};
    const std::size_t keys = get_system_status_dictionary().size();
    for (const auto& teller : tellers) {
        teller->execute();
        QCOMPARE(heard(), QStringList(QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")));
    }
    command<PPKZoomAllCommand>()->execute();
    command<PPKZoomInCommand>()->execute();
    QCOMPARE(get_system_status_dictionary().size(), keys);
    QCOMPARE(scale(), 1.0);
}

QTEST_MAIN(MapToolsTest)
#include "MapToolsTest.moc"
