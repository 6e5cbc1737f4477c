#include "views/find/FindBar.h"

#include "protocol/Events.h"
#include "tests/project/NotingWindow.h"
#include "tests/project/OpenProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "views/find/FindCommand.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/// A frame with a field that has the focus, and lists of points beside it.
class Frame : public OpenProject
{
public:
    Frame()
    {
        frame.setCentralWidget(other);
        frame.resize(800, 600);
        frame.show();
        if (!QTest::qWaitForWindowActive(&frame))
            qFatal("the window does not become active");
        other->setFocus();
        host.frame = &frame;
        host.windowRegistry.windows = {{"Design Data List"_q, &designList},
                                       {"Survey Data List"_q, &surveyList}};
        add("1001", "1040", true);
        add("1001", "1041", false);
        add("1002", "2040", true);
    }

    void add(const char* line, const std::string& point, bool inSurvey)
    {
        design().set(designPoint(line, point, 1));
        if (inSurvey)
            results().set(surveyPoint(line, point));
    }
    void run(const char* what)
    {
        FindCommand command(what, &host);
        QVERIFY(command.isEnabled());
        command.execute();
    }
    FindBar& bar() { return *FindBar::of(host); }
    QTreeWidget& list() { return *bar().findChild<QTreeWidget*>(); }
    QString told() { return bar().findChild<QLabel*>()->text(); }
    QString rows()
    {
        QStringList rows;
        for (int i = 0; i < list().topLevelItemCount(); ++i) {
            const QTreeWidgetItem& row = *list().topLevelItem(i);
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

    NotingWindow designList;
    NotingWindow surveyList;
    QLineEdit* other = new QLineEdit;
    QMainWindow frame;
};

} // namespace

class FindBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingListsAndEnterGoes()
    {
        Frame find;
        find.run("what=open");
        QVERIFY(find.list().isHidden());
        find.type("1040");
        QCOMPARE(find.rows(), "Design|receiver|1001|1040; Survey|source|1001|1040"_q);
        QCOMPARE(find.told(), "1 of 2"_q);
        QVERIFY(!find.list().isHidden());
        find.key(Qt::Key_Down);
        find.key(Qt::Key_Down); // stays on the last one
        QCOMPARE(find.told(), "2 of 2"_q);
        find.key(Qt::Key_Return);
        QCOMPARE(find.surveyList.selected, QStringList("1001/1040"_q));
        QVERIFY(find.list().isHidden());
        QVERIFY(find.bar().isAncestorOf(QApplication::focusWidget()));
        find.key(Qt::Key_Up); // unfolds
        QVERIFY(!find.list().isHidden());
        const QRect first = find.list().visualItemRect(find.list().topLevelItem(0));
        QTest::mouseClick(find.list().viewport(), Qt::LeftButton, {}, first.center());
        QCOMPARE(find.designList.selected, QStringList("1001/1040"_q));
        find.type("x");
        QCOMPARE(find.told(), "No match."_q);
        QVERIFY(find.list().isHidden());
        find.key(Qt::Key_Return);
        QCOMPARE(find.designList.selected.size() + find.surveyList.selected.size(), 2);
    }

    void escapeGivesTheFocusBack()
    {
        Frame find;
        find.run("what=open");
        find.type("2040");
        find.other->setFocus();
        QVERIFY(find.list().isHidden() && find.bar().isVisible());
        find.run("what=open"); // the key again: back in the field, its text selected
        QCOMPARE(find.bar().findChild<QLineEdit*>()->selectedText(), "2040"_q);
        find.key(Qt::Key_Escape);
        QVERIFY(!find.bar().isVisible() && find.other->hasFocus());
        delete find.other; // the focus goes where it can
        find.run("what=open");
        find.key(Qt::Key_Escape);
        QVERIFY(!find.bar().isVisible());
    }

    void theNextMatchIsReachedWithoutTheBar()
    {
        Frame find;
        find.run("what=next"); // nothing to look for yet
        QVERIFY(find.bar().isVisible());
        find.type("104");
        find.key(Qt::Key_Escape);
        const auto message = [&] { return find.frame.statusBar()->currentMessage(); };
        find.run("what=next");
        QCOMPARE(message(), "1 of 3: design point 1001/1040"_q);
        find.run("what=previous");
        QCOMPARE(message(), "3 of 3: survey result 1001/1040"_q);
        find.run("what=next");
        find.run("what=next");
        QCOMPARE(message(), "2 of 3: design point 1001/1041"_q);
        QCOMPARE(find.designList.selected,
                 QStringList({"1001/1040"_q, "1001/1040"_q, "1001/1041"_q}));
        QCOMPARE(find.surveyList.selected, QStringList("1001/1040"_q));
        QVERIFY(!find.bar().isVisible() && find.other->hasFocus());
    }

    void aLineIsSwitchedTo()
    {
        Frame find;
        const EventLog log(find.host.events, "ON_DESIGN_LINE_SWITCHED,ON_SURVEY_LINE_SWITCHED");
        find.run("what=open");
        find.type("s1002"); // the design's line is one of receivers
        QCOMPARE(find.rows(), "Survey|source|1002|whole line, points: 1"_q);
        find.key(Qt::Key_Return);
        QCOMPARE(log.names(), std::vector<std::string>{"ON_SURVEY_LINE_SWITCHED"});
        QCOMPARE(log.payloads(), std::vector<std::string>{"line_num=1002"});
        QVERIFY(find.surveyList.selected.isEmpty());
    }

    void theListFollowsTheData()
    {
        Frame find;
        find.run("what=open");
        find.type("104");
        find.key(Qt::Key_Down);
        find.design().erase("1001", "1041");
        find.key(Qt::Key_Return); // nobody has announced that it is gone
        QCOMPARE(find.told(), "2 of 2"_q);
        QCOMPARE(find.surveyList.selected, QStringList("1001/1040"_q));
        find.add("1000", "1", false);
        find.add("1001", "1042", true);
        find.publish(events::kRefreshDesignLayer);
        QCOMPARE(find.told(), "3 of 4"_q); // still the same point
        find.run("what=next");
        QCOMPARE(find.surveyList.selected.takeLast(), "1001/1042"_q);
        find.design().clear();
        find.results().clear();
        find.publish(events::kRefreshSurveyLayer);
        QCOMPARE(find.told(), "The project has no points."_q);
        find.tellProject("");
        find.publish(events::kRefreshSurveyLayer);
        QCOMPARE(find.told(), "No project is open."_q);
        find.key(Qt::Key_Return);
        QCOMPARE(find.surveyList.selected.size(), 1);
        QVERIFY(!FindCommand("what=open", &find.host).isEnabled());
    }
};

QTEST_MAIN(FindBarTest)
#include "FindBarTest.moc"
