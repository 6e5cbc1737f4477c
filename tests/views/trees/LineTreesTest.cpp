#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "views/trees/DesignLineControl.h"
#include "views/trees/LineTreeView.h"
#include "views/trees/SurveyDataControl.h"

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>

#include <memory>

namespace {

using Events = std::vector<std::string>;

constexpr const char* kTableEvents =
    "ON_DESIGN_LINE_SWITCHED,ON_CLEAR_DESIGN_TABLE,ON_DESIGN_TABLE_SELECT_POINT,"
    "ON_SURVEY_LINE_SWITCHED,ON_CLEAR_SURVEY_TABLE,ON_SURVEY_TABLE_SELECT_POINT,"
    "ON_SHOW_ALL_SURVEY_TABLE";

/// A tree on the screen, with what it publishes.
template <class Tree>
struct Shown
{
    explicit Shown(TestHost& host) : log(host.events, kTableEvents), tree("", &host)
    {
        view = tree.template findChild<LineTreeView*>();
        field = tree.template findChild<QLineEdit*>();
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
    /// "EVENT payload" of all events since the last call.
    Events events()
    {
        Events all;
        for (const auto& [name, payload] : log.events)
            all.push_back(payload == "(null)" ? name : name + ' ' + payload);
        log.events.clear();
        return all;
    }
    /// The menu that the menu key opens; null when none does.
    QMenu* menu()
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(view, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    QStringList menuTexts()
    {
        QStringList texts;
        if (QMenu* const opened = menu()) {
            for (const QAction* action : opened->actions()) {
                if (!action->isSeparator())
                    texts << action->text();
            }
            opened->close();
        }
        return texts;
    }
    void trigger(const QString& text)
    {
        QMenu* const opened = menu();
        QVERIFY(opened != nullptr);
        for (QAction* action : opened->actions()) {
            if (action->text() == text)
                opened->setActiveAction(action);
        }
        QTest::keyClick(opened, Qt::Key_Return);
    }

    EventLog log;
    Tree tree;
    LineTreeView* view;
    QLineEdit* field;
};

} // namespace

class LineTreesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void groupsTheLinesOfTheDesign();
    void aDesignWithoutPointsClearsTheTable();
    void listsTheLinesOfTheResults();
    void aClickAnnouncesAndBringsTheTableForward();
    void keysWalkWithoutTakingTheFocus();
    void theSearchOfTheDesignClearsAGroup();
    void theSearchOfTheResultsFindsTheLine();
    void theFirstSelectedItemDecidesOnTheMenu();
    void exportsWhatIsSelected();
    void theResultsKeepTheUsersPlace();
    void aMarkFromElsewhereDoesNotSwitchTheTable();
    void deletesLinesWhenItIsMeant();
    void oddNamesComeThrough();

private:
    void addDesign(const std::string& line, const std::string& point, int type, int status = 0)
    {
        DesignPoint added;
        added.lineNumber = line;
        added.pointNumber = point;
        added.type = type;
        added.status = status;
        m_manager->designPoints().set(added);
    }
    void addResult(const std::string& line, const std::string& point)
    {
        SurveyPoint added;
        added.lineNumber = line;
        added.pointNumber = point;
        m_manager->surveyPoints().set(added);
    }
    void refresh(const char* event) { m_host->events.publish(event, nullptr, 0); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<DataProcessDataManager> m_manager;
};

void LineTreesTest::init()
{
    m_host = std::make_unique<TestHost>();
    m_manager = std::make_unique<DataProcessDataManager>(m_host.get());
    IDictionary& values = get_system_status_dictionary();
    values.clear();
    values.set(status::kProjectOpen, "1");
    values.set(status::kProjectPath, "/a");
}

void LineTreesTest::cleanup()
{
    m_manager.reset();
    m_host.reset();
}

void LineTreesTest::groupsTheLinesOfTheDesign()
{
    addDesign("900", "1", 0);
    addDesign("1003", "1", 1);
    addDesign("1001", "1", 2, 1); // the first point decides
    addDesign("1001", "2", 0);
    Shown<DesignLineControl> shown(*m_host);
    QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=1001"});
    refresh("REFRESH_DESIGN_LAYER");
    QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=1001"});
    const LineItem* const root = shown.view->root();
    QCOMPARE(shown.view->topLevelItemCount(), 1);
    QStringList told;
    const std::function<void(const QTreeWidgetItem&)> tell = [&](const QTreeWidgetItem& item) {
        told << QStringLiteral("%1|%2|%3|%4|%5|%6")
                    .arg(item.text(0), item.data(0, 256).toString(), item.data(0, 257).toString(),
                         item.data(0, 258).toString(), item.data(0, 259).toString(),
                         QLatin1String(item.isExpanded() ? "open" : ""));
        for (int i = 0; i < item.childCount(); ++i)
            tell(*item.child(i));
    };
    tell(*root);
    QCOMPARE(told, (QStringList{"design data (3)|1|||3|open"_q, "Send data (1)|3|||1|open"_q,
                                "S900|2|900|0||"_q, "Recv data (2)|4|||2|open"_q,
                                "R1001|2|1001|2||"_q, "R1003|2|1003|1||"_q}));
    QCOMPARE(shown.view->selectedLines(), QStringList("1001"_q));
    QVERIFY(shown.line("1001"_q)->toolTip(0).contains("Points: 2, surveyed: 1"_q));

    m_manager->designPoints().eraseLine("1001");
    m_manager->designPoints().eraseLine("1003");
    refresh("REFRESH_DESIGN_LAYER");
    QCOMPARE(shown.events(), Events{"ON_DESIGN_LINE_SWITCHED line_num=900"});
}

void LineTreesTest::aDesignWithoutPointsClearsTheTable()
{
    get_system_status_dictionary().clear();
    Shown<DesignLineControl> shown(*m_host);
    QCOMPARE(shown.events(), Events());
    QCOMPARE(shown.view->root()->text(0), "design data (0)"_q);
    addDesign("1001", "1", 1);
    m_manager->designPoints().findLine("1001")->clear(); // a line without points
    refresh("REFRESH_DESIGN_LAYER");
    QCOMPARE(shown.events(), Events{"ON_CLEAR_DESIGN_TABLE"});
    QCOMPARE(shown.view->root()->text(0), "design data (1)"_q);
    QCOMPARE(shown.view->root()->child(0)->text(0), "Send data (0)"_q);
    QCOMPARE(shown.view->root()->child(1)->text(0), "Recv data (0)"_q);
    QVERIFY(shown.view->selectedItems().isEmpty());
}

void LineTreesTest::listsTheLinesOfTheResults()
{
    Shown<SurveyDataControl> shown(*m_host);
    QCOMPARE(shown.events(), Events{"ON_CLEAR_SURVEY_TABLE"});
    QCOMPARE(shown.view->root()->text(0), "survey data (0)"_q);
    addResult("9", "1");
    addResult("10", "1");
    addResult("10", "2");
    refresh("REFRESH_SURVEY_LAYER");
    QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"});
    const LineItem* const root = shown.view->root();
    QCOMPARE(root->text(0), "survey data (2)"_q);
    QVERIFY(root->isExpanded() && root->isSelected());
    QCOMPARE(root->child(0)->text(0), "10"_q);
    QCOMPARE(root->child(0)->data(0, 256).toInt(), 2);
    QCOMPARE(root->child(0)->data(0, 257).toString(), "10"_q);
    QCOMPARE(root->child(0)->data(0, 258).toInt(), 2);
    QVERIFY(root->child(0)->toolTip(0).contains("Results: 2"_q));
    QCOMPARE(root->child(1)->text(0), "9"_q);
}

void LineTreesTest::aClickAnnouncesAndBringsTheTableForward()
{
    addDesign("1001", "1", 1);
    addDesign("1002", "1", 1);
    addResult("1001", "1");
    Shown<DesignLineControl> design(*m_host);
    design.events();
    design.click(design.line("1002"_q));
    design.click(design.view->root()->child(1));
    QCOMPARE(design.events(),
             (Events{"ON_DESIGN_LINE_SWITCHED line_num=1002", "ON_CLEAR_DESIGN_TABLE"}));
    QCOMPARE(m_host->windowRegistry.activated,
             (QStringList{"DesignLineTable"_q, "DesignLineTable"_q}));
    m_host->windowRegistry.activated.clear();
    Shown<SurveyDataControl> survey(*m_host);
    survey.events();
    survey.click(survey.line("1001"_q));
    survey.click(survey.view->root());
    QCOMPARE(survey.events(),
             (Events{"ON_SURVEY_LINE_SWITCHED line_num=1001", "ON_SHOW_ALL_SURVEY_TABLE"}));
    QCOMPARE(m_host->windowRegistry.activated,
             (QStringList{"SurveyDataTable"_q, "SurveyDataTable"_q}));
}

void LineTreesTest::keysWalkWithoutTakingTheFocus()
{
    addDesign("1001", "1", 1);
    addDesign("1002", "1", 1);
    Shown<DesignLineControl> shown(*m_host);
    shown.view->setFocus();
    shown.events();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up})
        QTest::keyClick(QApplication::focusWidget(), key); // the second one has nowhere to go
    QCOMPARE(shown.events(),
             (Events{"ON_DESIGN_LINE_SWITCHED line_num=1002",
                     "ON_DESIGN_LINE_SWITCHED line_num=1001", "ON_CLEAR_DESIGN_TABLE"}));
    QCOMPARE(m_host->windowRegistry.activated, QStringList());
    QVERIFY(shown.view->hasFocus());
    QTest::keyClick(shown.view, Qt::Key_Return);
    QCOMPARE(shown.events(), Events{"ON_CLEAR_DESIGN_TABLE"});
    QCOMPARE(m_host->windowRegistry.activated, QStringList("DesignLineTable"_q));
}

void LineTreesTest::theSearchOfTheDesignClearsAGroup()
{
    addDesign("1005", "10051234", 1);
    Shown<DesignLineControl> shown(*m_host);
    shown.events();
    for (const QString& text : {"R10051234"_q, "10051234"_q, ""_q}) {
        shown.view->root()->child(1)->setSelected(true);
        shown.field->setText(text);
        QTest::keyClick(shown.field, Qt::Key_Return);
        QVERIFY(!shown.view->root()->child(1)->isSelected());
        QVERIFY(shown.line("1005"_q)->isSelected()); // no child of the root
    }
    QCOMPARE(shown.events(), Events());
}

void LineTreesTest::theSearchOfTheResultsFindsTheLine()
{
    addResult("1005", "10051234");
    addResult("a\",b", "7");
    Shown<SurveyDataControl> shown(*m_host);
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
    QCOMPARE(m_host->windowRegistry.activated, QStringList("SurveyDataTable"_q));
    QCOMPARE(search("RR1005"), Events()); // one letter is passed over
    QVERIFY(shown.view->selectedLines().isEmpty());
    shown.field->setText("Sa\",b7"_q);
    QTest::mouseClick(shown.tree.findChild<QPushButton*>(), Qt::LeftButton);
    basalt::Dictionary payload;
    payload::read(shown.log.events.back().payload.c_str(), payload);
    QCOMPARE(lum::toQString(payload.text("line_num")), "a\",b"_q);
    QCOMPARE(lum::toQString(payload.text("point_num")), "Sa\",b7"_q);
}

void LineTreesTest::theFirstSelectedItemDecidesOnTheMenu()
{
    addDesign("1001", "1", 1);
    addResult("1001", "1");
    Shown<DesignLineControl> design(*m_host);
    QCOMPARE(design.menuTexts(),
             (QStringList{"Export Selected"_q, "Export Selected Empty"_q, "Export Selected DB"_q,
                          "Export Selected Empty DB"_q, "Export Selected Kml"_q,
                          "Export Selected Empty Kml"_q}));
    const QStringList ofAll{"Expand All"_q,       "Collapse All"_q,         "Export All"_q,
                            "Export All Empty"_q, "Export All DB"_q,        "Export All Empty DB"_q,
                            "Export All Kml"_q,   "Export All Empty Kml"_q, "Import Csv"_q};
    design.click(design.view->root()->child(0));
    QCOMPARE(design.menuTexts(), ofAll);
    design.click(design.line("1001"_q), Qt::ControlModifier); // the group was first
    QCOMPARE(design.menuTexts(), ofAll);
    design.trigger("Collapse All"_q);
    QVERIFY(!design.view->root()->isExpanded());
    design.view->clearSelection();
    QVERIFY(design.menu() == nullptr);

    Shown<SurveyDataControl> survey(*m_host);
    QCOMPARE(survey.menuTexts(), (QStringList{"Expand All"_q, "Collapse All"_q, "Export All"_q,
                                              "Export All Kml"_q, "Import Csv"_q, "Import DB"_q}));
    survey.click(survey.line("1001"_q));
    QCOMPARE(survey.menuTexts(),
             (QStringList{"Export Selected"_q, "Export Selected Kml"_q, "Delete Line"_q}));
}

void LineTreesTest::exportsWhatIsSelected()
{
    for (const char* line : {"1001", "1002", "1003"}) {
        addDesign(line, "1", 1, 1);
        addDesign(line, "2", 1, 0);
    }
    const TestFolder folder;
    const FileDialog::Responder files([&](const auto&) { return folder.path("points.csv"); });
    const LumMessageBox::Responder messages([](const auto& message) {
        return message.title == "Success"_q ? LumMessageBox::Button::No
                                            : LumMessageBox::Button::Yes; // replaces the file
    });
    const auto written = [&] {
        QStringList points;
        const QString file = QString::fromUtf8(TestFolder::read(folder.path("points.csv")));
        for (const QString& row : file.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(1))
            points << row.section(QLatin1Char(','), 1, 1) + QLatin1Char('/') +
                          row.section(QLatin1Char(','), 0, 0);
        return points;
    };
    Shown<DesignLineControl> shown(*m_host);
    shown.click(shown.line("1003"_q));
    shown.click(shown.line("1001"_q), Qt::ControlModifier);
    shown.trigger("Export Selected"_q);
    QCOMPARE(written(), (QStringList{"1001/1"_q, "1001/2"_q, "1003/1"_q, "1003/2"_q}));
    shown.trigger("Export Selected Empty"_q);
    QCOMPARE(written(), (QStringList{"1001/2"_q, "1003/2"_q}));
    shown.click(shown.view->root());
    shown.trigger("Export All Empty"_q);
    QCOMPARE(written(), (QStringList{"1001/2"_q, "1002/2"_q, "1003/2"_q}));
}

void LineTreesTest::theResultsKeepTheUsersPlace()
{
    for (int line = 1000; line < 1100; ++line)
        addResult(std::to_string(line), "1");
    Shown<SurveyDataControl> shown(*m_host);
    shown.view->scrollToItem(shown.line("1080"_q));
    shown.click(shown.line("1078"_q));
    shown.click(shown.line("1080"_q), Qt::ControlModifier);
    const int scrolled = shown.view->verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    m_host->windowRegistry.activated.clear();
    shown.events();
    refresh("REFRESH_SURVEY_LAYER");
    QCOMPARE(shown.events(),
             (Events{"ON_SHOW_ALL_SURVEY_TABLE", "ON_SURVEY_LINE_SWITCHED line_num=1080"}));
    QCOMPARE(shown.view->selectedLines(), (QStringList{"1078"_q, "1080"_q}));
    QCOMPARE(shown.view->verticalScrollBar()->value(), scrolled);
    QCOMPARE(m_host->windowRegistry.activated, QStringList());

    m_manager->surveyPoints().eraseLine("1080");
    refresh("REFRESH_SURVEY_LAYER");
    QCOMPARE(shown.events().back(), "ON_SURVEY_LINE_SWITCHED line_num=1078");
    get_system_status_dictionary().set(status::kProjectPath, "/b");
    refresh("REFRESH_SURVEY_LAYER");
    QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"});
    QVERIFY(shown.view->root()->isSelected());
}

void LineTreesTest::aMarkFromElsewhereDoesNotSwitchTheTable()
{
    for (const char* line : {"1001", "1002", "1003"})
        addResult(line, "1");
    Shown<SurveyDataControl> shown(*m_host);
    shown.events();
    shown.tree.followLine("1002"_q);
    shown.tree.followLine("none"_q);
    get_system_status_dictionary().set(status::kShowAllLines, "1"); // the table shows all lines
    QCOMPARE(shown.view->selectedLines(), QStringList("1002"_q));
    refresh("REFRESH_SURVEY_LAYER");
    QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"}); // not the line alone
    QCOMPARE(shown.view->selectedLines(), QStringList("1002"_q));
    shown.click(shown.line("1001"_q), Qt::ControlModifier);
    shown.tree.followLine("1002"_q);
    QCOMPARE(shown.view->selectedLines(), (QStringList{"1001"_q, "1002"_q}));
}

void LineTreesTest::deletesLinesWhenItIsMeant()
{
    for (const char* line : {"1001", "1002", "1003"})
        addResult(line, "1");
    addResult("1002", "2");
    Shown<SurveyDataControl> shown(*m_host);
    shown.view->setFocus();
    LumMessageBox::Button answer = LumMessageBox::Button::No;
    QStringList asked;
    const LumMessageBox::Responder responder([&](const auto& message) {
        asked << message.title << message.text << message.details;
        return answer;
    });
    QTest::keyClick(shown.view, Qt::Key_Delete); // the root is selected
    QCOMPARE(asked, QStringList());
    shown.click(shown.line("1001"_q));
    QTest::keyClick(shown.view, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(shown.view, Qt::Key_Delete);
    QCOMPARE(asked.mid(0, 2),
             (QStringList{"warning"_q, "Are you sure to delete these records?"_q}));
    QVERIFY2(asked[2].contains("Lines: 2, results: 3."_q), qPrintable(asked[2]));
    QCOMPARE(m_manager->surveyPoints().pointCount(), std::size_t(4));
    answer = LumMessageBox::Button::Yes;
    shown.events();
    shown.trigger("Delete Line"_q);
    QCOMPARE(m_manager->surveyPoints().pointCount(), std::size_t(1));
    QVERIFY(m_manager->isChanged());
    QCOMPARE(shown.events(), Events{"ON_SHOW_ALL_SURVEY_TABLE"});
    QVERIFY(shown.line("1001"_q) == nullptr && shown.line("1003"_q) != nullptr);
}

void LineTreesTest::oddNamesComeThrough()
{
    const QStringList names{"%1 %2"_q, "a,\"b\"=c"_q, "测线 <b>1"_q,
                            QString(1000, QLatin1Char('7'))};
    for (const QString& name : names)
        addDesign(name.toStdString(), "1", 1);
    Shown<DesignLineControl> shown(*m_host);
    for (const QString& name : names) {
        LineItem* const item = shown.line(name);
        QVERIFY2(item != nullptr, qPrintable(name));
        QCOMPARE(item->text(0), QLatin1Char('R') + name);
        shown.view->scrollToItem(item);
        shown.click(item);
        basalt::Dictionary payload;
        payload::read(shown.log.events.back().payload.c_str(), payload);
        QCOMPARE(lum::toQString(payload.text("line_num")), name);
        QVERIFY(item->toolTip(0).contains("Points: 1"_q) && !item->toolTip(0).contains("<b>"_q));
    }
}

QTEST_MAIN(LineTreesTest)
#include "LineTreesTest.moc"
