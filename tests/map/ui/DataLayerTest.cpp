#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "map/ui/DrawCommands.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/OnEvent.h"
#include "tests/support/Pixels.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace {

using Payloads = std::vector<std::string>;

} // namespace

class DataLayerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }
    void eachEventRebuildsTheCacheInView()
    {
        for (const char* const event : {events::kPaintingLayerUpdate, events::kSettingViewFinished,
                                        events::kRefreshSurveyLayer, events::kRefreshDesignLayer}) {
            TestMap map;
            map.addDesign("1", "d", 100, 100);
            map.addResult("1", "s", 200, 200, {210, 200});
            QCOMPARE(map.layer().PickDesignPoint(100, 100), QString());
            map.publish(event);
            QVERIFY2(map.layer().PickDesignPoint(100, 100) == "d"_q, event);
            QCOMPARE(map.layer().PickSurveyPoint(200, 200), QString());
            QCOMPARE(map.window.extent(), QRectF(100, 100, 10, 10));

            map.setStatus(status::kViewShowWhich, "0");
            map.manager.designPoints().clear();
            map.publish(event);
            QVERIFY2(map.layer().PickSurveyPoint(200, 200) == "s"_q, event);
            QCOMPARE(map.layer().PickDesignPoint(100, 100), "d"_q); // not in view
            QCOMPARE(map.window.extent(), QRectF(200, 200, 10, 10));
        }
    }

    void aResultFarAwayAndTheSurveyAreInThePicture()
    {
        TestMap map;
        map.setStatus(status::kViewShowWhich, "0");
        map.addResult("1", "near", 4000000, 500000, {500100, 4000000});
        map.addResult("1", "far", 1e15, 1e15, {500100, 4000000});
        map.publish(events::kRefreshSurveyLayer);
        map.window.zoomAll();
        const QImage picture = map.picture();
        for (const QPointF& place : {QPointF(500000, 4000000), QPointF(1e15, 1e15)}) {
            const QPoint pixel = map.window.transform().SurveyToScreen(place).toPoint();
            QVERIFY(map.window.rect().adjusted(10, 10, -10, -10).contains(pixel));
            QVERIFY(picture.pixelColor(pixel) != QColor(Qt::white));
        }
    }

    void picksWithinTenPixelsAndBaseStationsThatAreNearer()
    {
        TestMap map;
        map.setStatus(status::kViewShowWhich, "0");
        map.addResult("1", "s1", 100, 100, {106, 100}, {101, 102});
        map.addResult("1", "s2", 100, 200, {200, 100});
        map.publish(events::kRefreshSurveyLayer);
        map.showAll();
        const IDataLayer& layer = map.layer();
        QCOMPARE(layer.PickSurveyPoint(103, 100), "s1"_q); // equally near: the result
        QCOMPARE(layer.PickSurveyPoint(103.1, 100), "base-0"_q);
        QCOMPARE(layer.PickSurveyPoint(200, 100), "s2"_q); // at the same place
        QCOMPARE(layer.PickSurveyPoint(115.9, 100), "base-0"_q);
        QCOMPARE(layer.PickSurveyPoint(116, 100), QString());
        map.window.zoomRect(0, 0, 800, 600);
        QCOMPARE(layer.PickSurveyPoint(80.2, 100), "s1"_q);
        QCOMPARE(layer.PickSurveyPoint(80, 100), QString());
        QString line = "kept"_q;
        QPointF place(7, 8);
        QPointF design = place;
        QVERIFY(!layer.GetDesignPoint("s1"_q, line, place));
        QVERIFY(!layer.GetSurveyPoint("d"_q, line, place, design));
        for (const int index : {-1, 2})
            QVERIFY(!layer.GetBasePosition(index, place));
        QVERIFY(line == "kept"_q && place == QPointF(7, 8) && design == place);
        QVERIFY(layer.GetBasePosition(1, place));
        QCOMPARE(place, QPointF(200, 100));
    }

    void tipsNameWhatIsInView()
    {
        TestMap map;
        map.addDesign("1", "d", 100, 100);
        map.addResult("1", "s", 200, 200, {210, 200});
        map.publish(events::kRefreshDesignLayer);
        map.showAll();
        map.addDesign("2", "e", 100, 300, 0);
        map.addDesign("3", "f", 200, 300, 7);
        map.publish(events::kRefreshDesignLayer);
        QCOMPARE(map.layer().tipAt({101, 101}),
                 "Line 1, point d (receiver)\nN=100.000    E=100.000"_q);
        QCOMPARE(map.layer().tipAt({301, 101}),
                 "Line 2, point e (source)\nN=100.000    E=300.000"_q);
        basalt::Dictionary inFeet;
        QCOMPARE(fillFromEpsg("32037", inFeet), std::string());
        get_project_coord_transform().initialise(inFeet, inFeet);
        QCOMPARE(map.layer().tipAt({301, 201}),
                 "Line 3, point f (design)\nN=200.000    E=300.000    ftUS"_q);
        get_project_coord_transform().initialise(basalt::Dictionary(), basalt::Dictionary());
        map.setStatus(status::kViewShowWhich, "0");
        map.publish(events::kRefreshSurveyLayer);
        map.showAll();
        QCOMPARE(map.layer().tipAt({101, 101}), QString());
        QCOMPARE(map.layer().tipAt({201, 200}),
                 "Line 1, point s (survey result)\nN=200.000    E=200.000"_q);
        QCOMPARE(map.layer().tipAt({209, 200}), // counted as on the map
                 "Base-1 (base station)\nN=200.000    E=210.000"_q);
    }

    /// A map on a second screen may be larger than the first one, or lie left of it.
    void everyPixelOfTheMapIsDrawnOn()
    {
        TestMap map;
        const QSize screen = QGuiApplication::primaryScreen()->size();
        const QSize size(screen.width() + 200, 300);
        map.window.setGeometry(QRect(QPoint(-2 * size.width(), 0), size));
        map.window.zoomRect(0, 0, size.width(), size.height());
        const int far = screen.width() + 100;
        map.addDesign("1", "near", 100, 100);
        map.addDesign("1", "far", 100, far);
        map.addResult("1", "far", 200, far, {far + 50.0, 200});
        map.publish(events::kRefreshDesignLayer);
        map.window.zoomRect(0, 0, size.width(), size.height());
        const auto colorAt = [&](double north) {
            const QPointF place = map.window.transform().SurveyToScreen(far, north);
            return map.picture().pixelColor((place + QPointF(0, 1)).toPoint());
        };
        QCOMPARE(colorAt(103), QColor(Qt::cyan)); // the circle beside the line
        map.setStatus(status::kViewShowWhich, "0");
        map.publish(events::kRefreshSurveyLayer);
        map.window.zoomRect(0, 0, size.width(), size.height());
        QCOMPARE(colorAt(200), QColor(Qt::red));
    }

    void progressTellsOfEachDrawnLine()
    {
        TestMap map;
        for (const char* line : {"1", "2", "3", "4"})
            map.addDesign(line, "1", 100, 100, line[0] == '2' ? 0 : 1);
        map.publish(events::kRefreshDesignLayer);
        map.picture();
        EventLog log(map.host.events, events::kProgress);
        const std::atomic<bool> cancelled = true;
        const auto progress = [&](bool isCancelled = false) {
            log.events.clear();
            paint(map, isCancelled ? &cancelled : nullptr);
            return log.payloads();
        };
        map.setStatus(status::kShowSourceLines, "0");
        QCOMPARE(progress(), (Payloads{"text=Draw Design Data,value=25,is_exec=0",
                                       "text=Draw Design Data,value=75,is_exec=0",
                                       "text=Draw Design Data,value=100,is_exec=0", "show=0"}));
        QCOMPARE(progress(true), Payloads{"show=0"});
        map.setStatus(status::kViewShowWhich, "0");
        map.addResult("1", "s", 1e6, 1e6, {9e5, 9e5}); // out of sight
        map.publish(events::kRefreshSurveyLayer);
        QCOMPARE(progress(), (Payloads{"text=Draw Survey Data,value=100,is_exec=0", "show=0"}));
        map.setStatus(status::kViewShowWhich, "2"); // nothing is said without a view
        QCOMPARE(progress(), Payloads{});
    }

    void colorsFollowTheChoiceTheLimitsAndTheChecks()
    {
        TestMap map;
        IDictionary& settings = get_system_ini_parameter().dictionary();
        settings.clear();
        for (const char* number : {"1", "2", "3"}) {
            const double east = 100.0 * (number[0] - '0');
            map.addResult("1", number, 100, east, {250, 250}, {east + 0.3, 100});
            SurveyPoint& point = *map.manager.surveyPoints().find("1", number);
            point.antennaHeight = 2;
            point.pdop = point.hdop = point.vdop = 1;
            point.satelliteNumber = 9;
        }
        map.setStatus(status::kViewShowWhich, "0");
        map.publish(events::kRefreshSurveyLayer);
        map.showAll();
        const auto legend = [&] {
            QStringList rows;
            for (const auto& entry : map.layer().legend().entries)
                rows << entry.text + QLatin1Char(' ') + QString::number(entry.count);
            return rows;
        };
        const auto colorAt = [&](int east) {
            const QPointF place = map.window.transform().SurveyToScreen(east, 100);
            return map.picture().pixelColor(place.toPoint());
        };
        QCOMPARE(legend(), QStringList());
        QCOMPARE(colorAt(200), QColor(Qt::red));

        settings.set(settings::kResultColors, "verdict");
        map.publish(events::kUpdateSystemStatus);
        QCOMPARE(legend(), QStringList("within limits 3"_q));
        const QColor within = colorAt(200);
        QVERIFY(within != QColor(Qt::red));
        QVERIFY(map.layer().tipAt({200, 100}).endsWith("\nVerdict: within limits"_q));

        map.manager.qualityParameters().set("design_hor_diff", "0.2");
        map.publish(events::kUpdateSystemStatus); // as after each change of the limits
        QCOMPARE(legend(), QStringList("off its place 3"_q));
        QVERIFY(colorAt(200) != within);
        map.manager.qualityParameters().set("design_hor_diff", "0.5");
        map.manager.surveyPoints().find("1", "2")->qualityStandard = 10;
        map.publish(events::kRefreshSurveyTable);
        map.publish(events::kResurveysChecked);
        QTRY_COMPARE(legend(), (QStringList{"resurvey at fault 1"_q, "within limits 2"_q}));
        QVERIFY(colorAt(200) != within && colorAt(100) == within);

        map.setStatus(status::kViewShowWhich, "1");
        QCOMPARE(legend(), QStringList()); // the design has other colours
        map.host.document.name = "survey"_q;
        map.publish(events::kUpdateSystemStatus);
        QCOMPARE(map.host.told, QString());
        settings.clear();
        map.publish(events::kUpdateSystemStatus);
        QCOMPARE(map.host.told, "The map shows results in the survey view (F7)."_q);
        map.setStatus(status::kViewShowWhich, "0");
        map.publish(events::kPaintingLayerUpdate);
        QCOMPARE(legend(), QStringList());
        QCOMPARE(colorAt(200), QColor(Qt::red));
    }

    void theUserChoosesWhatTheSurveyPictureHas()
    {
        TestMap map;
        IDictionary& settings = get_system_ini_parameter().dictionary();
        settings.clear();
        map.addResult("1", "888", 150, 100, {300, 150}, {100, 100});
        map.setStatus(status::kViewShowWhich, "0");
        map.publish(events::kRefreshSurveyLayer);
        map.showAll();
        const auto isPainted = [&](const QRectF& part) { // a rectangle of the map
            const QImage picture = map.picture();
            const Transform& view = map.window.transform();
            const QRectF screen(view.SurveyToScreen(part.topLeft()),
                                view.SurveyToScreen(part.bottomRight()));
            return countPixels(picture, screen.normalized().toRect(), [&](const QPoint& at) {
                       return picture.pixelColor(at) != QColor(Qt::white);
                   }) > 0;
        };
        const QRectF tie(200, 145, 50, 10);
        const QRectF offset(95, 115, 10, 20);
        const QRectF name(118, 140, 4, 20);
        const auto choose = [&](const char* key, const char* value) {
            settings.set(key, value);
            map.publish(events::kUpdateSystemStatus);
        };
        QVERIFY(isPainted(tie) && isPainted(offset));
        BaseTiesCommand ties("", &map.host);
        QVERIFY(ties.isChecked());
        choose(settings::kResultColors, "day"); // without a choice, colours have no ties
        QVERIFY(!ties.isChecked() && !isPainted(tie) && isPainted(offset));
        ties.execute();
        QVERIFY(ties.isChecked() && isPainted(tie));
        choose(settings::kResultColors, "");
        ties.execute();
        QVERIFY(!isPainted(tie) && isPainted(offset) && isPainted(name));
        choose(settings::kShowOffsets, "0");
        QVERIFY(!isPainted(offset));

        ResultNamesCommand room("names=room", &map.host);
        ResultNamesCommand none("names=none", &map.host);
        none.execute();
        QVERIFY(none.isChecked() && !isPainted(name));
        choose(settings::kResultNames, ""); // without a choice, colours leave room
        choose(settings::kResultColors, "day");
        QVERIFY(room.isChecked() && !none.isChecked() && isPainted(name));
        settings.clear();
    }

    /// If the layer published while it holds a mutex, this would wait for ever.
    void aListenerMayRebuildDuringThePaint()
    {
        TestMap map;
        map.setStatus(status::kViewShowWhich, "0");
        for (const char* line : {"1", "2", "3"})
            map.addResult(line, line, 100, 100, {150, 100});
        map.publish(events::kRefreshSurveyLayer);
        map.picture();
        const OnEvent emptier(map.host.events, events::kProgress, [&](auto*) {
            map.manager.surveyPoints().clear();
            map.publish(events::kRefreshSurveyLayer);
        });
        const EventLog progress(map.host.events, events::kProgress);
        paint(map);
        QCOMPARE(progress.events.size(), 4U); // the paint finishes with its own cache
        QCOMPARE(map.layer().PickSurveyPoint(100, 100), QString());
    }

    void rebuildsAndPaintsMayMeet()
    {
        TestMap map;
        for (int i = 0; i < 3000; ++i)
            map.addResult(std::to_string(i / 50).c_str(), std::to_string(i).c_str(), i % 300,
                          i / 10, {150, 150});
        map.setStatus(status::kViewShowWhich, "0");
        for (int i = 0; i < 20; ++i) {
            map.publish(events::kRefreshSurveyLayer);
            QTest::qWait(i % 4);
        }
        map.manager.surveyPoints().clear();
        map.publish(events::kRefreshSurveyLayer);
        const QImage picture = map.picture();
        QCOMPARE(picture.pixelColor(200, 150), QColor(Qt::white));
    }

private:
    /// Paints in this thread, so that the events come at once.
    static void paint(TestMap& map, const std::atomic<bool>* cancelled = nullptr)
    {
        QImage picture(400, 300, QImage::Format_RGB32);
        QPainter painter(&picture);
        PaintTarget target;
        target.transform = map.window.transform();
        target.status = basalt::Dictionary(get_system_status_dictionary());
        target.cancelled = cancelled;
        map.layer().preparePaint();
        map.layer().Paint(target, {}, painter);
    }
};

QTEST_MAIN(DataLayerTest)
#include "DataLayerTest.moc"
