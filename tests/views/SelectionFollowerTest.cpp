#include "views/SelectionFollower.h"

#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/Transform.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "tests/project/NotingWindow.h"
#include "tests/project/OpenProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Points.h"

#include <QtTest>

namespace {

/// The windows of the working place around a follower. The tables announce what they show, as
/// tables that mix up following and selecting would.
struct Place : OpenProject
{
    Place()
    {
        map.resize(400, 300);
        host.windowRegistry.windows = {{"DataMap"_q, &map},
                                       {"Survey Data List"_q, &surveyTable},
                                       {"Design Data List"_q, &designTable},
                                       {"Survey Lines"_q, &surveyTree},
                                       {"Design Lines"_q, &designTree}};
        surveyTable.onFollow = [this](auto&&...) { selectResult(); };
        designTable.onFollow = [this](auto&&...) { selectDesigned(); };
        SurveyPoint& result = results().set(surveyPoint("线 1, \"a\"", "7_0"));
        result.north = 4000;
        result.east = 3000;
        design().set({"1001", "10015001", 100, 50});
    }

    void select(const char* event, const QString& line, const QString& point)
    {
        publish(event, payload::selectedPoint(point, line));
    }
    void selectResult() { select(events::kSurveyPointSelected, "线 1, \"a\""_q, "7_0"_q); }
    void selectDesigned() { select(events::kDesignPointSelected, "1001"_q, "10015001"_q); }

    MapWindow map{"name=DataMap", &host};
    NotingWindow surveyTable, designTable, surveyTree, designTree;
    SelectionFollower follower{host};
};

} // namespace

class SelectionFollowerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWindowShowsTheSelection()
    {
        Place place;
        EventLog log(place.host.events, "ON_SURVEY_POINT_SELECTED,ON_DESIGN_POINT_SELECTED");
        place.selectResult();
        QCOMPARE(place.surveyTable.followed, QStringList("线 1, \"a\"/7_0"_q));
        QCOMPARE(place.surveyTree.followed, QStringList("线 1, \"a\""_q));
        QCOMPARE(place.map.transform().center(), QPointF(3000, 4000));
        QCOMPARE(log.events.size(), 2U); // the selection, and what the table makes of it
        QCOMPARE(place.designTable.followed, QStringList("nothing"_q)); // it had another row
        QVERIFY(place.designTree.followed.isEmpty());

        place.selectDesigned();
        QCOMPARE(place.designTable.followed.last(), "1001/10015001"_q);
        QCOMPARE(place.designTree.followed, QStringList("1001"_q));
        QCOMPARE(place.map.transform().center(), QPointF(50, 100));
        QCOMPARE(place.surveyTable.followed.last(), "nothing"_q);
        QCOMPARE(place.surveyTree.followed.size(), 1); // its table still shows that line
        QCOMPARE(place.host.windowRegistry.revealed,
                 QStringList(
                     {"Survey Data List beside DataMap"_q, "Design Data List beside DataMap"_q}));
        QVERIFY(place.host.windowRegistry.activated.isEmpty());
    }

    void theMarkOfADeletedPointGoes()
    {
        Place place;
        const auto hasMark = [&] {
            const QImage picture = place.map.grab().toImage();
            return picture.pixelColor(picture.rect().center()) != QColor(Qt::white);
        };
        place.selectResult();
        place.design().clear();
        place.publish(events::kRefreshDesignLayer);
        QVERIFY(hasMark());
        place.results().clear();
        place.publish(events::kRefreshSurveyLayer);
        QVERIFY(!hasMark());
    }

    void whatIsNotThereIsPassedOver()
    {
        Place place;
        place.select(events::kSurveyPointSelected, "1001"_q, "10015001"_q); // a design point
        place.publish(events::kDesignPointSelected);
        QVERIFY(place.surveyTable.followed.isEmpty() && place.designTable.followed.isEmpty());
        QVERIFY(place.host.windowRegistry.revealed.isEmpty());
        QCOMPARE(place.map.transform().center(), QPointF(0, 0));
        place.publish(events::kStationPointSelected, "stationId=0");
        QCOMPARE(place.surveyTable.followed, QStringList("nothing"_q)); // it is in no table
        QCOMPARE(place.designTable.followed, QStringList("nothing"_q));

        place.host.windowRegistry.windows.remove("Survey Data List"_q);
        place.host.windowRegistry.windows.remove("Survey Lines"_q);
        place.selectResult();
        QCOMPARE(place.map.transform().center(), QPointF(3000, 4000));
        place.manager.reset(); // at the program's end
        const LogCapture log;
        place.selectResult();
        QCOMPARE(log.text(), std::string()); // what a handler throws would be logged
    }
};

QTEST_MAIN(SelectionFollowerTest)
#include "SelectionFollowerTest.moc"
