#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "project/ui/DlgSurveyPoint.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"
#include "tests/support/OnEvent.h"
#include "tests/support/Points.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"
#include "tests/views/tables/ShownTable.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/DesignLineTable.h"
#include "views/tables/SurveyDataTable.h"

namespace {

using Button = LumMessageBox::Button;
using Names = std::vector<std::string>;
using SurveyTable = ShownTable<SurveyDataTable>;
using DesignTable = ShownTable<DesignLineTable>;

constexpr const char* kOddLine = "L \"1\", 北 %1"; // a payload has to quote it
constexpr const char* kAll = "ON_SHOW_ALL_SURVEY_TABLE";
constexpr const char* kResultsOf = "ON_SURVEY_LINE_SWITCHED";
constexpr const char* kDesignOf = "ON_DESIGN_LINE_SWITCHED";

QByteArray line(const char* number)
{
    return payload::line(QString::fromUtf8(number));
}

/// A project with two lines of results, one by an odd name, and two designed lines.
struct Project : OpenProject
{
    Project()
    {
        for (const char* number : {"1", "2", "3", "4"})
            results().set(surveyPoint("1001", number)).rms = 10 + number[0] - '0';
        for (const char* number : {"C10010001_0", "C10010001_1"})
            results().set(surveyPoint("1001", number)).rms = 9.5;
        results().set(surveyPoint(kOddLine, "%2 \"7\""));
        for (const char* number : {"1", "2", "3"})
            design().set(designPoint("1001", number));
        design().set(designPoint("2002", "5"));
    }
    void addLine(int from, int count)
    {
        for (int number = from; number < from + count; ++number)
            results().set(surveyPoint("5", std::to_string(number))).rms = number % 2;
    }
    /// The points of the selections since the last call.
    QStringList announced()
    {
        QStringList points;
        for (const std::string& payload : selections.payloads())
            points << QString::fromStdString(payload)
                          .remove("pointName="_q)
                          .section(QLatin1Char(','), 0, 0);
        selections.events.clear();
        return points;
    }

    EventLog selections{host.events, events::kSurveyPointSelected};
    EventLog changes{host.events, events::kRefreshSurveyLayer};
    Boxes boxes;
};

} // namespace

class PointTablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsSayWhatIsShown()
    {
        Project project;
        const auto showsAll = [] {
            return OpenProject::status().text(status::kShowAllLines) == "1";
        };
        const SurveyTable results(project, kAll);
        QCOMPARE(results.model.rowCount(), 7);
        QVERIFY(showsAll());
        project.publish(kResultsOf, line(kOddLine));
        QCOMPARE(results.model.rowCount(), 1);
        QVERIFY(!showsAll() && results.label("No line") == nullptr);
        project.publish("ON_CLEAR_SURVEY_TABLE");
        QCOMPARE(results.model.rowCount(), 0);
        results.followLink("No line is shown");
        QCOMPARE(results.model.rowCount(), 7);
        QVERIFY(showsAll() && results.label("No line") == nullptr);

        const DesignTable design(project, kDesignOf, line("2002"));
        QCOMPARE(design.rows(), QStringList("2002/5"_q));
        project.design().set(designPoint("2002", "6"));
        QCOMPARE(design.rows(), QStringList("/"_q)); // nobody has told the table
        project.publish("REFRESH_DESIGN_TABLE");
        QCOMPARE(design.rows(), (QStringList{"2002/5"_q, "2002/6"_q}));
        project.design().set(designPoint("2002", "7"));
        project.publish(kDesignOf, line("2002")); // the tree was built anew
        QCOMPARE(design.model.rowCount(), 3);
        project.publish("ON_CLEAR_DESIGN_TABLE");
        QCOMPARE(design.model.rowCount(), 0);
        design.followLink("No line is shown");
        QCOMPARE(design.model.line(), "1001"_q);
    }

    void pointsAreMarkedInTheColorsOfTheResults()
    {
        Project project;
        for (const char* number : {"1", "2"})
            project.results().find("1001", number)->surveyor = number[0] == '1' ? "Li" : "Wu";
        const SurveyTable results(project, kAll);
        const DesignTable design(project, kDesignOf, line("1001"));
        const auto centre = [](const auto& table, int row) {
            const QModelIndex cell = table.model.index(row, table.column("point_num"));
            const QImage mark =
                cell.data(Qt::DecorationRole).template value<QIcon>().pixmap(16, 16).toImage();
            return mark.isNull() ? QColor() : mark.pixelColor(mark.rect().center());
        };
        const auto tip = [](const auto& table, int row) {
            return table.model.index(row, table.column("point_num")).data(Qt::ToolTipRole);
        };
        const int width = results.table.columnWidth(results.column("point_num"));
        QVERIFY(!centre(results, 0).isValid() && !centre(design, 0).isValid());

        OpenProject::settings().set(settings::kResultColors, "surveyor");
        project.publish(events::kUpdateSystemStatus);
        QVERIFY(results.table.columnWidth(results.column("point_num")) > width);
        QVERIFY(centre(results, 0).alpha() == 255 && centre(results, 1).alpha() == 255);
        QVERIFY(centre(results, 0) != centre(results, 1));
        QCOMPARE(tip(results, 1).toString(), "Surveyor: Wu"_q);
        QCOMPARE(tip(results, 3).toString(), "Surveyor: not told"_q);
        QCOMPARE(centre(design, 1), centre(results, 1)); // of the same name
        project.design().set(designPoint("1001", "9"));
        project.publish("REFRESH_DESIGN_TABLE");
        QCOMPARE(tip(design, 3).toString(), "not surveyed"_q);
        QCOMPARE(centre(design, 3).alpha(), 0); // a ring
        results.model.sortBy(results.column("point_num"), Qt::DescendingOrder);
        QCOMPARE(tip(results, 0).toString(), "Surveyor: not told"_q);

        const auto dayTip = [&] {
            return tip(results, results.model.rowOf({"1001", "1"})).toString();
        };
        project.results().find("1001", "1")->dateTime = 1904066400000; // 2030-05-03 19:20 UTC
        OpenProject::settings().set(settings::kResultColors, "day");
        project.publish(events::kUpdateSystemStatus);
        QCOMPARE(dayTip(), "Day: 2030/05/04"_q);
        OpenProject::settings().set(settings::kTimeZone, "0");
        project.publish(events::kRefreshSurveyTable); // as after each change of the zone
        QCOMPARE(dayTip(), "Day: 2030/05/03"_q);
        QCOMPARE(tip(design, 0).toString(), dayTip());
        OpenProject::settings().clear();
        project.publish(events::kUpdateSystemStatus);
        QVERIFY(!centre(results, 0).isValid() && !centre(design, 0).isValid());
    }

    void aRowAnnouncesItsPoint()
    {
        Project project;
        const SurveyTable seen(project, kAll);
        seen.click(4);
        QCOMPARE(project.selections.payloads(), Names{"pointName=C10010001_0,lineName=1001"});
        // To the left is the same row; two rows below, Enter announces once more.
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Left, Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(&seen.table, key);
        seen.click(1, 2);
        seen.click(3, 2, Qt::ControlModifier); // the first of the selected rows is told
        QCOMPARE(project.announced(), (QStringList{"C10010001_0"_q, "C10010001_1"_q, "%2 \"7\""_q,
                                                   "%2 \"7\""_q, "2"_q, "2"_q}));
        QCOMPARE(seen.selected(), (QStringList{"1001/2"_q, "1001/4"_q}));
        QVERIFY(seen.label("Points: 7")->text().endsWith("Selected: 2"_q));

        // What is selected by a drag or a right click is the point of the other windows, too.
        seen.drag(2, 4);
        QCOMPARE(seen.table.selectedRows(), (std::vector<int>{2, 3, 4}));
        QCOMPARE(project.announced().last(), "3"_q);
        seen.rightClick(3)->close(); // within the selection, which stays
        QCOMPARE(project.announced(), QStringList());
        seen.rightClick(0)->close();
        QCOMPARE(project.announced(), QStringList("1"_q));
    }

    void theMenuAsksForTheHistoryOfThePointUnderIt()
    {
        Project project;
        const EventLog asked(project.host.events, events::kShowPointHistory);
        const SurveyTable results(project, kAll);
        results.choose("History of This Point", 2);
        results.choose("History of This Point", 6);
        const DesignTable design(project, kDesignOf, line("2002"));
        design.choose("History of This Point", 0);
        QCOMPARE(asked.payloads().size(), std::size_t(3));
        QCOMPARE(asked.payloads()[0], std::string("pointName=3,lineName=1001"));
        QCOMPARE(asked.payloads()[2], std::string("pointName=5,lineName=2002"));
    }

    void aPointIsSelectedFromElsewhere()
    {
        Project project;
        SurveyTable seen(project, kResultsOf, line(kOddLine));
        const auto select = [&](const char* number) {
            project.publish("ON_SURVEY_TABLE_SELECT_POINT",
                            payload::linePoint("1001"_q, QString::fromUtf8(number)));
        };
        select("3");
        QVERIFY(seen.selected().isEmpty()); // it is of another line
        QVERIFY(seen.window.selectPoint("1001"_q, "3"_q));
        QCOMPARE(seen.selected(), QStringList("1001/3"_q));
        QCOMPARE(seen.model.line(), "1001"_q);
        select("C10010001");
        QCOMPARE(seen.selected(), QStringList("1001/C10010001_0"_q)); // found as it is shown
        QVERIFY(seen.window.followPoint("1001"_q, "2"_q));
        QVERIFY(!seen.window.followPoint("1001"_q, "99"_q));
        QVERIFY(!seen.window.selectPoint("7"_q, "2"_q));
        QCOMPARE(seen.selected(), QStringList("1001/2"_q));
        project.publish(kAll);
        QCOMPARE(seen.selected(), QStringList("1001/2"_q));
        QVERIFY(seen.window.selectPoint(QString::fromUtf8(kOddLine), "%2 \"7\""_q));
        QVERIFY(seen.model.showsAllLines());
        QCOMPARE(project.announced(), (QStringList{"3"_q, "C10010001_0"_q, "%2 \"7\""_q}));

        // Who follows the selection gives the answer to the table itself, too.
        const OnEvent follower(project.host.events, events::kSurveyPointSelected,
                               [&](auto*) { seen.window.followPoint("1001"_q, "1"_q); });
        seen.click(0);
        seen.click(2, 1, Qt::ControlModifier);
        QCOMPARE(seen.selected(), (QStringList{"1001/1"_q, "1001/3"_q}));
    }

    void aHiddenPointStaysTheSelectedOne()
    {
        Project project;
        SurveyTable seen(project, kAll);
        const int point = seen.column("point_num");
        seen.filter(point, "1..2");
        QCOMPARE(seen.rows(), (QStringList{"1001/1"_q, "1001/2"_q}));
        QVERIFY(seen.label("2 of 7") != nullptr);
        QVERIFY(seen.window.selectPoint("1001"_q, "4"_q));
        QCOMPARE(project.announced(), QStringList("4"_q));
        QVERIFY(seen.selected().isEmpty());
        seen.followLink("hide the selected point 4");
        QCOMPARE(seen.selected(), QStringList("1001/4"_q));
        QCOMPARE(seen.model.rowCount(), 7);
        QVERIFY(seen.label("hide") == nullptr);

        seen.filter(point, "nowhere");
        QVERIFY(seen.label("No point passes") != nullptr && seen.label("hide") != nullptr);
        seen.window.findChild<QToolButton*>()->click();
        QCOMPARE(seen.selected(), QStringList("1001/4"_q));
        seen.filter(point, "1..");
        QCOMPARE(seen.model.rowCount(), 7); // a filter with a fault hides nothing
        QVERIFY(!seen.model.isFiltered());
    }

    void longListsKeepTheirPlace()
    {
        Project project;
        project.addLine(1000, 500);
        SurveyTable seen(project, kResultsOf, line("5"));
        QCoreApplication::processEvents();
        seen.table.verticalScrollBar()->setValue(200);
        seen.click(203);
        seen.click(205, 1, Qt::ControlModifier);
        const auto top = [&] { return seen.rows().at(seen.table.rowAt(0)); };
        QCOMPARE(top(), "5/1200"_q);
        for (int number = 1000; number < 1100; ++number)
            project.results().erase("5", std::to_string(number));
        project.publish("REFRESH_SURVEY_TABLE");
        QCOMPARE(top(), "5/1200"_q);
        QCOMPARE(seen.selected(), (QStringList{"5/1203"_q, "5/1205"_q}));
        QCOMPARE(seen.table.currentIndex(), seen.model.index(105, 1));
        const auto showsCurrent = [&] { return seen.isInView(seen.table.currentIndex()); };
        for (const char* when : {"first", "after a check"}) {
            project.publish(kAll);
            QCOMPARE(seen.selected(), QStringList("5/1203"_q)); // the last that was announced
            QVERIFY2(showsCurrent(), when);
        }
        QVERIFY(seen.window.selectPoint("1001"_q, "1"_q) && showsCurrent());
        project.publish("ON_CLEAR_SURVEY_TABLE");
        QVERIFY(seen.window.followPoint("5"_q, "1490"_q) && showsCurrent());
        project.results().erase("5", "1490");
        project.publish("REFRESH_SURVEY_TABLE");
        QVERIFY(seen.selected().isEmpty());
    }

    void allFilteredRowsStayTheSelectedOnes()
    {
        Project project;
        project.addLine(100, 100);
        const SurveyTable seen(project, kResultsOf, line("5"));
        const int rms = seen.column("rms");
        seen.table.scrollTo(seen.model.index(0, rms));
        seen.filter(rms, "= 1");
        QTest::keyClick(&seen.table, Qt::Key_A, Qt::ControlModifier);
        const QStringList odd = seen.selected();
        QCOMPARE(odd.size(), 50);
        seen.filter(rms, "");
        QCOMPARE(seen.selected(), odd);
        QTest::keyClick(&seen.table, Qt::Key_A, Qt::ControlModifier);
        project.results().set(surveyPoint("5", "105a")); // by an import
        project.results().erase("5", "106");
        project.publish("REFRESH_SURVEY_TABLE");
        QCOMPARE(seen.selected().size(), 99);
        QVERIFY(!seen.selected().contains("5/105a"_q) && seen.selected().contains("5/107"_q));
    }

    void sortsAndFiltersFromTheHeader()
    {
        Project project;
        const SurveyTable seen(project, kResultsOf, line("1001"));
        const int rms = seen.column("rms");
        seen.table.scrollTo(seen.model.index(0, rms));
        QHeaderView& header = *seen.table.horizontalHeader();
        const auto click = [&] {
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                              {header.sectionViewportPosition(rms) + 15, 5});
        };
        click();
        QCOMPARE(seen.rows().front(), "1001/C10010001_0"_q); // 9.5 before 11
        click();
        QCOMPARE(seen.rows().front(), "1001/4"_q);
        project.publish(kAll);
        QCOMPARE(seen.rows().front(), "1001/4"_q); // the order survives a switch
        click();
        QCOMPARE(seen.rows().front(), "1001/1"_q);

        seen.choose("Filter by This Value", 1, rms);
        QCOMPARE(seen.rows(), QStringList("1001/2"_q));
        seen.filter(rms, "> 11.5");
        QCOMPARE(seen.rows(), (QStringList{"1001/2"_q, "1001/3"_q, "1001/4"_q}));
        seen.filter(rms, "> x");
        QVERIFY(seen.label("Filter of \"") != nullptr);
        seen.filter(rms, "");
        QVERIFY(seen.label("Filter of") == nullptr);
        seen.table.scrollTo(seen.model.index(6, 0));
        seen.choose("Filter by This Value", 6, seen.column("line_num"));
        QCOMPARE(seen.rows().size(), 1); // quotes, comma and blanks of its name are as they are
        QVERIFY(seen.rows().front().startsWith(QString::fromUtf8(kOddLine)));
    }

    void exportsDesignRowsWithNumbersForTypeAndStatus()
    {
        Project project;
        project.design().set({"1001", "a,\nb", 1234567.8916, 0, 0, 12.5, 2, 1});
        project.design().find("1001", "2")->status = 3;
        const DesignTable seen(project, kDesignOf, line("1001"));
        const TestFolder folder;
        QString path = folder.path("点 a.csv");
        QString title;
        const FileDialog::Responder files([&](const auto& request) {
            title = request.title;
            return path;
        });
        seen.click(1);
        seen.click(3, 1, Qt::ControlModifier);
        seen.choose("export", 3);
        QCOMPARE(title, "Export Selected Design Point"_q);
        QCOMPARE(
            TestFolder::read(path),
            QByteArray("point_num,line_num,north,east,elevation,design code,azimuth,type,status\n"
                       "2,1001,0.000,0.000,0.000,2,0,0,0\n"
                       "a, b,1001,1234567.892,0.000,0.000,a, b,12.5,1,1\n"));
    }

    void exportsSurveyRowsOrTellsWhyNot()
    {
        Project project;
        project.manager->exportCaptions() = QStringList{"point num"_q, "line num"_q, "rms"_q};
        const SurveyTable seen(project, kResultsOf, line("1001"));
        const TestFolder folder;
        QString path = folder.path("a.csv");
        const FileDialog::Responder files([&](const auto&) { return path; });
        seen.click(3);
        seen.click(5, 1, Qt::ControlModifier);
        seen.choose("export", 5);
        const QByteArray rows = "point num,line num,rms\n4,1001,14.0000\nC10010001,1001,9.5000\n";
        QCOMPARE(TestFolder::read(path), rows);
        project.manager->exportCaptions().removeFirst();
        project.boxes.answer = Button::Yes; // files may be replaced
        seen.choose("export", 5);
        QCOMPARE(project.boxes.told().last(), "Error|Export Failed!"_q);
        QVERIFY2(TestFolder::read(path) == rows, "a file without rows replaced the old");
        path.clear(); // cancelled
        seen.choose("export", 5);
        QCOMPARE(project.boxes.told(), QStringList());
    }

    void deletesOnlyAfterAYes()
    {
        Project project;
        SurveyTable seen(project, kResultsOf, line("1001"));
        // As the tree does, which shows all lines when the points have changed.
        const OnEvent tree(project.host.events, events::kRefreshSurveyLayer,
                           [&](auto*) { project.publish(kAll); });
        QVERIFY(QTest::qWaitForWindowActive(&seen.window));
        seen.click(1);
        seen.click(2, 1, Qt::ShiftModifier);
        QTest::keyClick(&seen.table, Qt::Key_Delete);
        QCOMPARE(project.boxes.told(),
                 QStringList("warning|Are you sure to delete these records?"_q));
        QCOMPARE(project.boxes.last.details, "Records: 2"_q);
        QVERIFY(project.changes.events.empty() && !project.manager->isChanged());
        project.boxes.answer = Button::Yes;
        seen.choose("delete", 2);
        QCOMPARE(seen.rows(),
                 (QStringList{"1001/1"_q, "1001/4"_q, "1001/C10010001_0"_q, "1001/C10010001_1"_q}));
        QVERIFY(seen.selected().isEmpty() && project.manager->isChanged());
        QCOMPARE(project.changes.events.size(), 1U);
        QTest::keyClick(&seen.table, Qt::Key_Down);
        QCOMPARE(seen.selected(), QStringList("1001/4"_q)); // the keys go on from there
        QTest::keyClick(&seen.table, Qt::Key_A, Qt::ControlModifier);
        seen.choose("delete", 0);
        QVERIFY(project.results().findLine("1001") == nullptr);
        QCOMPARE(seen.rows().size(), 1); // the line is gone; the tree's answer holds
    }

    void modifiesTheFirstOfTheSelectedRows()
    {
        Project project;
        const SurveyTable seen(project, kAll);
        QString edited;
        whenDialog(*this, "DlgSurveyPoint", [&](QDialog& dialog) {
            edited = QString::fromStdString(static_cast<DlgSurveyPoint&>(dialog).point().point);
            dialog.reject();
        });
        seen.click(4);
        seen.click(2, 1, Qt::ControlModifier);
        seen.choose("modify", 4);
        QCOMPARE(edited, "3"_q);
        QVERIFY(project.changes.events.empty() && !project.manager->isChanged());
        QCOMPARE(seen.selected(), (QStringList{"1001/3"_q, "1001/C10010001_0"_q}));
    }

    void theHeaderChoosesColumns()
    {
        Project project;
        const SurveyTable seen(project);
        const QHeaderView& header = *seen.table.horizontalHeader();
        const EventLog log(project.host.events, events::kSurveyColumnsChanged);
        const auto choice = [] { return columnChoice(OpenProject::settings()); };
        const int mark = seen.column("point_mark");
        seen.chooseOfHeader(mark, "Hide This Column");
        QVERIFY(seen.table.isColumnHidden(mark));
        QCOMPARE(choice().hidden, QStringList("point_mark"_q));
        seen.chooseOfHeader(0, "Columns", "point mark");
        QVERIFY(!seen.table.isColumnHidden(mark) && choice().hidden.isEmpty());
        seen.table.horizontalHeader()->moveSection(0, 1);
        QCOMPARE(choice().order.mid(0, 3),
                 (QStringList{"point_num"_q, "line_num"_q, "point_mark"_q}));
        QCOMPARE(log.events.size(), 3U);
        seen.chooseOfHeader(mark, "Survey Columns..."); // no such command here

        ColumnChoice other = choice();
        other.hidden = other.order;
        other.hidden.removeOne("rms"_q);
        setColumnChoice(OpenProject::settings(), other);
        project.publish("ON_SURVEY_COLUMNS_CHANGED");
        QCOMPARE(header.hiddenSectionCount(), seen.model.columnCount() - 1);
        seen.chooseOfHeader(seen.column("rms"), "Hide This Column"); // the last one stays
        QVERIFY(!seen.table.isColumnHidden(seen.column("rms")));
    }

    void nothingIsLeftOfAClosedProject()
    {
        Project project;
        SurveyTable seen(project, kAll);
        seen.filter(seen.column("point_num"), "1");
        seen.click(0);
        project.manager->clear();
        project.tellProject("");
        QCOMPARE(seen.model.rowCount(), 0);
        QVERIFY(!seen.model.isFiltered() && seen.label("No project is open") != nullptr);
        QVERIFY(!seen.window.selectPoint("1001"_q, "1"_q));
        project.manager.reset(); // the program ends
        const LogCapture log;
        project.tellProject("/a"); // a status that is late
        project.publish("REFRESH_SURVEY_TABLE");
        project.publish(kAll);
        QCOMPARE(log.text(), std::string()); // what a handler throws would be logged
        QCOMPARE(seen.model.rowCount(), 0);
        seen.window.grab();
    }
};

QTEST_MAIN(PointTablesTest)
#include "PointTablesTest.moc"
