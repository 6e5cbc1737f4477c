#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "quality/ui/DataInspectionCommand.h"
#include "quality/ui/EmptyPointCheckCommand.h"
#include "quality/ui/RepeatPointCheckCommand.h"
#include "quality/ui/ResultList.h"
#include "quality/ui/ReSurveyPointCheckCommand.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/PopupMenu.h"

#include <QLabel>

namespace {

/// A sound result of line "1001", but for the height of its antenna.
SurveyPoint result(const char* number, double north = 0)
{
    SurveyPoint point = surveyPoint("1001", number);
    point.north = point.designNorth = north;
    point.pdop = point.hdop = point.vdop = 1;
    point.satelliteNumber = 9;
    return point;
}

template <class Command>
void execute(IDesktopHost& host)
{
    Command command("", &host);
    QVERIFY(command.isEnabled());
    command.execute();
}

using Events = std::vector<std::string>;

struct CheckCase
{
    void (*execute)(IDesktopHost& host);
    const char* told; ///< the text of the box, if there is one
    Events events;
    const char* title;
    const char* finding;
    int rows;
};

const CheckCase kCases[] = {
    {execute<DataInspectionCommand>,
     "Quality Check Complete!",
     {"REFRESH_DESIGN_TABLE", "REFRESH_SURVEY_TABLE"},
     "Quality Check Result",
     "Quality Check: 6 of 6 results with faults, 6 in all",
     6},
    {execute<EmptyPointCheckCommand>,
     "Empty Check Complete!",
     {"REFRESH_DESIGN_TABLE"},
     "Empty Point Check Result",
     "Empty Point Check: 1,000 of 1,001 points not surveyed",
     1000},
    {execute<ReSurveyPointCheckCommand>,
     "Resurvey Check Complete!",
     {"ON_RESURVEYS_CHECKED"},
     "Resurvey Check Result",
     "Resurvey Check: 1 of 1 resurveyed points out of range, resurveys without their point: 1",
     2},
    {execute<RepeatPointCheckCommand>,
     nullptr,
     {},
     "Repeat Point Check",
     "Repeat Point Check: 2 of 6 results are repeats, repeats without their point: 0",
     3},
};

} // namespace

class CheckCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<OpenProject>();
        m_frame = std::make_unique<QWidget>();
        m_boxes = std::make_unique<Boxes>();
        m_project->host.frame = m_frame.get();
        for (const char* number : {"10015001", "10015002F", "C10015001_0", "C10015001_1"})
            m_project->results().set(result(number));
        m_project->results().set(result("1", 50));
        m_project->results().set(result("1F", 50.5));
        for (int number = 10015001; number <= 10016001; ++number)
            m_project->design().set(designPoint("1001", std::to_string(number)));
    }

    void cleanup()
    {
        m_frame.reset();
        m_boxes.reset();
        m_project.reset();
    }

    void eachCheckTellsWhatItFoundAndListsIt()
    {
        for (const CheckCase& check : kCases) {
            cleanup();
            init();
            const QString finding = QString::fromUtf8(check.finding);
            const EventLog log(m_project->host.events, "REFRESH_DESIGN_TABLE,REFRESH_SURVEY_TABLE,"
                                                       "REFRESH_SURVEY_LAYER,ON_RESURVEYS_CHECKED");
            check.execute(m_project->host);
            const bool isTold = check.told != nullptr;
            QCOMPARE(m_boxes->told().join(QLatin1Char('\n')),
                     isTold ? "success|"_q + QString::fromUtf8(check.told) : QString());
            QCOMPARE(m_boxes->last.details, isTold ? finding : QString());
            QCOMPARE(m_project->host.told, finding);
            QVERIFY(log.names() == check.events);
            const QPointer<ResultList> list = openList();
            QVERIFY(list != nullptr && list->isVisible() && !list->isModal());
            QCOMPARE(list->windowTitle(), QString::fromUtf8(check.title));
            QCOMPARE(list->findChild<QLabel*>()->text(), finding);
            QCOMPARE(list->findChild<CustomTableWidget*>()->model()->rowCount(), check.rows);
            list->close();
            QTRY_VERIFY(list == nullptr);
        }
    }

    void marksTheDifferenceThatIsOutOfRange()
    {
        execute<ReSurveyPointCheckCommand>(m_project->host);
        const QAbstractItemModel& model = *openList()->findChild<CustomTableWidget*>()->model();
        QCOMPARE(model.index(0, 9).data().toString(), "-0.500"_q);
        QVERIFY(model.index(0, 9).data(Qt::BackgroundRole).isValid());
        QVERIFY(model.index(0, 9).data(Qt::ToolTipRole).toString().contains("0.030 m"_q));
        QVERIFY(!model.index(0, 10).data(Qt::BackgroundRole).isValid());
        QVERIFY(model.index(0, 2).data(Qt::ToolTipRole).toString().contains("1F"_q));
    }

    void deletesRepeatsWithoutAQuestion()
    {
        execute<RepeatPointCheckCommand>(m_project->host);
        ResultList& list = *openList();
        QVERIFY(QTest::qWaitForWindowActive(&list));
        auto* const table = list.findChild<CustomTableWidget*>();
        const auto deleteByTheMenu = [&](int row) {
            const QPoint place = table->visualRect(table->model()->index(row, 1)).center();
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
            chooseFrom(openMenuAt(*table->viewport(), place), "delete"_q);
        };
        const EventLog log(m_project->host.events, "REFRESH_SURVEY_LAYER");
        m_project->results().erase("1001", "C10015001_0"); // elsewhere, while the list is open
        deleteByTheMenu(1);
        QCOMPARE(m_project->results().pointCount(), std::size_t(5));
        QVERIFY2(m_project->host.told.startsWith("Results deleted: 0. "_q),
                 qPrintable(m_project->host.told));
        QCOMPARE(table->model()->rowCount(), 2);

        for (const char* number : {"10015002F", "1", "1F"})
            m_project->results().erase("1001", number);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(table->model()->index(0, 0)).center());
        QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(table, &event);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QVERIFY(m_project->results().empty()); // and so is the line
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY2(
            m_project->host.told.startsWith("Results deleted: 2. Repeat Point Check: 0 of 0 "_q),
            qPrintable(m_project->host.told));
        QCOMPARE(log.payloads(), (std::vector<std::string>{"(null)", "(null)"}));
        QVERIFY(m_project->manager->isChanged());
        QCOMPARE(m_boxes->told(), QStringList());
    }

private:
    [[nodiscard]] ResultList* openList() const { return m_frame->findChild<ResultList*>(); }

    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<QWidget> m_frame;
    std::unique_ptr<Boxes> m_boxes;
};

QTEST_MAIN(CheckCommandsTest)
#include "CheckCommandsTest.moc"
