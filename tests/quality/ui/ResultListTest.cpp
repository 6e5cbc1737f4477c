#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/Transform.h"
#include "protocol/Events.h"
#include "quality/QualityResultModel.h"
#include "quality/ui/DlgQCResult.h"
#include "tests/project/NotingWindow.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/TestFolder.h"

#include <QtTest>

namespace {

std::vector<QualityRow> someRows()
{
    return {{"C10015001_0", "1001", "HRMS Out-range.", 0.6, 0.5},
            {"7", "L \"1\", north", "PDOP, HDOP AND VDOP Out-range.", -1, -1},
            {"8", "1001", "Antenna Too Low.", 0.4996, 0.5}};
}

} // namespace

class ResultListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_project = std::make_unique<OpenProject>(); }

    void aClickSelectsTheResult()
    {
        NotingWindow points;
        MapWindow map("name=DataMap", &m_project->host);
        map.resize(400, 300);
        TestWindowRegistry& windows = m_project->host.windowRegistry;
        windows.windows["DataMap"_q] = &map;
        windows.windows["Survey Data List"_q] = &points;
        SurveyPoint& result = m_project->results().set(surveyPoint("1001", "8"));
        result.north = 4000;
        result.east = 3000;
        const EventLog log(m_project->host.events, "ON_SURVEY_POINT_SELECTED");
        const auto list = makeList();
        auto* const table = list->findChild<CustomTableWidget*>();
        const auto place = [&] { return table->visualRect(table->model()->index(2, 2)).center(); };
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place());
        QCOMPARE(points.selected, QStringList("1001/8"_q));
        QCOMPARE(log.events.size(), 0U); // the window announces it
        QCOMPARE(map.transform().center(), QPointF(0, 0));
        QVERIFY(windows.activated.isEmpty());

        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place());
        QCOMPARE(map.transform().center(), QPointF(3000, 4000));
        QCOMPARE(windows.revealed, QStringList("DataMap beside Survey Data List"_q));

        m_project->results().clear();
        map.centerOn(0, 0);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place());
        QCOMPARE(map.transform().center(), QPointF(0, 0)); // the result was deleted

        windows.windows.remove("Survey Data List"_q);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(table->model()->index(1, 0)).center());
        QCOMPARE(log.payloads(),
                 std::vector<std::string>{"pointName=7,lineName=\"L \"\"1\"\", north\""});
    }

    void theKeyboardSelectsTheResult()
    {
        NotingWindow points;
        m_project->host.windowRegistry.windows["Survey Data List"_q] = &points;
        const auto list = makeList();
        QVERIFY(QTest::qWaitForWindowActive(list.get()));
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown,
                                  Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Return})
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(points.selected,
                 (QStringList{"1001/C10015001_0"_q, "L \"1\", north/7"_q, "1001/8"_q,
                              "1001/C10015001_0"_q, "1001/C10015001_0"_q}));
    }

    void savesAsCsvOrTellsWhyNot()
    {
        const TestFolder folder;
        const QString path = folder.path("faults.csv");
        QString chosen = path;
        const FileDialog::Responder files([&](const auto& /*request*/) { return chosen; });
        Boxes boxes;
        boxes.answer = Boxes::Button::Yes; // replaces the file
        const auto list = makeList();
        QVERIFY(QTest::qWaitForWindowActive(list.get()));
        list->findChild<CustomTableWidget*>()->selectRow(1);
        saveByTheMenu(*list);
        const QByteArray saved = "Point Num,Line Num,Describe,Value,Limit\n"
                                 "C10015001,1001,HRMS Out-range.,0.600,0.500\n"
                                 "7,\"L \"\"1\"\", north\",\"PDOP, HDOP AND VDOP Out-range.\","
                                 "-1.000,-1.000\n"
                                 "8,1001,Antenna Too Low.,0.500,0.500\n";
        QCOMPARE(TestFolder::read(path), saved);
        QCOMPARE(boxes.told(), QStringList());
        chosen = folder.path("missing/faults.csv");
        saveByTheMenu(*list);
        QVERIFY(boxes.last.text.contains("missing/faults.csv"_q));
        boxes.told();
        chosen.clear(); // the user cancels
        saveByTheMenu(*list);
        QCOMPARE(boxes.told(), QStringList());
    }

    void theListGoesWithItsProject()
    {
        const auto list = makeList();
        m_project->publish(events::kUpdateSystemStatus);
        QVERIFY(list->isVisible());
        m_project->tellProject("/b");
        QVERIFY(!list->isVisible());
    }

private:
    std::unique_ptr<DlgQCResult> makeList()
    {
        auto list = std::make_unique<DlgQCResult>(
            m_project->host, CheckResult{makeQualityResultModel(someRows()), "3 faults"_q});
        list->setAttribute(Qt::WA_DeleteOnClose, false);
        list->show();
        return list;
    }
    /// Saves a list by the last entry of the menu, which the menu key opens.
    static void saveByTheMenu(DlgQCResult& list)
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(list.findChild<CustomTableWidget*>(), &event);
        QWidget* const menu = QApplication::activePopupWidget();
        QVERIFY(menu != nullptr);
        QTest::keyClick(menu, Qt::Key_Up);
        QTest::keyClick(menu, Qt::Key_Return);
    }

    std::unique_ptr<OpenProject> m_project;
};

QTEST_MAIN(ResultListTest)
#include "ResultListTest.moc"
