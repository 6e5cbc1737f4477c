#include "views/SelectionFollower.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Transform.h"
#include "project/DataProcessDataManager.h"
#include "project/ILineList.h"
#include "project/IPointList.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"

#include <QtTest>

#include <memory>

namespace {

/// A table and a tree in one, which note what they are told. The table announces what it shows, as
/// one that mixes up following and selecting would.
class NotingWindow final : public IWindow, public IPointList, public ILineList
{
public:
    NotingWindow(IEventManager& events, const char* event) : m_events(events), m_event(event) {}

    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    bool selectPoint(const QString& /*line*/, const QString& /*point*/) override { return false; }
    bool followPoint(const QString& line, const QString& point) override
    {
        told << line + QLatin1Char('/') + point;
        m_events.publish(m_event, payload::selectedPoint(point, line).constData(), 0);
        return true;
    }
    void deselect() override { told << "nothing"_q; }
    void followLine(const QString& line) override { told << line; }

    QStringList told;

private:
    IEventManager& m_events;
    const char* m_event;
    basalt::Dictionary m_parameters;
};

/// The windows of the working place around a follower.
struct Place
{
    Place()
    {
        get_system_status_dictionary().clear();
        map.resize(400, 300);
        windows = {{"DataMap"_q, &map},
                   {"Survey Data List"_q, &surveyTable},
                   {"Design Data List"_q, &designTable},
                   {"Survey Lines"_q, &surveyTree},
                   {"Design Lines"_q, &designTree}};
        SurveyPoint result;
        result.lineNumber = "线 1, \"a\"";
        result.pointNumber = "7_0";
        result.north = 4000;
        result.east = 3000;
        manager.surveyPoints().set(result);
        DesignPoint design;
        design.lineNumber = "1001";
        design.pointNumber = "10015001";
        design.north = 100;
        design.east = 50;
        manager.designPoints().set(design);
    }

    void select(const char* event, const QString& line, const QString& point)
    {
        host.events.publish(event, payload::selectedPoint(point, line).constData(), 0);
    }

    TestHost host;
    DataProcessDataManager manager{&host};
    MapWindow map{"name=DataMap", &host};
    NotingWindow surveyTable{host.events, events::kSurveyPointSelected};
    NotingWindow designTable{host.events, events::kDesignPointSelected};
    NotingWindow surveyTree{host.events, events::kSurveyPointSelected};
    NotingWindow designTree{host.events, events::kDesignPointSelected};
    QHash<QString, IWindow*>& windows = host.windowRegistry.windows;
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
        place.select(events::kSurveyPointSelected, "线 1, \"a\""_q, "7_0"_q);
        QCOMPARE(place.surveyTable.told, QStringList("线 1, \"a\"/7_0"_q));
        QCOMPARE(place.surveyTree.told, QStringList("线 1, \"a\""_q));
        QCOMPARE(place.map.transform().center(), QPointF(3000, 4000));
        QCOMPARE(log.events.size(), 2U); // the selection, and what the table makes of it
        QCOMPARE(place.designTable.told, QStringList("nothing"_q)); // it had another point's row
        QVERIFY(place.designTree.told.isEmpty());

        place.select(events::kDesignPointSelected, "1001"_q, "10015001"_q);
        QCOMPARE(place.designTable.told.last(), "1001/10015001"_q);
        QCOMPARE(place.designTree.told, QStringList("1001"_q));
        QCOMPARE(place.map.transform().center(), QPointF(50, 100));
        QCOMPARE(place.surveyTable.told.last(), "nothing"_q);
        QCOMPARE(place.surveyTree.told.size(), 1); // its table still shows that line
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
        place.select(events::kSurveyPointSelected, "线 1, \"a\""_q, "7_0"_q);
        place.manager.designPoints().clear();
        place.host.events.publish(events::kRefreshDesignLayer, nullptr, 0);
        QVERIFY(hasMark());
        place.manager.surveyPoints().clear();
        place.host.events.publish(events::kRefreshSurveyLayer, nullptr, 0);
        QVERIFY(!hasMark());
    }

    void whatIsNotThereIsPassedOver()
    {
        Place place;
        place.select(events::kSurveyPointSelected, "1001"_q, "10015001"_q); // a design point
        place.host.events.publish(events::kDesignPointSelected, nullptr, 0);
        QVERIFY(place.surveyTable.told.isEmpty() && place.designTable.told.isEmpty());
        QVERIFY(place.host.windowRegistry.revealed.isEmpty());
        QCOMPARE(place.map.transform().center(), QPointF(0, 0));
        place.host.events.publish(events::kStationPointSelected, "stationId=0", 0);
        QCOMPARE(place.surveyTable.told, QStringList("nothing"_q)); // a station is in no table
        QCOMPARE(place.designTable.told, QStringList("nothing"_q));

        place.windows.remove("Survey Data List"_q);
        place.windows.remove("Survey Lines"_q);
        place.select(events::kSurveyPointSelected, "线 1, \"a\""_q, "7_0"_q);
        QCOMPARE(place.map.transform().center(), QPointF(3000, 4000));
    }

    void theEndOfTheManagerIsSurvived()
    {
        TestHost host;
        auto manager = std::make_unique<DataProcessDataManager>(&host);
        const SelectionFollower follower(host);
        manager.reset();
        host.events.publish(events::kSurveyPointSelected, "pointName=1,lineName=1", 0);
    }
};

QTEST_MAIN(SelectionFollowerTest)
#include "SelectionFollowerTest.moc"
