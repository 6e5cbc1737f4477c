#include "map/ui/PlacePick.h"

#include "lum_sdk/Transform.h"
#include "map/ui/MouseModeCommands.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"

#include <QDialog>

#include <memory>

namespace {

const QColor kMark(200, 0, 200);

/// A map with two design points of one number, a result and its base station, and a dialog that
/// picks places.
class Picks : public TestMap
{
public:
    Picks()
    {
        host.document.name = "demo"_q;
        addDesign("1001", "10015001", 100.12345678, 100.87654321);
        addDesign("1002", "10015001", 250, 300);
        addResult("1001", "10015002", 150.4321, 200.1234, {300.5, 150.25}, {200, 190});
        publish(events::kRefreshDesignLayer);
        showAll();
        picture();
        m_log.events.clear();
        dialog.show();
        QObject::connect(pick(), &PlacePick::picked, [this](const QVector<PickedPlace>& places) {
            for (const PickedPlace& place : places)
                m_heard << QString::number(place.north, 'g', 12) + " "_q +
                               QString::number(place.east, 'g', 12) + " "_q + place.point;
        });
        QObject::connect(pick(), &PlacePick::ended, [this] { m_heard << "ended"_q; });
    }

    [[nodiscard]] PlacePick* pick() { return m_pick.get(); }
    void end() { m_pick.reset(); }
    void press(QWidget& focus, int key = Qt::Key_Escape) { QTest::keyClick(&focus, Qt::Key(key)); }
    QStringList heard() { return std::exchange(m_heard, {}); }
    /// The selections that the map has published since the last call.
    std::size_t selections() { return std::exchange(m_log.events, {}).size(); }

    QDialog dialog;

private:
    std::unique_ptr<PlacePick> m_pick = std::make_unique<PlacePick>(host, &dialog);
    QStringList m_heard;
    EventLog m_log{host.events, "ON_DESIGN_POINT_SELECTED,ON_SURVEY_POINT_SELECTED,"
                                "ON_STATION_POINT_SELECTED"};
};

} // namespace

class PlacePickTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }

    void aPointIsTakenExactlyAndAPlaceToTheMillimetre()
    {
        struct Case
        {
            const char* view;
            QPoint click;
            QString taken;
        };
        Picks map;
        const QString number = "10015001"_q;
        for (const auto& [view, click, taken] :
             {Case{"1", {108, 205}, "100.12345678 100.87654321 "_q + number},
              {"1", {301, 52}, "250 300 "_q + number}, // of the other line
              {"1", {200, 150}, "150 200 "_q},         // a result, which is not in view
              {"0", {203, 148}, "150.4321 200.1234 10015002"_q},
              {"0", {301, 149}, "150.25 300.5 Base-1"_q},
              {"0", {101, 200}, "100 101 "_q}}) {
            map.setStatus(status::kViewShowWhich, view);
            map.publish(events::kPaintingLayerUpdate);
            map.showAll();
            QVERIFY(map.pick()->start(1));
            map.click(click.x(), click.y());
            QCOMPARE(map.heard(), (QStringList{taken, "ended"_q}));
        }
        map.window.zoomRect(1000000, 5000000, 1000000.4, 5000000.3); // a pixel is a millimetre
        map.window.zoomAbout(0, 300, 3);
        QVERIFY(map.pick()->start(1));
        map.click(1, 300);
        QCOMPARE(map.heard(), (QStringList{"5000000 1000000 "_q, "ended"_q}));
        map.setStatus(status::kViewShowWhich, "1");
        map.layer().GetProperties().set("visible", "0"); // what is not shown is not hit
        map.showAll();
        QVERIFY(map.pick()->start(1));
        map.click(101, 200);
        QCOMPARE(map.heard().first(), "100 101 "_q);
        QCOMPARE(map.selections(), 0U);
    }

    void twoPlacesHaveALineBetweenThem()
    {
        Picks map;
        QVERIFY(map.pick()->start(2));
        QCOMPARE(map.cursor(), Qt::CrossCursor);
        QVERIFY(map.host.told.contains("1 of 2"_q));
        moveMouse(map.window, {98, 203});
        QCOMPARE(map.shown(108, 199), kMark); // a ring around the point that a click takes
        map.click(98, 203);
        QVERIFY(map.host.told.contains("2 of 2"_q));
        QVERIFY(map.heard().isEmpty());
        moveMouse(map.window, {201, 200});
        int marked = 0;
        for (int x = 110; x < 200; ++x)
            marked += map.shown(x, 199) == kMark ? 1 : 0;
        QVERIFY(marked > 40);              // dashed
        map.window.zoomAbout(201, 200, 2); // the first place stays where it is on the map
        map.press(map.window, Qt::Key_Plus);
        map.showAll();
        map.click(201, 200);
        QCOMPARE(map.heard(),
                 (QStringList{"100.12345678 100.87654321 10015001"_q, "100 201 "_q, "ended"_q}));
        QCOMPARE(map.host.told, QString());
        QCOMPARE(map.cursor(), Qt::ArrowCursor);
        QVERIFY(map.shown(108, 199) != kMark);
        QCOMPARE(map.selections(), 0U);
        map.click(101, 200);
        QCOMPARE(map.selections(), 1U); // picks again
    }

    void aDoubleClickIsOnePlaceAndDoesNotZoom()
    {
        Picks map;
        map.window.zoomAbout(100, 200, 2);
        const QString view = viewOf(map.window.transform());
        QVERIFY(map.pick()->start(2));
        for (const QPoint& place : {QPoint(50, 50), QPoint(150, 50)}) {
            map.click(place.x(), place.y());
            QTest::mouseDClick(&map.window, Qt::LeftButton, {}, place);
            QTest::mouseRelease(&map.window, Qt::LeftButton, {}, place);
        }
        QCOMPARE(map.heard().size(), 3);
        QCOMPARE(viewOf(map.window.transform()), view);
    }

    void theToolInUseGetsNoClickAndComesBack()
    {
        Picks map;
        PPKMoveCommand("", &map.host).execute();
        const QPointF center = map.window.transform().center();
        QVERIFY(map.pick()->start(2));
        dragMouse(map.window, Qt::LeftButton, {100, 50}, {200, 80});
        QCOMPARE(map.window.transform().center(), center);
        dragMouse(map.window, Qt::MiddleButton, {100, 50}, {110, 50}); // pans as ever
        QCOMPARE(map.window.transform().center(), center - QPointF(10, 0));
        QCOMPARE(map.cursor(), Qt::CrossCursor);
        map.click(300, 200);
        QCOMPARE(map.heard().size(), 3);
        QCOMPARE(map.cursor(), Qt::OpenHandCursor);
        dragMouse(map.window, Qt::LeftButton, {100, 50}, {110, 50});
        QCOMPARE(map.window.transform().center(), center - QPointF(20, 0));
    }

    void itEndsWithoutAResult()
    {
        Picks map;
        map.click(101, 200);
        QCOMPARE(map.shown(101, 200), QColor(Qt::red)); // the selected point
        PlacePick other(map.host, &map.dialog);
        const std::pair<const char*, std::function<void()>> ends[] = {
            {"Escape on the map", [&] { map.press(map.window); }},
            {"Escape in the dialog", [&] { map.press(map.dialog); }},
            {"right click", [&] { map.click(20, 20, Qt::RightButton); }},
            {"another pick", [&] { QVERIFY(other.start(1)); }},
            {"the dialog closes", [&] { map.dialog.hide(); }},
            {"another tool", [&] { PPKZoomRectCommand("", &map.host).execute(); }},
            {"no project",
             [&] {
                 map.host.document = {};
                 map.publish(events::kUpdateSystemStatus);
             }},
        };
        for (const auto& [name, end] : ends) {
            map.dialog.show();
            QVERIFY2(map.pick()->start(2), name);
            map.click(200, 100);
            end();
            QVERIFY2(map.heard() == QStringList{"ended"_q}, name);
            QVERIFY2(!map.pick()->isPicking(), name);
            QCOMPARE(map.dialog.isVisible(), std::string_view(name) != "the dialog closes");
            QCOMPARE(map.shown(101, 200), QColor(Qt::red));
            other.cancel();
        }
        QCOMPARE(map.cursor(), Qt::CrossCursor); // of the other tool
        QVERIFY(!map.pick()->start(1));
        QVERIFY(map.host.told.contains("open project"_q));
        QVERIFY(map.heard().isEmpty());
    }

    void theMapIsAsBeforeWhenTheDialogGoes()
    {
        Picks map;
        QVERIFY(map.pick()->start(2));
        map.click(200, 100);
        map.end();
        QVERIFY(map.heard().isEmpty());
        QCOMPARE(map.cursor(), Qt::ArrowCursor);
        map.click(101, 200);
        QCOMPARE(map.selections(), 1U);
    }
};

QTEST_MAIN(PlacePickTest)
#include "PlacePickTest.moc"
