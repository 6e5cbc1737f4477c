#include "map/ui/PointHighlight.h"

#include "lum_sdk/Transform.h"
#include "tests/map/ui/TestMap.h"

#include <QDialog>

#include <cmath>

namespace {

SurveyPoint result(double north, double east, double designNorth = 0, double designEast = 0)
{
    SurveyPoint point;
    point.north = north;
    point.east = east;
    point.designNorth = designNorth;
    point.designEast = designEast;
    return point;
}

} // namespace

class PointHighlightTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }

    void theMapMovesOnlyToAPointOutsideItsView()
    {
        struct Case
        {
            double east;
            double north;
            bool moves;
        };
        TestMap map; // 400 x 300 metres
        for (const auto& [east, north, moves] : {Case{12, 12, false},
                                                 {388, 288, false},
                                                 {200, 150, false},
                                                 {3, 150, true},
                                                 {200, 297, true},
                                                 {-1, 150, true},
                                                 {5000, 7000, true}}) {
            for (const bool isDesign : {false, true}) {
                map.window.zoomRect(0, 0, 400, 300);
                if (isDesign)
                    PointHighlight::mark(map.host, DesignPoint{"", "", north, east});
                else // its design position outside does not count
                    PointHighlight::mark(map.host, result(north, east, 9000, 9000));
                const QPointF middle = moves ? QPointF(east, north) : QPointF(200, 150);
                QCOMPARE(map.window.transform().center(), middle);
                QCOMPARE(map.window.transform().GetScale(), 1.0);
                const QPoint place = map.window.transform().SurveyToScreen(east, north).toPoint();
                QCOMPARE(map.picture().pixelColor(place), QColor(isDesign ? Qt::red : Qt::blue));
            }
            PointHighlight::clear(map.host);
            map.window.zoomRect(0, 0, 400, 300);
            PointHighlight::bringIntoView(map.host, DesignPoint{"", "", north, east});
            QCOMPARE(map.window.transform().center(),
                     moves ? QPointF(east, north) : QPointF(200, 150));
            const QPoint place = map.window.transform().SurveyToScreen(east, north).toPoint();
            QCOMPARE(map.picture().pixelColor(place), QColor(Qt::white));
        }
        QVERIFY(map.host.windowRegistry.activated.isEmpty());
        QVERIFY(map.host.windowRegistry.revealed.isEmpty());
    }

    void aPointUnderAWindowComesOut()
    {
        TestMap map; // 400 x 300 metres
        QDialog list(&map.window);
        list.setGeometry(QRect(map.window.mapToGlobal(QPoint(150, 100)), QSize(300, 250)));
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        const auto placeOf = [&](double north, double east) {
            return map.window.transform().SurveyToScreen(east, north);
        };
        PointHighlight::mark(map.host, result(250, 300)); // above the list
        QCOMPARE(map.window.transform().center(), QPointF(200, 150));
        PointHighlight::mark(map.host, result(100, 300));
        QVERIFY(placeOf(100, 300).x() < 140); // beside it, where most room is
        map.window.zoomRect(0, 0, 4000, 3000);
        PointHighlight::zoomTo(map.host, result(1000, 3000));
        QVERIFY(map.window.transform().GetScale() <= 1.0);
        QVERIFY(placeOf(1000, 3000).x() < 140);
        list.setGeometry(QRect(map.window.mapToGlobal(QPoint(-10, -50)), QSize(450, 400)));
        PointHighlight::mark(map.host, result(5000, 7000)); // nothing is free
        QCOMPARE(map.window.transform().center(), QPointF(7000, 5000));
    }

    void manyPointsAreMarkedAroundTheirMiddle()
    {
        TestMap map; // 400 x 300 metres
        QPolygonF places;
        for (int i = 0; i < 20000; ++i)
            places << QPointF(1000 + i % 200, 1000 + i / 200);
        places << QPointF(std::nan(""), 0);
        QVERIFY(PointHighlight::markGroup(map.host, places));
        QCOMPARE(map.window.transform().GetScale(), 1.0);
        const QPointF off = map.window.transform().center() - QPointF(1099.5, 1049.5);
        QVERIFY2(off.manhattanLength() < 5, "not at their middle");
        QCOMPARE(map.picture().pixelColor(200, 150), QColor(Qt::blue));
        const QPointF before = map.window.transform().center();
        QVERIFY(PointHighlight::markGroup(map.host, QPolygonF(places.mid(0, 1000)))); // in view
        QCOMPARE(map.window.transform().center(), before);
        PointHighlight::zoomToGroup(map.host, QVector<QPointF>{{0, 0}, {4000, 3000}});
        QCOMPARE(map.window.transform().center(), QPointF(2000, 1500));
        QVERIFY(map.window.transform().GetScale() > 10);
        QVERIFY(!PointHighlight::markGroup(map.host, QVector<QPointF>{{std::nan(""), 0}}));
    }

    void zoomComesNearEnough()
    {
        struct Case
        {
            double offset; // metres from the design
            double before; // metres a pixel
            double after;
        };
        TestMap map;
        for (const auto& [offset, before, after] :
             {Case{50, 100, 1}, {6, 100, 0.5}, {0.01, 100, 0.05}, {0, 100, 1}, {6, 0.3, 0.3}}) {
            map.window.zoomRect(0, 0, 400 * before, 300 * before);
            QCOMPARE(map.window.transform().GetScale(), before);
            PointHighlight::zoomTo(map.host, result(4000, 3000, 4000 + offset, 3000));
            QCOMPARE(map.window.transform().center(), QPointF(3000, 4000));
            QCOMPARE(map.window.transform().GetScale(), after);
        }
        map.window.zoomAbout(200, 150, 0.01);
        const Transform view = map.window.transform();
        PointHighlight::zoomTo(map.host, result(std::nan(""), 3000));
        QVERIFY2(map.window.transform() == view, "moved to a position that is no number");
        PointHighlight::zoomTo(map.host, DesignPoint{"", "", 1, 2});
        QCOMPARE(map.host.windowRegistry.revealed.last(), "DataMap beside Design Data List"_q);
        QVERIFY(map.host.windowRegistry.activated.isEmpty());
    }
};

QTEST_MAIN(PointHighlightTest)
#include "PointHighlightTest.moc"
