#include "views/AttributeControl.h"

#include "basalt_utilities/Product.h"
#include "lum_desktop_sdkx/controls/OpenEdit.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "model/BaseStation.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/EventLog.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"
#include "views/AttributeValues.h"

#include <memory>

namespace {

SurveyPoint result()
{
    SurveyPoint point = surveyPoint("R 1", "C10012034_1");
    point.latitude = -12.505;
    point.longitude = 117.25;
    point.altitude = 130.1;
    point.north = 4562636.4694;
    point.elevation = point.seaHeight = 123.4567;
    point.antennaHeight = 2;
    point.horizontalAccuracy = 0.01234567;
    point.dateTime = 1700000000000;
    point.measureMode = 1;
    point.solutionType = 4;
    point.obstacle = "a lone tree";
    point.qualityStandard = 1001000;
    point.satelliteNumber = 4;
    return point;
}

QStringList keysOf(const char* page)
{
    PropertyGridLayout layout;
    const QByteArray xml = TestFolder::read(QString::fromStdString(basalt::controlFile(page)));
    if (const QString fault = readPropertyGridLayout(xml, layout); !fault.isEmpty())
        return {fault};
    QStringList keys;
    for (const PropertyGridGroup& group : layout.groups) {
        for (const PropertyGridRow& row : group.rows)
            keys << row.key;
    }
    keys.sort();
    return keys;
}

QStringList keysOf(const basalt::Dictionary& values)
{
    QStringList keys;
    for (std::size_t i = 0; i < values.size(); ++i)
        keys << QString::fromUtf8(values.keyAt(i).data(), int(values.keyAt(i).size()));
    keys.sort();
    return keys;
}

} // namespace

/// The attribute panel, driven by events, mouse and keys.
class AttributeControlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }
    void init()
    {
        m_map = std::make_unique<TestMap>();
        m_panel = std::make_unique<AttributeControl>("", &m_map->host);
        m_panel->resize(330, 900);
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        m_map->manager.surveyPoints().set(result());
        QVERIFY(isEmpty());
    }

    void cleanup()
    {
        m_panel.reset();
        m_map.reset();
        get_system_ini_parameter().dictionary().remove(settings::kTimeZone);
        get_project_coord_transform().initialise(basalt::Dictionary(), basalt::Dictionary());
    }

    void everyAttributeHasItsRow()
    {
        basalt::Dictionary survey = attributesOf(SurveyPoint());
        survey.set(kMovesHeights, "1");
        QCOMPARE(keysOf("SurveyAttribute"), keysOf(survey));
        QCOMPARE(survey.size(), std::size_t(42));
        QCOMPARE(keysOf("DesignAttribute"), keysOf(attributesOf(DesignPoint())));
        QCOMPARE(keysOf("StationAttribute"), keysOf(attributesOf(BaseStation(), 0)));
    }

    void showsWhatASettingAsksFor()
    {
        selectResult();
        QCOMPARE(shown("point_num"), "C10012034"_q);
        QCOMPARE(shown("latitude"), "-12.50500000°"_q);
        QCOMPARE(shown("north"), "4562636.469 m"_q);
        QCOMPARE(shown("horizontal_accuracy"), "0.0123457 m"_q);
        QCOMPARE(shown("date_time"), "2023/11/15 06:13:20"_q);
        QCOMPARE(shown("solution_type"), "fixed"_q);

        m_map->setStatus(status::kDegreeFormat, "1");
        get_system_ini_parameter().dictionary().set(settings::kTimeZone, "0");
        basalt::Dictionary feet;
        feet.set("factor", "3.2808333333333333");
        get_project_coord_transform().initialise(feet, feet);
        m_map->publish(events::kClearSurveyTable); // of a table that shows all lines
        QCoreApplication::processEvents();
        QCOMPARE(shown("latitude"), "-12deg-30min-18.000sec"_q);
        QCOMPARE(shown("date_time"), "2023/11/14 22:13:20"_q);
        QCOMPARE(shown("north"), "4562636.469 ftUS"_q);
        QCOMPARE(shown("elevation"), "123.457 m"_q);
    }

    void aCorrectedAntennaMovesTheHeights()
    {
        selectResult();
        const EventLog log(m_map->host.events,
                           "REFRESH_SURVEY_TABLE,REFRESH_SURVEY_LAYER,ON_PROJECT_MODIFIED");
        point().antennaHeight = 2.0002;
        enter("antenna_height", "2.0"_q); // the value that is shown
        QVERIFY(!m_map->manager.isChanged());
        point().antennaHeight = 2;
        QCOMPARE(shown("antenna_height"), "2.000 m"_q);
        enter("antenna_height", "1,8"_q); // a German comma
        QCOMPARE(point().antennaHeight, 1.8);
        QCOMPARE(point().elevation, 123.6567);
        QCOMPARE(shown("antenna_height"), "1.800 m"_q);
        QCOMPARE(shown("elevation"), "123.657 m"_q);
        QCOMPARE(shown("altitude"), "130.300 m"_q);
        QCOMPARE(shown("sea_height"), "123.657 m"_q);
        QVERIFY((log.names() ==
                 std::vector<std::string>{"ON_PROJECT_MODIFIED", "REFRESH_SURVEY_TABLE"}));

        click("moves_heights"); // the user does not want it, for this point
        enter("antenna_height", "1.6"_q);
        QCOMPARE(point().elevation, 123.6567);
        QCOMPARE(point().antennaHeight, 1.6);
        m_map->manager.surveyPoints().set(surveyPoint("R 1", "2"));
        select(events::kSurveyPointSelected, "R 1", "2");
        enter("antenna_height", "1.5"_q);
        QCOMPARE(m_map->manager.surveyPoints().find("R 1", "2")->elevation, -1.5);
    }

    void aBadEditIsMarkedUntilItIsCorrectedOrGivenUp()
    {
        selectResult();
        enter("antenna_height", "18"_q);
        QVERIFY(isMarked("antenna_height"));
        enter("remarks", "dry, stony"_q);
        QVERIFY(isMarked("remarks"));
        QVERIFY(says("\"Antenna height\": "_q)); // the topmost
        QVERIFY(!m_map->manager.isChanged());
        m_map->publish(events::kRefreshSurveyTable);
        QCoreApplication::processEvents();
        QCOMPARE(shown("antenna_height"), "18"_q);
        QCOMPARE(shown("remarks"), "dry, stony"_q);
        enter("surveyor", "Li, Wang"_q);
        QVERIFY(isMarked("surveyor"));
        QCOMPARE(shown("remarks"), QString()); // one such mark; the text was not taken over
        enter("surveyor", "1.8"_q);
        enter("surveyor", "1.80"_q);
        QCOMPARE(point().surveyor, std::string("1.80")); // a text is no number
        enter("surveyor", "Li; Wang"_q);
        QVERIFY(!isMarked("surveyor") && isMarked("antenna_height"));
        enter("antenna_height", "2"_q);
        QVERIFY(!isMarked("antenna_height") && !says("\": "_q));
        QCOMPARE(QString::fromStdString(point().surveyor), "Li; Wang"_q);
        QCOMPARE(point().antennaHeight, 2.0);
        QVERIFY(point().remarks.empty());

        enter("antenna_height", "18"_q);
        enter("remarks", "dry, stony"_q);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!isMarked("antenna_height") && !isMarked("remarks") && !says("\": "_q));
        QCOMPARE(shown("antenna_height"), "2.000 m"_q);
        QVERIFY(shown("remarks").isEmpty() && point().remarks.empty());
    }

    void aCommandFindsWhatIsBeingTyped()
    {
        selectResult();
        desktop::enterOpenEdit(); // there is none
        type("antenna_height", "1.9"_q);
        QVERIFY(point().antennaHeight != 1.9);
        desktop::enterOpenEdit();
        QCOMPARE(point().antennaHeight, 1.9);
        QVERIFY(m_map->manager.isChanged());
    }

    void whatWasMeasuredCannotBeEdited()
    {
        selectResult();
        int editable = 0;
        for (const QString& key : keysOf("SurveyAttribute")) {
            const QModelIndex value = cell(key.toUtf8());
            const bool isEditable = value.flags().testFlag(Qt::ItemIsEditable);
            QCOMPARE(value.data(Qt::DecorationRole).isValid(), isEditable);
            editable += isEditable ? 1 : 0;
        }
        QCOMPARE(editable, 5);
        auto* const view = grid()->findChild<QTreeView*>();
        QTest::keyClick(click("elevation"), Qt::Key_7);
        QVERIFY(view->hasFocus());
        QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), "123.457 m"_q);
    }

    void anEditBelongsToThePointItWasTypedFor()
    {
        SurveyPoint other = result();
        other.pointNumber = "2";
        m_map->manager.surveyPoints().set(other);
        selectResult();
        type("remarks", "of the first"_q); // without Enter
        select(events::kSurveyPointSelected, "R 1", "2");
        QCOMPARE(point().remarks, std::string("of the first"));
        QVERIFY(m_map->manager.surveyPoints().find("R 1", "2")->remarks.empty());
        QCOMPARE(shown("remarks"), QString());
        type("antenna_height", "77"_q); // bad, and so dropped
        selectResult();
        QVERIFY(!isMarked("antenna_height"));
        QCOMPARE(point().antennaHeight, 2.0);
        type("remarks", "of a panel that ends"_q);
        m_panel.reset();
        QCOMPARE(point().remarks, std::string("of the first"));
    }

    void anObstacleIsChosenAndAnUnknownOneKept()
    {
        selectResult();
        QTest::keyClick(click("obstacle"), Qt::Key_Escape);
        QCOMPARE(point().obstacle, std::string("a lone tree"));
        auto* const box = qobject_cast<QComboBox*>(click("obstacle"));
        QVERIFY(box != nullptr);
        QCOMPARE(box->count(), 35); // none, 33 names, undefined
        box->setCurrentIndex(box->findText("iron tower"_q));
        QTest::keyClick(box, Qt::Key_Tab);
        QCOMPARE(point().obstacle, std::string("iron tower"));
        const EventLog layer(m_map->host.events, events::kRefreshSurveyLayer);
        auto* const mark = qobject_cast<QComboBox*>(click("point_mark"));
        mark->setCurrentIndex(0);
        QTest::keyClick(mark, Qt::Key_Tab);
        QCOMPARE(point().pointMark, 1);
        QCOMPARE(layer.events.size(), std::size_t(1));
        QCOMPARE(point().elevation, 123.4567);
    }

    void aDesignPointCanBeCorrected()
    {
        m_map->addDesign("R 1", "7", 1, 2);
        const EventLog log(m_map->host.events, "REFRESH_DESIGN_TABLE,REFRESH_DESIGN_LAYER");
        select(events::kDesignPointSelected, "R 1", "7");
        QCOMPARE(shown("status"), "not surveyed"_q);
        enter("elevation", "12.3456"_q);
        QVERIFY(isMarked("elevation")); // the panel shows three decimals
        enter("elevation", "12.345"_q);
        enter("azimuth", "30 30 00"_q);
        const DesignPoint& designed = *m_map->manager.designPoints().find("R 1", "7");
        QCOMPARE(designed.elevation, 12.345);
        QCOMPARE(designed.azimuth, 30.5);
        QCOMPARE(shown("azimuth"), "30.500000°"_q);
        QWidget* const readOnly = click("north");
        for (const char key : {'3', '0', '4'}) // a search for the azimuth would go there
            QTest::keyClick(QApplication::focusWidget(), key);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), readOnly);
        QCOMPARE(designed.azimuth, 30.5);
        QVERIFY((log.names() ==
                 std::vector<std::string>{"REFRESH_DESIGN_TABLE", "REFRESH_DESIGN_TABLE"}));
    }

    void followsItsPointUntilItIsGone()
    {
        selectResult();
        point().remarks = "changed elsewhere";
        m_map->publish(events::kRefreshSurveyTable);
        QCoreApplication::processEvents();
        QCOMPARE(shown("remarks"), "changed elsewhere"_q);
        m_map->manager.surveyPoints().erase("R 1", "C10012034_1");
        m_map->publish(events::kRefreshSurveyLayer);
        QVERIFY(isEmpty());

        m_map->manager.surveyPoints().set(result());
        selectResult();
        QVERIFY(!isEmpty());
        QWidget* const editor = type("remarks", "too late"_q);
        m_map->manager.clear(); // the project was closed
        QTest::keyClick(editor, Qt::Key_Return);
        QVERIFY(isEmpty());
        selectResult();
        QVERIFY(isEmpty());
        QTest::mouseClick(m_panel->findChild<QPushButton*>(), Qt::LeftButton);
        QCOMPARE(m_map->host.windowRegistry.closed, QStringList("AttributeControl"_q));
    }

    void showsABaseStation()
    {
        m_map->setStatus(status::kViewShowWhich, "0");
        m_map->addResult("R 1", "1", 100, 100, {300, 200});
        m_map->manager.surveyPoints().find("R 1", "1")->referenceAltitude = 55.5;
        m_map->manager.surveyPoints().erase("R 1", "C10012034_1");
        m_map->publish(events::kRefreshSurveyLayer);
        m_map->host.events.publish(events::kStationPointSelected, payload::station(0), 0);
        QCOMPARE(shown("name"), "Base1"_q);
        QCOMPARE(shown("north"), "200.000 m"_q);
        QCOMPARE(shown("altitude"), "55.500 m"_q);
        m_map->manager.surveyPoints().clear();
        m_map->publish(events::kRefreshSurveyLayer); // the panel hears it before the layer does
        QVERIFY(isEmpty());
    }

private:
    void select(const char* event, const char* line, const char* point)
    {
        m_map->host.events.publish(
            event, payload::selectedPoint(QString::fromUtf8(point), QString::fromUtf8(line)), 0);
    }
    void selectResult() { select(events::kSurveyPointSelected, "R 1", "C10012034_1"); }
    [[nodiscard]] PropertyGridCtrl* grid() const
    {
        for (auto* each : m_panel->findChildren<PropertyGridCtrl*>()) {
            if (each->isVisible())
                return each;
        }
        return nullptr;
    }
    [[nodiscard]] QModelIndex cell(const char* key) const
    {
        QAbstractItemModel& model = *grid()->findChild<QTreeView*>()->model();
        const QString caption = grid()->rowCaption(QString::fromUtf8(key));
        const QModelIndexList found =
            model.match(model.index(0, 0), Qt::DisplayRole, caption, -1,
                        Qt::MatchExactly | Qt::MatchRecursive | Qt::MatchCaseSensitive);
        for (const QModelIndex& each : found) {
            if (each.parent().isValid())
                return each.siblingAtColumn(1);
        }
        return {};
    }
    [[nodiscard]] QString shown(const char* key) const { return cell(key).data().toString(); }
    [[nodiscard]] bool isMarked(const char* key) const
    {
        return cell(key).data(Qt::BackgroundRole).isValid();
    }
    /// Clicks a row; an editor that opens is the one with the focus.
    QWidget* click(const char* key)
    {
        auto* const view = grid()->findChild<QTreeView*>();
        view->scrollTo(cell(key));
        QRect place = view->visualRect(cell(key));
        place.setWidth(20); // on the check box of a flag
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
        return QApplication::focusWidget();
    }
    QWidget* type(const char* key, const QString& text)
    {
        QWidget* const editor = click(key);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, text);
        return editor;
    }
    void enter(const char* key, const QString& text)
    {
        QTest::keyClick(type(key, text), Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor enters its text later
    }
    SurveyPoint& point() { return *m_map->manager.surveyPoints().find("R 1", "C10012034_1"); }
    [[nodiscard]] bool says(const QString& text) const { return ::says(*m_panel, text); }
    [[nodiscard]] bool isEmpty() const
    {
        QCoreApplication::processEvents();
        return says("Select a point on the map or in a table."_q);
    }

    std::unique_ptr<TestMap> m_map;
    std::unique_ptr<AttributeControl> m_panel;
};

QTEST_MAIN(AttributeControlTest)
#include "AttributeControlTest.moc"
