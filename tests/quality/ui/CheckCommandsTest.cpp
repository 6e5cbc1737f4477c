#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/ui/DataInspectionCommand.h"
#include "quality/ui/DlgRepeatPtCheck.h"
#include "quality/ui/EmptyPointCheckCommand.h"
#include "quality/ui/RepeatPointCheckCommand.h"
#include "quality/ui/ReSurveyPointCheckCommand.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"

#include <QLabel>
#include <QMenu>
#include <QtTest>

#include <memory>

namespace {

/// A sound result of line "1001", but for the height of its antenna.
SurveyPoint result(const char* number, double north = 0)
{
    SurveyPoint point;
    point.lineNumber = "1001";
    point.pointNumber = number;
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
    const char* name;
    void (*execute)(IDesktopHost& host);
    const char* told; ///< the text of the box, if there is one
    Events events;
    const char* title;
    const char* finding;
    int rows;
};

const CheckCase kCases[] = {
    {"quality",
     execute<DataInspectionCommand>,
     "Quality Check Complete!",
     {"REFRESH_DESIGN_TABLE", "REFRESH_SURVEY_TABLE"},
     "Quality Check Result",
     "Quality Check: 6 of 6 results with faults, 6 in all",
     6},
    {"empty",
     execute<EmptyPointCheckCommand>,
     "Empty Check Complete!",
     {"REFRESH_DESIGN_TABLE"},
     "Empty Point Check Result",
     "Empty Point Check: 1,000 of 1,001 points not surveyed",
     1000},
    {"resurvey",
     execute<ReSurveyPointCheckCommand>,
     "Resurvey Check Complete!",
     {"ON_RESURVEYS_CHECKED"},
     "Resurvey Check Result",
     "Resurvey Check: 1 of 1 resurveyed points out of range, resurveys without their point: 1",
     2},
    {"repeat",
     execute<RepeatPointCheckCommand>,
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
    void init();
    void cleanup();
    void eachCheckTellsWhatItFoundAndListsIt_data();
    void eachCheckTellsWhatItFoundAndListsIt();
    void marksTheDifferenceThatIsOutOfRange();
    void deletesRepeatsWithoutAQuestion();

private:
    [[nodiscard]] ResultList* openList() const { return m_frame->findChild<ResultList*>(); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QWidget> m_frame;
    std::unique_ptr<DataProcessDataManager> m_manager;
};

void CheckCommandsTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_frame = std::make_unique<QWidget>();
    m_host->frame = m_frame.get();
    m_manager = std::make_unique<DataProcessDataManager>(m_host.get());
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    for (const char* number : {"10015001", "10015002F", "C10015001_0", "C10015001_1"})
        m_manager->surveyPoints().set(result(number));
    m_manager->surveyPoints().set(result("1", 50));
    m_manager->surveyPoints().set(result("1F", 50.5));
    for (int number = 10015001; number <= 10016001; ++number) {
        DesignPoint point;
        point.lineNumber = "1001";
        point.pointNumber = std::to_string(number);
        m_manager->designPoints().set(point);
    }
}

void CheckCommandsTest::cleanup()
{
    m_frame.reset();
    m_manager.reset();
    get_system_status_dictionary().clear();
}

void CheckCommandsTest::eachCheckTellsWhatItFoundAndListsIt_data()
{
    QTest::addColumn<int>("place");
    for (int place = 0; place < int(std::size(kCases)); ++place)
        QTest::newRow(kCases[place].name) << place;
}

void CheckCommandsTest::eachCheckTellsWhatItFoundAndListsIt()
{
    QFETCH(const int, place);
    const CheckCase& check = kCases[place];
    const QString finding = QString::fromUtf8(check.finding);
    const EventLog log(m_host->events, "REFRESH_DESIGN_TABLE,REFRESH_SURVEY_TABLE,"
                                       "REFRESH_SURVEY_LAYER,ON_RESURVEYS_CHECKED");
    QStringList told;
    const LumMessageBox::Responder responder([&](const auto& message) {
        told << message.title << message.text << message.details << m_host->told;
        return LumMessageBox::Button::Ok;
    });
    check.execute(*m_host);
    QStringList expected;
    if (check.told != nullptr)
        expected << "success"_q << QString::fromUtf8(check.told) << finding << finding;
    QCOMPARE(told, expected);
    QCOMPARE(m_host->told, finding);
    QVERIFY(log.names() == check.events);
    const QPointer<ResultList> list = openList();
    QVERIFY(list != nullptr && list->isVisible() && !list->isModal());
    QCOMPARE(list->windowTitle(), QString::fromUtf8(check.title));
    QCOMPARE(list->findChild<QLabel*>()->text(), finding);
    QCOMPARE(list->findChild<CustomTableWidget*>()->model()->rowCount(), check.rows);
    list->close();
    QTRY_VERIFY(list == nullptr);
}

void CheckCommandsTest::marksTheDifferenceThatIsOutOfRange()
{
    const LumMessageBox::Responder responder(
        [](const auto& /*message*/) { return LumMessageBox::Button::Ok; });
    execute<ReSurveyPointCheckCommand>(*m_host);
    const QAbstractItemModel& model = *openList()->findChild<CustomTableWidget*>()->model();
    QCOMPARE(model.index(0, 9).data().toString(), "-0.500"_q);
    QVERIFY(model.index(0, 9).data(Qt::BackgroundRole).isValid());
    QVERIFY(model.index(0, 9).data(Qt::ToolTipRole).toString().contains("0.030 m"_q));
    QVERIFY(!model.index(0, 10).data(Qt::BackgroundRole).isValid());
    QVERIFY(model.index(0, 2).data(Qt::ToolTipRole).toString().contains("1F"_q));
}

void CheckCommandsTest::deletesRepeatsWithoutAQuestion()
{
    const LumMessageBox::Responder responder([](const auto& message) {
        QTest::qFail(qPrintable(message.text), __FILE__, __LINE__);
        return LumMessageBox::Button::Ok;
    });
    execute<RepeatPointCheckCommand>(*m_host);
    ResultList& list = *openList();
    QVERIFY(QTest::qWaitForWindowActive(&list));
    auto* const table = list.findChild<CustomTableWidget*>();
    const auto deleteByTheMenu = [&](int row) {
        const QPoint place = table->visualRect(table->model()->index(row, 1)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place);
        QCoreApplication::sendEvent(table->viewport(), &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->actions().constFirst()->text(), "delete"_q);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    };
    const EventLog log(m_host->events, "REFRESH_SURVEY_LAYER");
    m_manager->surveyPoints().erase("1001", "C10015001_0"); // elsewhere, while the list is open
    deleteByTheMenu(1);
    QCOMPARE(m_manager->surveyPoints().pointCount(), std::size_t(5));
    QVERIFY2(m_host->told.startsWith("Results deleted: 0. "_q), qPrintable(m_host->told));
    QCOMPARE(table->model()->rowCount(), 2);

    for (const char* number : {"10015002F", "1", "1F"})
        m_manager->surveyPoints().erase("1001", number);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(0, 0)).center());
    QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
    QCoreApplication::sendEvent(table, &event);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QVERIFY(m_manager->surveyPoints().empty()); // and so is the line
    QCOMPARE(table->model()->rowCount(), 0);
    QVERIFY2(m_host->told.startsWith("Results deleted: 2. Repeat Point Check: 0 of 0 "_q),
             qPrintable(m_host->told));
    QCOMPARE(log.payloads(), (std::vector<std::string>{"(null)", "(null)"}));
    QVERIFY(m_manager->isChanged());
}

QTEST_MAIN(CheckCommandsTest)
#include "CheckCommandsTest.moc"
