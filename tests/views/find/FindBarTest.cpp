#include "views/find/FindBar.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "views/find/FindCommand.h"

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QStatusBar>
#include <QTreeWidget>
#include <QtTest>

#include <memory>

namespace {

/// A list of points that notes what it has to select, as long as the project has it.
class NotingList final : public IWindow, public IPointList
{
public:
    explicit NotingList(QString name) : m_name(std::move(name)) {}
    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    bool selectPoint(const QString& lineNumber, const QString& pointNumber) override
    {
        asked << m_name + QLatin1Char(':') + lineNumber + QLatin1Char('/') + pointNumber;
        return true;
    }
    bool followPoint(const QString& /*line*/, const QString& /*point*/) override { return true; }
    void deselect() override {}
    static inline QStringList asked;

private:
    QString m_name;
    basalt::Dictionary m_parameters;
};

} // namespace

class FindBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void typingListsAndEnterGoes();
    void escapeGivesTheFocusBack();
    void theNextMatchIsReachedWithoutTheBar();
    void aLineIsSwitchedTo();
    void theListFollowsTheData();
    void moreThanFiftyAreCounted();

private:
    void add(const char* line, const char* point, bool inSurvey)
    {
        DesignPoint design;
        SurveyPoint survey;
        design.lineNumber = survey.lineNumber = line;
        design.pointNumber = survey.pointNumber = point;
        design.type = 1;
        m_manager->designPoints().set(design);
        if (inSurvey)
            m_manager->surveyPoints().set(survey);
    }
    void run(const char* what)
    {
        FindCommand command(what, m_host.get());
        QVERIFY(command.isEnabled());
        command.execute();
    }
    FindBar& open()
    {
        run("what=open");
        return *FindBar::of(*m_host);
    }
    static QString told(const FindBar& bar) { return bar.findChild<QLabel*>()->text(); }
    static QTreeWidget& list(const FindBar& bar) { return *bar.findChild<QTreeWidget*>(); }
    static QString rows(const FindBar& bar)
    {
        QStringList rows;
        for (int i = 0; i < list(bar).topLevelItemCount(); ++i) {
            const QTreeWidgetItem& row = *list(bar).topLevelItem(i);
            rows << QStringList{row.text(0), row.text(1), row.text(2), row.text(3)}.join(
                QLatin1Char('|'));
        }
        return rows.join("; "_q);
    }
    static void type(const char* text)
    {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
    }
    static void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<DataProcessDataManager> m_manager;
    std::unique_ptr<QMainWindow> m_frame;
    QLineEdit* m_other = nullptr;
    NotingList m_design{"D"_q};
    NotingList m_survey{"S"_q};
};

void FindBarTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_manager = std::make_unique<DataProcessDataManager>(m_host.get());
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    m_frame = std::make_unique<QMainWindow>();
    m_other = new QLineEdit(m_frame.get());
    m_frame->setCentralWidget(m_other);
    m_frame->resize(800, 600);
    m_frame->show();
    QVERIFY(QTest::qWaitForWindowActive(m_frame.get()));
    m_other->setFocus();
    m_host->frame = m_frame.get();
    m_host->windowRegistry.windows = {{"Design Data List"_q, &m_design},
                                      {"Survey Data List"_q, &m_survey}};
    NotingList::asked.clear();
    add("1001", "1040", true);
    add("1001", "1041", false);
    add("1002", "2040", true);
}

void FindBarTest::cleanup()
{
    m_frame.reset();
    m_manager.reset();
    m_host.reset();
}

void FindBarTest::typingListsAndEnterGoes()
{
    const FindBar& bar = open();
    QVERIFY(list(bar).isHidden());
    type("1040");
    QCOMPARE(rows(bar), "Design|receiver|1001|1040; Survey|source|1001|1040"_q);
    QCOMPARE(told(bar), "1 of 2"_q);
    QVERIFY(!list(bar).isHidden());
    key(Qt::Key_Down);
    key(Qt::Key_Down); // stays on the last one
    QCOMPARE(told(bar), "2 of 2"_q);
    key(Qt::Key_Return);
    QCOMPARE(NotingList::asked, QStringList("S:1001/1040"_q));
    QVERIFY(list(bar).isHidden());
    QVERIFY(bar.isAncestorOf(QApplication::focusWidget()));
    key(Qt::Key_Up); // unfolds
    QVERIFY(!list(bar).isHidden());
    const QRect first = list(bar).visualItemRect(list(bar).topLevelItem(0));
    QTest::mouseClick(list(bar).viewport(), Qt::LeftButton, {}, first.center());
    QCOMPARE(NotingList::asked.last(), "D:1001/1040"_q);
    type("x");
    QCOMPARE(told(bar), "No match."_q);
    QVERIFY(list(bar).isHidden());
    key(Qt::Key_Return);
    QCOMPARE(NotingList::asked.size(), 2);
}

void FindBarTest::escapeGivesTheFocusBack()
{
    const FindBar& bar = open();
    type("2040");
    m_other->setFocus();
    QVERIFY(list(bar).isHidden());
    QVERIFY(bar.isVisible());
    open(); // the key again: back in the field, its text selected
    QCOMPARE(bar.findChild<QLineEdit*>()->selectedText(), "2040"_q);
    key(Qt::Key_Escape);
    QVERIFY(!bar.isVisible());
    QVERIFY(m_other->hasFocus());
    delete m_other; // the focus goes where it can
    m_other = nullptr;
    open();
    key(Qt::Key_Escape);
    QVERIFY(!bar.isVisible());
}

void FindBarTest::theNextMatchIsReachedWithoutTheBar()
{
    run("what=next"); // nothing to look for yet
    const FindBar& bar = *FindBar::of(*m_host);
    QVERIFY(bar.isVisible());
    type("104");
    key(Qt::Key_Escape);
    run("what=next");
    QCOMPARE(m_frame->statusBar()->currentMessage(), "1 of 3: design point 1001/1040"_q);
    run("what=previous");
    QCOMPARE(m_frame->statusBar()->currentMessage(), "3 of 3: survey result 1001/1040"_q);
    run("what=next");
    run("what=next");
    QCOMPARE(NotingList::asked,
             QStringList({"D:1001/1040"_q, "S:1001/1040"_q, "D:1001/1040"_q, "D:1001/1041"_q}));
    QVERIFY(!bar.isVisible());
    QVERIFY(m_other->hasFocus());
}

void FindBarTest::aLineIsSwitchedTo()
{
    const EventLog log(m_host->events, "ON_DESIGN_LINE_SWITCHED,ON_SURVEY_LINE_SWITCHED");
    const FindBar& bar = open();
    type("s1002"); // the design's line is one of receivers
    QCOMPARE(rows(bar), "Survey|source|1002|whole line, points: 1"_q);
    key(Qt::Key_Return);
    QCOMPARE(log.names(), std::vector<std::string>{"ON_SURVEY_LINE_SWITCHED"});
    QCOMPARE(log.payloads(), std::vector<std::string>{"line_num=1002"});
    QVERIFY(NotingList::asked.isEmpty());
}

void FindBarTest::theListFollowsTheData()
{
    const FindBar& bar = open();
    type("104");
    key(Qt::Key_Down);
    m_manager->designPoints().erase("1001", "1041");
    key(Qt::Key_Return); // nobody has announced that it is gone
    QCOMPARE(told(bar), "2 of 2"_q);
    QCOMPARE(NotingList::asked, QStringList("S:1001/1040"_q));
    add("1000", "1", false);
    add("1001", "1042", true);
    m_host->events.publish(events::kRefreshDesignLayer, nullptr, 0);
    QCOMPARE(told(bar), "3 of 4"_q); // still the same point
    run("what=next");
    QCOMPARE(NotingList::asked.takeLast(), "S:1001/1042"_q);
    m_manager->designPoints().clear();
    m_manager->surveyPoints().clear();
    m_host->events.publish(events::kRefreshSurveyLayer, nullptr, 0);
    QCOMPARE(told(bar), "The project has no points."_q);
    get_system_status_dictionary().set(status::kProjectOpen, "0");
    m_host->events.publish(events::kRefreshSurveyLayer, nullptr, 0);
    QCOMPARE(told(bar), "No project is open."_q);
    key(Qt::Key_Return);
    QCOMPARE(NotingList::asked.size(), 1);
    QVERIFY(!FindCommand("what=open", m_host.get()).isEnabled());
}

void FindBarTest::moreThanFiftyAreCounted()
{
    for (int point = 0; point < 1200; ++point)
        add("7", ("9" + std::to_string(point)).c_str(), false);
    const FindBar& bar = open();
    m_frame->resize(300, 200); // and the bar stays inside
    type("9");
    QCOMPARE(told(bar), "1 of 50 (1,200 found)"_q);
    QVERIFY(m_frame->rect().contains(bar.geometry()));
    key(Qt::Key_PageDown);
    key(Qt::Key_PageDown);
    QCOMPARE(told(bar), "23 of 50 (1,200 found)"_q);
}

QTEST_MAIN(FindBarTest)
#include "FindBarTest.moc"
