#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/support/Boxes.h"
#include "tests/support/PopupMenu.h"
#include "tests/support/TestFolder.h"
#include "tests/views/problems/ProblemPlace.h"

class ProblemWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatToPressAndWhatWasFound()
    {
        ProblemPlace place;
        auto* const find = place.window.findChild<QToolButton*>("find"_q);
        place.tellProject("");
        QVERIFY(place.says("No project is open.") && !place.says("Problems: 0"));
        QVERIFY(!find->isEnabled());
        place.step("next");
        QVERIFY(place.host.told.isEmpty());
        place.tellProject("/b");
        QVERIFY(place.says("Ctrl+F9") && !place.says("Problems: 0") && find->isEnabled());
        const auto labels = place.window.findChildren<QLabel*>();
        Q_EMIT(*std::ranges::find_if(labels, [](const QLabel* label) {
            return label->text().contains("href=\"find\""_q);
        }))->linkActivated("find"_q);
        QCOMPARE(place.host.commandList.executed, QStringList("Find Problems"_q));

        place.find();
        QCOMPARE(place.host.windowRegistry.activated, QStringList("Problems List"_q));
        QVERIFY(place.host.told.startsWith("Problems: 12 ("_q));
        QVERIFY(place.says("Problems: 12") && !place.says("Ctrl+F9"));
        QVERIFY(place.selected().isEmpty()); // the map stays
        QCOMPARE(place.window.focusWidget(), &place.table);
        place.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&place.window));
        find->setFocus();
        QStringList reached;
        while (reached.size() < 4 && place.window.focusWidget() != &place.table) {
            QTest::keyClick(place.window.focusWidget(), Qt::Key_Tab);
            reached << place.window.focusWidget()->objectName();
        }
        QCOMPARE(place.window.focusWidget(), &place.table); // past what is disabled
        QCOMPARE(reached[1], "search"_q);

        for (const auto& [number, line] : place.design()) {
            for (const DesignPoint& point : line)
                place.survey(number.c_str(), point.pointNumber.c_str());
        }
        place.find();
        QVERIFY(place.says("No open problem was found. Accepted: 0. Results: 12, design"));
        place.tellProject("/c");
        QVERIFY(place.says("Ctrl+F9")); // the list was another project's
        place.design().clear();
        place.results().clear();
        place.find();
        QVERIFY(place.says("nothing to look at yet")); // which is not well
    }

    void goesFromProblemToProblem()
    {
        ProblemPlace place;
        place.step("next"); // makes the list
        QCOMPARE(place.selected(), QStringList("1001/5001"_q));
        QCOMPARE(place.designed.selected, QStringList("1001/5001"_q));
        QVERIFY(place.host.told.startsWith("Problem 1 of 12, 1001/5001: "_q));
        place.step("previous");
        QCOMPARE(place.host.told, "This is the first of 12 problems."_q);
        place.step("next");
        QTest::keyClick(&place.table, Qt::Key_Down);
        QCOMPARE(place.designed.selected.mid(1), QStringList({"1001/5002"_q, "1001/5003"_q}));
        place.click(11);
        place.step("next");
        QCOMPARE(place.host.told, "This was the last of 12 problems."_q);
        QCOMPARE(place.selected(), QStringList("1002/5006"_q));
        place.designed.lineThatIsMissing = "1002"_q;
        place.step("previous");
        QVERIFY(place.host.told.contains("not in the project any more"_q));
    }

    void showsTheResultsOfACrewOnTheMapAtItsScale()
    {
        ProblemPlace place;
        MapWindow map("name=DataMap", &place.host);
        map.resize(400, 300);
        map.show();
        QVERIFY(QTest::qWaitForWindowExposed(&map));
        place.host.windowRegistry.windows.insert("DataMap"_q, &map);
        for (const char* const point : {"5001", "5002", "5003", "5004", "5005", "5006"}) {
            SurveyPoint& result = place.survey("1001", point);
            result.surveyor = "Li";
            result.dateTime = 1'700'000'000'000;
        }
        place.survey("1001", "5006").surveyor = "Wang";
        place.find();
        place.chooseKind("Too few check shots");
        QCOMPARE(place.model.rowCount(), 1);
        map.zoomRect(900, 900, 940, 930); // elsewhere
        place.click(0);
        QVERIFY(place.host.told.contains("points measured 5,"_q));
        QCOMPARE(map.transform().center(), QPointF(50, 0)); // the third of five
        QCOMPARE(map.transform().GetScale(), 0.1);
        QVERIFY(place.designed.followed.contains("nothing"_q));
        place.step("next"); // the last one: the map stays
        map.zoomRect(900, 900, 940, 930);
        QTest::mouseDClick(place.table.viewport(), Qt::LeftButton, {},
                           place.table.visualRect(place.model.index(0, 3)).center());
        QVERIFY(map.transform().GetScale() > 0.25); // all 100 m of them
        place.results().clear();
        place.click(0);
        QCOMPARE(place.host.told,
                 "No point that this problem is about is in the project any more."_q);
    }

    void keepsTheWidthsThatTheUserGives()
    {
        ProblemPlace place;
        place.find();
        QHeaderView& header = *place.table.horizontalHeader();
        constexpr int kWhat = int(ProblemField::What);
        place.window.resize(2000, 400);
        const int before = header.sectionSize(kWhat);
        place.window.resize(2200, 400);
        QCOMPARE(header.sectionSize(kWhat), before + 200); // the sentences get the rest
        const QPoint edge(header.sectionViewportPosition(kWhat) + before + 199, 5);
        dragMouse(*header.viewport(), Qt::LeftButton, edge, edge - QPoint(150, 0));
        QCOMPARE(header.sectionSize(kWhat), before + 50);
        const std::string kept(OpenProject::settings().text(settings::kProblemWidths));
        OpenProject::settings().set(settings::kProblemWidths, "300" + kept.substr(kept.find(',')));

        ProblemWindow next("", &place.host);
        next.resize(1100, 400);
        next.show();
        next.find();
        QTRY_COMPARE(next.findChild<QSplitter*>()->sizes()[0], 300);
        QCOMPARE(next.findChild<QTableView*>()->horizontalHeader()->sectionSize(kWhat),
                 before + 50);
    }

    void staysInFrontAndFollowsOtherWindows()
    {
        ProblemPlace place;
        place.find();
        const auto select = [&](const QString& point) {
            place.publish(events::kDesignPointSelected, payload::selectedPoint(point, "1002"_q));
        };
        select("5004"_q);
        QCOMPARE(place.selected(), QStringList("1002/5004"_q));
        QCOMPARE(place.host.windowRegistry.revealed.takeLast(),
                 "Design Data List beside DataMap, Problems List"_q);
        QVERIFY(place.designed.selected.isEmpty()); // it has announced nothing
        place.survey("1002", "5005");
        place.find();
        select("5005"_q); // of which nothing is said
        QVERIFY(place.selected().isEmpty());
        QCOMPARE(place.host.windowRegistry.revealed.last(), "Design Data List beside DataMap"_q);
        place.window.hide(); // behind another tab
        select("5004"_q);
        QCOMPARE(place.selected(), QStringList("1002/5004"_q));
        QCOMPARE(place.host.windowRegistry.revealed.last(), "Design Data List beside DataMap"_q);
    }

    void isOldWhenPointsOrLimitsChange()
    {
        ProblemPlace place;
        place.find();
        place.click(2);
        QVERIFY(!place.says("have changed"));
        place.survey("1001", "5002");
        place.publish(events::kRefreshSurveyTable);
        QVERIFY(place.says("have changed"));
        QCOMPARE(place.model.index(1, 3).data().toString(), "5002"_q); // is still readable
        place.find();
        QVERIFY(!place.says("have changed"));
        QCOMPARE(place.selected(), QStringList("1001/5003"_q)); // follows its problem
        basalt::Dictionary limits;
        limits.set("pdop_max", "2.5");
        place.manager->setQualityParameters(limits);
        place.publish(events::kUpdateSystemStatus);
        QVERIFY(place.says("have changed"));
    }

    void choosesSearchesAndFilters()
    {
        ProblemPlace place;
        place.find();
        place.chooseKind("Not surveyed");
        QCOMPARE(place.model.rowCount(), 12);
        constexpr int kKind = int(ProblemField::Kind);
        QVERIFY(place.table.isColumnHidden(kKind)); // the bar says it
        place.chooseKind("All open problems");
        QVERIFY(place.table.columnWidth(kKind) > 100);
        place.window.resize(810, 250); // the last row is out of view, as are some columns
        place.chooseKind("Not surveyed");
        const QRect sentence =
            place.table.visualRect(place.model.index(0, int(ProblemField::What)));
        QVERIFY(place.table.viewport()->rect().contains(sentence));
        place.window.resize(1100, 250);
        place.model.setFilter(int(ProblemField::Line), "1002"_q);
        place.click(3);
        press(place.window, "Clear All Filters");
        const QModelIndex selected = place.table.currentIndex();
        QCOMPARE(selected.row(), 9);
        QVERIFY(place.table.viewport()->rect().contains(place.table.visualRect(selected).center()));
        place.window.resize(1100, 400);
        auto* const search = place.window.findChild<QLineEdit*>("search"_q);
        QTest::keyClicks(search, "1002/500"_q);
        QTRY_COMPARE(place.model.rowCount(), 6);
        QVERIFY(place.says("Problems: 6 of 12"));
        QTest::keyClicks(search, "x"_q);
        QTRY_VERIFY(place.says("No problem passes the filters."));
        place.step("next");
        QCOMPARE(place.host.told, "No problem passes the filters."_q);
        place.find(); // a new run keeps the search
        QCOMPARE(place.model.rowCount(), 0);
        press(place.window, "Clear All Filters");
        QVERIFY(search->text().isEmpty() && place.model.rowCount() == 12);
        const QPoint cell = place.table.visualRect(place.model.index(7, 2)).center();
        QTest::mousePress(place.table.viewport(), Qt::RightButton, {}, cell);
        chooseFrom(openMenuAt(*place.table.viewport(), cell), "&Filter by This Value"_q);
        QCOMPARE(place.model.rowCount(), 6);
        QCOMPARE(place.window.findChild<FilterHeader*>()->filter(2), "= 1002"_q);
    }

    void savesWhatIsShown()
    {
        ProblemPlace place;
        const TestFolder folder;
        Boxes boxes;
        const QString file = folder.path("问题.csv");
        const FileDialog::Responder files([&](const auto&) { return file; });
        place.find();
        place.window.findChild<FilterHeader*>(); // of the column of lines
        place.model.setFilter(int(ProblemField::Line), "1002"_q);
        place.window.findChild<QAction*>("save"_q)->trigger();
        const QByteArray text = TestFolder::read(file);
        QCOMPARE(text.left(text.indexOf('\n')),
                 "Severity,Kind,Line,Point,What,Value,Limit,Rover,Surveyor,Day"_q.toUtf8());
        QCOMPARE(text.count('\n'), 7);
        QVERIFY(text.contains("Warning,Not surveyed,1002,5001,"));
        QCOMPARE(boxes.last.details, "Rows: 6"_q);
    }
};

QTEST_MAIN(ProblemWindowTest)
#include "ProblemWindowTest.moc"
