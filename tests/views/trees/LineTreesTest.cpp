#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/Text.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/PopupMenu.h"
#include "tests/support/TestFolder.h"
#include "views/trees/DesignLineControl.h"
#include "views/trees/LineTreeView.h"
#include "views/trees/SurveyDataControl.h"

namespace {

using Events = std::vector<std::string>;

constexpr const char* kTableEvents =
    "ON_DESIGN_LINE_SWITCHED,ON_CLEAR_DESIGN_TABLE,ON_DESIGN_TABLE_SELECT_POINT,"
    "ON_SURVEY_LINE_SWITCHED,ON_CLEAR_SURVEY_TABLE,ON_SURVEY_TABLE_SELECT_POINT,"
    "ON_SHOW_ALL_SURVEY_TABLE";
constexpr const char* kNewDesign = "REFRESH_DESIGN_LAYER";
constexpr const char* kNewResults = "REFRESH_SURVEY_LAYER";

/// A tree on the screen, with what it publishes.
template <class Tree>
struct Shown
{
    explicit Shown(OpenProject& project)
        : log(project.host.events, kTableEvents), tree("", &project.host),
          view(tree.template findChild<LineTreeView*>()),
          field(tree.template findChild<QLineEdit*>())
    {
        tree.resize(250, 400);
        tree.show();
        tree.activateWindow();
        if (!QTest::qWaitForWindowActive(&tree))
            qFatal("the window does not become active");
    }

    LineItem* line(const QString& number) { return view->findLine(number); }
    void click(QTreeWidgetItem* item, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers,
                          view->visualItemRect(item).center());
    }
    Events events() { return log.told(); }
    /// The values of the last event.
    QString told(const char* key) const
    {
        basalt::Dictionary values;
        payload::read(log.events.back().payload.c_str(), values);
        return lum::toQString(values.text(key));
    }
    /// The menu that the menu key opens; null when none does.
    QMenu* menu()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(view, &event);
        return openMenu();
    }
    /// The entries of this menu, joined by "|".
    QString menuTexts()
    {
        QStringList texts;
        for (const QAction* action : menu()->actions()) {
            if (!action->isSeparator())
                texts << action->text();
        }
        openMenu()->close();
        return texts.join(QLatin1Char('|'));
    }
    void choose(const char* entry) { chooseFrom(menu(), QLatin1String(entry)); }

    EventLog log;
    Tree tree;
    LineTreeView* view;
    QLineEdit* field;
};

/// A project with a point for each line.
struct Project : OpenProject
{
    void addReceivers(std::initializer_list<const char*> lines)
    {
        for (const char* line : lines)
            design().set(designPoint(line, "1", 1));
    }
    void addResults(std::initializer_list<const char*> lines)
    {
        for (const char* line : lines)
            results().set(surveyPoint(line, "1"));
    }
    /// The tables that were brought forward since the last call.
    QStringList activated() { return std::exchange(host.windowRegistry.activated, {}); }
};

} // namespace

class LineTreesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsTheLinesOfTheDesign()
    {
        Project project;
        project.design().set(designPoint("900", "1", 0));
        project.addReceivers({"1003"});
        project.design().set(designPoint("1001", "1", 2, 1)); // the first point decides
        project.design().set(designPoint("1001", "2", 0));
        Shown<DesignLineControl> shown(project);
        QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=1001"});
        project.publish(kNewDesign);
        QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=1001"});
        QCOMPARE(shown.view->topLevelItemCount(), 1);
        QStringList told;
        for (const QTreeWidgetItem* item = shown.view->root(); item != nullptr;
             item = shown.view->itemBelow(item))
            told << QStringLiteral("%1|%2|%3|%4|%5|%6")
                        .arg(item->text(0), item->data(0, 256).toString(),
                             item->data(0, 257).toString(), item->data(0, 258).toString(),
                             item->data(0, 259).toString(),
                             QLatin1String(item->isExpanded() ? "open" : ""));
        QCOMPARE(told, (QStringList{"design data (3)|1|||3|open"_q, "Send data (1)|3|||1|open"_q,
                                    "S900|2|900|0||"_q, "Recv data (2)|4|||2|open"_q,
                                    "R1001|2|1001|2||"_q, "R1003|2|1003|1||"_q}));
        QCOMPARE(shown.view->selectedLines(), QStringList("1001"_q));
        QVERIFY(shown.line("1001"_q)->toolTip(0).contains("Points: 2, surveyed: 1"_q));

        project.design().eraseLine("1001");
        project.design().eraseLine("1003");
        project.publish(kNewDesign);
        QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=900"});
    }

    void listsTheLinesOfTheResults()
    {
        Project project;
        Shown<SurveyDataControl> shown(project);
        QCOMPARE(shown.events(), Events{"ON_CLEAR_SURVEY_TABLE"});
        QCOMPARE(shown.view->root()->text(0), "survey data (0)"_q);
        project.addResults({"9", "10"});
        project.results().set(surveyPoint("10", "2"));
        project.publish(kNewResults);
        QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"});
        const LineItem* const root = shown.view->root();
        QCOMPARE(root->text(0), "survey data (2)"_q);
        QVERIFY(root->isExpanded() && root->isSelected());
        const QTreeWidgetItem* const first = root->child(0);
        QCOMPARE(first->text(0), "10"_q);
        QCOMPARE(first->data(0, 256).toInt(), 2);
        QCOMPARE(first->data(0, 257).toString(), "10"_q);
        QCOMPARE(first->data(0, 258).toInt(), 2);
        QVERIFY(first->toolTip(0).contains("Results: 2"_q));
        QCOMPARE(root->child(1)->text(0), "9"_q);
    }

    void aClickAnnouncesAndBringsTheTableForward()
    {
        Project project;
        project.addReceivers({"1001", "1002"});
        project.addResults({"1001"});
        Shown<DesignLineControl> design(project);
        design.events();
        design.click(design.line("1002"_q));
        design.click(design.view->root()->child(1));
        QCOMPARE(design.events(),
                 (Events{"ON_DESIGN_LINE_SWITCHED line_num=1002", "ON_CLEAR_DESIGN_TABLE"}));
        QCOMPARE(project.activated(), (QStringList{"DesignLineTable"_q, "DesignLineTable"_q}));
        Shown<SurveyDataControl> survey(project);
        survey.events();
        survey.click(survey.line("1001"_q));
        survey.click(survey.view->root());
        QCOMPARE(survey.events(),
                 (Events{"ON_SURVEY_LINE_SWITCHED line_num=1001", "ON_SHOW_ALL_SURVEY_TABLE"}));
        QCOMPARE(project.activated(), (QStringList{"SurveyDataTable"_q, "SurveyDataTable"_q}));
    }

    void keysWalkWithoutTakingTheFocus()
    {
        Project project;
        project.addReceivers({"1001", "1002"});
        Shown<DesignLineControl> shown(project);
        shown.view->setFocus();
        shown.events();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up})
            QTest::keyClick(QApplication::focusWidget(), key); // the second has nowhere to go
        QCOMPARE(shown.events(),
                 (Events{"ON_DESIGN_LINE_SWITCHED line_num=1002",
                         "ON_DESIGN_LINE_SWITCHED line_num=1001", "ON_CLEAR_DESIGN_TABLE"}));
        QCOMPARE(project.activated(), QStringList());
        QVERIFY(shown.view->hasFocus());
        QTest::keyClick(shown.view, Qt::Key_Return);
        QCOMPARE(shown.events(), Events{"ON_CLEAR_DESIGN_TABLE"});
        QCOMPARE(project.activated(), QStringList("DesignLineTable"_q));
    }

    void theSearchOfTheResultsFindsTheLine()
    {
        Project project;
        project.addResults({"1005", "a\",b"});
        Shown<SurveyDataControl> shown(project);
        shown.events();
        const auto search = [&](const char* text) {
            shown.field->setText(QString::fromUtf8(text));
            QTest::keyClick(shown.field, Qt::Key_Return);
            return shown.events();
        };
        QCOMPARE(search("r10051234"),
                 (Events{"ON_SURVEY_LINE_SWITCHED line_num=1005",
                         "ON_SURVEY_TABLE_SELECT_POINT line_num=1005,point_num=r10051234"}));
        QCOMPARE(shown.view->selectedLines(), QStringList("1005"_q));
        QCOMPARE(project.activated(), QStringList("SurveyDataTable"_q));
        QCOMPARE(search("RR1005"), Events()); // one letter is passed over
        QVERIFY(shown.view->selectedLines().isEmpty());
        shown.field->setText("Sa\",b7"_q);
        QTest::mouseClick(shown.tree.findChild<QPushButton*>(), Qt::LeftButton);
        QCOMPARE(shown.told("line_num"), "a\",b"_q);
        QCOMPARE(shown.told("point_num"), "Sa\",b7"_q);
    }

    void theFirstSelectedItemDecidesOnTheMenu()
    {
        Project project;
        project.addReceivers({"1001"});
        project.addResults({"1001"});
        Shown<DesignLineControl> design(project);
        QVERIFY(design.menuTexts().startsWith("Export Selected|Export Selected Empty|"_q));
        const QString ofAll = "Expand All|Collapse All|Export All|Export All Empty|Export All DB|"
                              "Export All Empty DB|Export All Kml|Export All Empty Kml|"
                              "Import Csv"_q;
        design.click(design.view->root()->child(0));
        QCOMPARE(design.menuTexts(), ofAll);
        design.click(design.line("1001"_q), Qt::ControlModifier); // the group was first
        QCOMPARE(design.menuTexts(), ofAll);
        design.choose("Collapse All");
        QVERIFY(!design.view->root()->isExpanded());
        design.view->clearSelection();
        QVERIFY(design.menu() == nullptr);

        Shown<SurveyDataControl> survey(project);
        QCOMPARE(survey.menuTexts(),
                 "Expand All|Collapse All|Export All|Export All Kml|Import Csv|Import DB"_q);
        survey.click(survey.line("1001"_q));
        QCOMPARE(survey.menuTexts(), "Export Selected|Export Selected Kml|Delete Line"_q);
    }

    void exportsWhatIsSelected()
    {
        Project project;
        for (const char* line : {"1001", "1002", "1003"}) {
            project.design().set(designPoint(line, "1", 1, 1));
            project.design().set(designPoint(line, "2", 1, 0));
        }
        const TestFolder folder;
        const FileDialog::Responder files([&](const auto&) { return folder.path("points.csv"); });
        Boxes boxes; // which do not open the file
        const auto written = [&] {
            QStringList points;
            const QString file = QString::fromUtf8(TestFolder::read(folder.path("points.csv")));
            QFile::remove(folder.path("points.csv"));
            for (const QString& row : file.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(1))
                points << row.section(QLatin1Char(','), 1, 1) + QLatin1Char('/') +
                              row.section(QLatin1Char(','), 0, 0);
            return points.join(QLatin1Char(' '));
        };
        Shown<DesignLineControl> shown(project);
        shown.click(shown.line("1003"_q));
        shown.click(shown.line("1001"_q), Qt::ControlModifier);
        shown.choose("Export Selected");
        QCOMPARE(written(), "1001/1 1001/2 1003/1 1003/2"_q);
        shown.choose("Export Selected Empty");
        QCOMPARE(written(), "1001/2 1003/2"_q);
        shown.click(shown.view->root());
        shown.choose("Export All Empty");
        QCOMPARE(written(), "1001/2 1002/2 1003/2"_q);
    }

    void theDesignKeepsTheUsersLine()
    {
        Project project;
        project.addReceivers({"1001", "1002", "1003"});
        Shown<DesignLineControl> shown(project);
        shown.click(shown.line("1002"_q));
        shown.events();
        project.publish(kNewDesign);
        QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=1002"});
        QCOMPARE(shown.view->selectedLines(), QStringList("1002"_q));
        project.design().eraseLine("1002");
        project.publish(kNewDesign);
        QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=1001"});
        shown.click(shown.line("1003"_q));
        OpenProject::status().set(status::kProjectPath, "/b");
        project.publish(kNewDesign);
        QCOMPARE(shown.events().back(), "ON_DESIGN_LINE_SWITCHED line_num=1001");
    }

    void theResultsKeepTheUsersPlace()
    {
        Project project;
        for (int line = 1000; line < 1100; ++line)
            project.results().set(surveyPoint(std::to_string(line), "1"));
        Shown<SurveyDataControl> shown(project);
        shown.view->scrollToItem(shown.line("1080"_q));
        shown.click(shown.line("1078"_q));
        shown.click(shown.line("1080"_q), Qt::ControlModifier);
        const int scrolled = shown.view->verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        project.activated();
        shown.events();
        project.publish(kNewResults);
        QCOMPARE(shown.events(),
                 (Events{"ON_SHOW_ALL_SURVEY_TABLE", "ON_SURVEY_LINE_SWITCHED line_num=1080"}));
        QCOMPARE(shown.view->selectedLines(), (QStringList{"1078"_q, "1080"_q}));
        QCOMPARE(shown.view->verticalScrollBar()->value(), scrolled);
        QCOMPARE(project.activated(), QStringList());

        project.results().eraseLine("1080");
        project.publish(kNewResults);
        QCOMPARE(shown.events().back(), "ON_SURVEY_LINE_SWITCHED line_num=1078");
        OpenProject::status().set(status::kProjectPath, "/b");
        project.publish(kNewResults);
        QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"});
        QVERIFY(shown.view->root()->isSelected());
    }

    void aMarkFromElsewhereDoesNotSwitchTheTable()
    {
        Project project;
        project.addResults({"1001", "1002", "1003"});
        Shown<SurveyDataControl> shown(project);
        shown.events();
        shown.tree.followLine("1002"_q);
        shown.tree.followLine("none"_q);
        OpenProject::status().set(status::kShowAllLines, "1"); // the table shows all lines
        QCOMPARE(shown.view->selectedLines(), QStringList("1002"_q));
        project.publish(kNewResults);
        QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"}); // not the line alone
        QCOMPARE(shown.view->selectedLines(), QStringList("1002"_q));
        shown.click(shown.line("1001"_q), Qt::ControlModifier);
        shown.tree.followLine("1002"_q);
        QCOMPARE(shown.view->selectedLines(), (QStringList{"1001"_q, "1002"_q}));
    }

    void deletesLinesWhenItIsMeant()
    {
        Project project;
        project.addResults({"1001", "1002", "1003"});
        project.results().set(surveyPoint("1002", "2"));
        Shown<SurveyDataControl> shown(project);
        shown.view->setFocus();
        Boxes boxes;
        QTest::keyClick(shown.view, Qt::Key_Delete); // the root is selected
        QCOMPARE(boxes.told(), QStringList());
        shown.click(shown.line("1001"_q));
        QTest::keyClick(shown.view, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(shown.view, Qt::Key_Delete);
        QCOMPARE(boxes.told(), QStringList("warning|Are you sure to delete these records?"_q));
        QVERIFY(boxes.last.details.contains("Lines: 2, results: 3."_q));
        QCOMPARE(project.results().pointCount(), std::size_t(4));
        boxes.answer = Boxes::Button::Yes;
        shown.events();
        shown.choose("Delete Line");
        QCOMPARE(project.results().pointCount(), std::size_t(1));
        QVERIFY(project.manager->isChanged());
        QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"});
        QVERIFY(shown.line("1001"_q) == nullptr && shown.line("1003"_q) != nullptr);
    }

    void oddNamesComeThrough()
    {
        Project project;
        const QStringList names{"%1 %2"_q, "a,\"b\"=c"_q, "测线 <b>1"_q,
                                QString(1000, QLatin1Char('7'))};
        for (const QString& name : names)
            project.design().set(designPoint(name.toStdString(), "1", 1));
        Shown<DesignLineControl> shown(project);
        for (const QString& name : names) {
            LineItem* const item = shown.line(name);
            QVERIFY2(item != nullptr, qPrintable(name));
            QCOMPARE(item->text(0), QLatin1Char('R') + name);
            shown.view->scrollToItem(item);
            shown.click(item);
            QCOMPARE(shown.told("line_num"), name);
            QVERIFY(item->toolTip(0).contains("Points: 1"_q));
            QVERIFY(!item->toolTip(0).contains("<b>"_q));
        }
    }
};

QTEST_MAIN(LineTreesTest)
#include "LineTreesTest.moc"
