#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "project/ui/EditSteps.h"
#include "quality/ui/DlgRepeatChoice.h"
#include "quality/ui/RepeatPointCheckCommand.h"
#include "quality/ui/ResolveRepeatsCommand.h"
#include "tests/project/OpenProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/PopupMenu.h"
#include "tests/support/Widgets.h"

#include <QAbstractItemModelTester>

namespace {

SurveyPoint measured(const std::string& number, int hour, double east)
{
    SurveyPoint point = surveyPoint("1001", number);
    point.dateTime = hour * std::int64_t(3600000);
    point.north = 100;
    point.east = east;
    point.horizontalAccuracy = point.verticalAccuracy = 0.01;
    return point;
}

} // namespace

class RepeatChoiceListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<OpenProject>();
        m_frame = std::make_unique<QWidget>();
        m_project->host.frame = m_frame.get();
        m_steps = std::make_unique<EditSteps>(m_project->host, 1 << 20);
        for (const SurveyPoint& point :
             {measured("10015001", 30, 50), measured("10015001F", 40, 50.02),
              measured("10015002", 50, 60), measured("C10015002_0", 20, 61.5),
              measured("C10015002_1", 60, 60), measured("10015003", 10, 70)})
            m_project->results().set(point);
        m_all = numbers();
    }

    void cleanup()
    {
        m_steps.reset();
        m_frame.reset();
        m_project.reset();
    }

    void showsWhatWouldBecomeOfEachPoint()
    {
        DlgRepeatChoice& list = open();
        const QAbstractItemModelTester tester(
            tableOf(list).model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(tableOf(list).model()->rowCount(), 2);
        QCOMPARE(rowOf(list, 0), "10015001 2 0.020 0.000 10015001 0.000 0.000"_q);
        QCOMPARE(rowOf(list, 1), "10015002 3 1.500 0.000 C10015002 1.500 0.000"_q);
        choose(list, 1);
        QCOMPARE(rowOf(list, 0), "10015001 2 0.020 0.000 10015001F 0.020 0.000"_q);
        QCOMPARE(tableOf(list).model()->index(0, 6).data().toString(), "1970/01/03 00:00:00"_q);
        auto* const tolerance = list.findChild<QLineEdit*>();
        QVERIFY(!tolerance->isEnabled());
        choose(list, 3);
        QVERIFY(tolerance->isEnabled());
        QCOMPARE(tolerance->text(), "0.03"_q); // that of resurveys
        QCOMPARE(rowOf(list, 0), "10015001 2 0.020 0.000 mean of 2 0.010 0.000"_q);
        QCOMPARE(rowOf(list, 1), "10015002 3 1.500 0.000 all: too far apart  "_q);
        QVERIFY(tableOf(list).model()->index(1, 5).data(Qt::BackgroundRole).isValid());
        QVERIFY(buttonOf(list, "Resolve All (1)").isEnabled());
        tolerance->setFocus();
        tolerance->selectAll();
        QTest::keyClicks(tolerance, "a"_q);
        QVERIFY(!buttonOf(list, "Resolve All (0)").isEnabled());
        QVERIFY(list.findChild<QLabel*>()->text().startsWith("The tolerance is a number"_q));
        QCOMPARE(rowOf(list, 0), "10015001 2 0.020 0.000   "_q); // nobody knows yet
        QVERIFY(!tableOf(list).model()->index(1, 5).data(Qt::BackgroundRole).isValid());
        const QColor marked = tolerance->palette().color(QPalette::Base);
        QTest::keyClick(tolerance, Qt::Key_Backspace);
        QTest::keyClicks(tolerance, "1.5"_q);
        QVERIFY(tolerance->palette().color(QPalette::Base) != marked);
        QVERIFY(buttonOf(list, "Resolve All (2)").isEnabled());
        QTest::keyClick(tolerance, Qt::Key_Return); // resolves nothing
        QCOMPARE(numbers(), m_all);
    }

    void resolvesAllInOneStepThatCanBeTakenBack()
    {
        DlgRepeatChoice& list = open();
        const EventLog log(m_project->host.events, "REFRESH_SURVEY_LAYER");
        choose(list, 1);
        press(list, "Resolve All (2)");
        QCOMPARE(numbers(), (QStringList{"10015001"_q, "10015002"_q, "10015003"_q}));
        QCOMPARE(m_project->results().find("1001", "10015001")->east, 50.02);
        QCOMPARE(
            m_project->host.told,
            "Points resolved: 2. Results removed: 3. Left as they are: 0. Ctrl+Z takes it back."_q);
        QVERIFY(!log.events.empty());
        QCOMPARE(tableOf(list).model()->rowCount(), 0);
        QCoreApplication::processEvents(); // the step settles
        QCOMPARE(m_steps->undoTitle(), "Resolve 2 repeated points"_q);
        m_steps->undo();
        QCOMPARE(numbers(), m_all);
        QCOMPARE(m_project->results().find("1001", "10015001")->east, 50.0);
        QTRY_COMPARE(tableOf(list).model()->rowCount(), 2);
        QVERIFY(!m_project->manager->isChanged());
    }

    void resolvesWhatIsSelected()
    {
        DlgRepeatChoice& list = open();
        QVERIFY(!buttonOf(list, "Resolve Selected (0)").isEnabled());
        const EventLog log(m_project->host.events, "ON_SURVEY_POINT_SELECTED");
        CustomTableWidget& table = tableOf(list);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(table.model()->index(1, 2)).center());
        QCOMPARE(log.payloads(), std::vector<std::string>{"pointName=10015002,lineName=1001"});
        QTest::keyClick(&table, Qt::Key_Z, Qt::ControlModifier); // the frame's key
        QCOMPARE(m_project->host.commandList.executed, QStringList{"Undo"_q});
        choose(list, 2); // the row stays selected
        press(list, "Resolve Selected (1)");
        QCOMPARE(numbers(), (QStringList{"10015001"_q, "10015001F"_q, "10015002"_q, "10015003"_q}));
    }

    void followsTheResults()
    {
        DlgRepeatChoice& list = open();
        m_project->manager->deleteSurveyPoints(std::vector<PointName>{{"1001", "10015001F"}});
        press(list, "Resolve All (2)"); // before anybody has told of it
        QVERIFY2(m_project->host.told.contains("changed"_q), qPrintable(m_project->host.told));
        QCOMPARE(numbers().size(), m_all.size() - 1);
        QCOMPARE(tableOf(list).model()->rowCount(), 1);
        m_project->results().find("1001", "C10015002_0")->elevation = 2; // corrected in its place
        m_project->publish("REFRESH_SURVEY_TABLE");
        QTRY_COMPARE(rowOf(list, 0), "10015002 3 1.500 2.000 C10015002 1.500 2.000"_q);
        QPointer<DlgRepeatChoice> watched = &list;
        m_project->tellProject("/b");
        QTRY_VERIFY(watched == nullptr);
    }

private:
    DlgRepeatChoice& open()
    {
        ResolveRepeatsCommand("", &m_project->host).execute();
        auto* const list = m_frame->findChild<DlgRepeatChoice*>();
        Q_ASSERT(list != nullptr);
        if (!QTest::qWaitForWindowActive(list))
            QTest::qFail("not active", __FILE__, __LINE__);
        return *list;
    }
    static CustomTableWidget& tableOf(DlgRepeatChoice& list)
    {
        return *list.findChild<CustomTableWidget*>();
    }
    /// The cells of a row, without time and surveyor.
    static QString rowOf(DlgRepeatChoice& list, int row)
    {
        QStringList cells;
        for (const int column : {0, 2, 3, 4, 5, 9, 10})
            cells << tableOf(list).model()->index(row, column).data().toString();
        return cells.join(QLatin1Char(' '));
    }
    static void choose(DlgRepeatChoice& list, int rule)
    {
        auto* const box = list.findChild<QComboBox*>();
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Down); // opens the choices
        QTest::keyClick(box->view(), Qt::Key_Home);
        for (int i = 0; i < rule; ++i)
            QTest::keyClick(box->view(), Qt::Key_Down);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QCOMPARE(box->currentIndex(), rule);
    }
    [[nodiscard]] QStringList numbers() const
    {
        QStringList numbers;
        for (const auto& [number, line] : m_project->results()) {
            for (const SurveyPoint& point : line)
                numbers << QString::fromStdString(point.pointNumber);
        }
        return numbers;
    }

    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<QWidget> m_frame;
    std::unique_ptr<EditSteps> m_steps;
    QStringList m_all;
};

QTEST_MAIN(RepeatChoiceListTest)
#include "RepeatChoiceListTest.moc"
