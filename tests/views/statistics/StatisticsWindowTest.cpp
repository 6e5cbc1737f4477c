#include "views/statistics/StatisticsWindow.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/Transform.h"
#include "plots/StatisticsPlot.h"
#include "protocol/Events.h"
#include "reports/daily/DailyReport.h"
#include "reports/ReportInput.h"
#include "reports/StatisticsReport.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/project/OpenProject.h"
#include "tests/quality/statistics/MadeSurvey.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestFolder.h"
#include "tests/support/WorkbookReader.h"
#include "views/SelectionFollower.h"
#include "views/statistics/StatisticsTableModel.h"
#include "views/tables/DesignLineTable.h"
#include "views/tables/PointTableModel.h"
#include "views/tables/SurveyDataTable.h"

#include <QtTest>
#include <QtWidgets>

#include <array>
#include <cmath>
#include <functional>
#include <random>

namespace {

/// A survey of three lines, days and crews, with the window, both tables and the map.
struct StatisticsPlace : OpenProject
{
    StatisticsPlace()
    {
        host.windowRegistry.windows = {{"Statistics"_q, &window},
                                       {"Survey Data List"_q, &resultTable},
                                       {"Design Data List"_q, &designTable},
                                       {"DataMap"_q, &map}};
        std::mt19937 random(7);
        std::normal_distribution<double> spread(0.05, 0.3);
        MadeSurvey made;
        for (int i = 0; i < 90; ++i) {
            const std::string line = std::to_string(1 + i / 30);
            const std::string number = std::to_string(100 + i);
            design().set({line, number, 100.0 * i, 0, 50, 0, i % 2, 0});
            if (i % 10 == 9)
                continue;
            SurveyPoint result = made.measure(line, i % 10 == 8 ? number + "F" : number);
            result.designNorth = 100.0 * i;
            result.designEast = 0;
            result.north = 100.0 * i + spread(random);
            result.east = spread(random);
            result.elevation += spread(random);
            result.pointMark = i % 2;
            result.pdop = 1 + i % 7 * 0.3;
            result.satelliteNumber = 12 + i % 5;
            result.horizontalAccuracy = result.verticalAccuracy = 0.01 * (i % 4);
            result.dateTime = i == 5 ? 0 : MadeSurvey::kNoonMs + i % 3 * 86400000LL;
            result.instrumentSerialNumber = i % 4 == 0 ? "" : "R" + std::to_string(i % 4);
            result.surveyor = i < 40 ? "Li" : "Wang";
            result.baseStationId = i < 70 ? "B1" : "B2";
            results().set(result);
        }
        map.resize(400, 300);
        window.resize(1300, 500);
        for (QWidget* const shown : {static_cast<QWidget*>(&map), static_cast<QWidget*>(&window)})
            shown->show();
        publish("UPDATE_SYSTEM_STATUS_EVENT");
        QTest::qWait(1);
    }

    void groupBy(int key) const { window.findChild<QComboBox*>("keys"_q)->setCurrentIndex(key); }
    [[nodiscard]] int column(const char* caption) const
    {
        int at = 0;
        while (this->caption(at) != QString::fromUtf8(caption))
            ++at;
        return at;
    }
    [[nodiscard]] QString caption(int at) const
    {
        return model.headerData(at, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    [[nodiscard]] QString text(int row, int at) const
    {
        return model.index(row, at).data().toString();
    }
    /// A row in the columns that the report of a day has room for; what is blank is left out.
    [[nodiscard]] QString reportRow(int row) const
    {
        QStringList cells{text(row, 0)};
        for (const char* const caption :
             {"Staked", "Not planned", "Within limits", "Over limit", "Within limits (%)",
              "Mean dE (m)", "Mean dN (m)", "Mean dH (m)", "RMS 2D (m)", "95 % 2D (m)",
              "Maximum 2D (m)", "Fixed (%)"})
            cells << text(row, column(caption));
        return cells.join(QLatin1Char(' ')).simplified();
    }
    void click(int row, int at = 0, Qt::KeyboardModifiers keys = {}) const
    {
        table.scrollTo(model.index(row, at));
        QTableView& clicked = at == 0 ? *table.findChild<QTableView*>("groupNames"_q) : table;
        QTest::mouseClick(clicked.viewport(), Qt::LeftButton, keys,
                          clicked.visualRect(model.index(row, at)).center());
    }
    void press(const char* button) const
    {
        QTest::mouseClick(window.findChild<QToolButton*>(QLatin1String(button)), Qt::LeftButton);
    }
    [[nodiscard]] QString only() const { return window.findChild<QLabel*>("only"_q)->text(); }
    [[nodiscard]] static int rows(const QWidget& pointTable)
    {
        return pointTable.findChild<QTableView*>()->model()->rowCount();
    }
    [[nodiscard]] QString selectedResult() const
    {
        const auto& view = *resultTable.findChild<CustomTableWidget*>();
        const std::vector<int> selected = view.selectedRows();
        return selected.size() != 1 ? QString()
                                    : view.model()
                                          ->index(selected[0], 0)
                                          .data(PointTableModel::kPointNumberRole)
                                          .toString();
    }
    [[nodiscard]] PlotPanel& panel() const
    {
        return *window.findChild<StatisticsPlot*>()->panels().front();
    }

    MapWindow map{"name=DataMap", &host};
    SurveyDataTable resultTable{"", &host};
    DesignLineTable designTable{"", &host};
    StatisticsWindow window{"", &host};
    CustomTableWidget& table{*window.findChild<CustomTableWidget*>()};
    StatisticsTableModel& model{*window.findChild<StatisticsTableModel*>()};
    SelectionFollower follower{host};
};

/// Whether a cell of the window shows what stands in a cell of the workbook.
bool isShown(const QString& shown, const QString& inBook)
{
    bool isNumber = false;
    const double value = inBook.toDouble(&isNumber);
    if (!isNumber || shown == inBook)
        return shown == inBook;
    if (shown.count(QLatin1Char('-')) == 2)
        return QDate(1899, 12, 30).addDays(qint64(value)).toString(Qt::ISODate) == shown;
    const bool isPercent = shown.endsWith(QLatin1Char('%'));
    const QString digits = isPercent ? shown.chopped(1) : shown;
    const int decimals = digits.contains(QLatin1Char('.'))
                             ? digits.size() - digits.indexOf(QLatin1Char('.')) - 1
                             : 0;
    return std::fabs(digits.toDouble() - value * (isPercent ? 100 : 1)) <=
           0.5 * std::pow(10, -decimals) + 1e-9;
}

} // namespace

class StatisticsWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheFiguresOfTheWorkbookAndOfTheDailyReport()
    {
        StatisticsPlace place;
        const TestFolder folder;
        const ReportChoice choice;
        ProgressReporter progress(nullptr);
        const basalt::Dictionary coords;
        const ReportInput input{
            place.design(), place.results(), place.manager->qualityParameters(), coords, {}, {}, {},
            choice,         progress};
        QVERIFY(writeQualityStatistics(folder.path("figures.xlsx"), input).isDone());
        QVERIFY(writeDailyReport(folder.path("日报.pdf"), input).isDone());
        const WorkbookReader book(folder.path("figures.xlsx"));
        const QString pages = textOfPdf(folder.path("日报.pdf"));
        int key = 0;
        for (const char* const sheet : {"Lines", "Days", "Rovers", "Surveyors", "Bases"}) {
            place.groupBy(key++);
            const auto rows = book.rows(QLatin1String(sheet));
            QCOMPARE(place.model.rowCount(), int(rows.size())); // the totals, or the captions
            QCOMPARE(place.model.columnCount(), rows[0].size());
            for (int column = 0; column < rows[0].size(); ++column) {
                QCOMPARE(place.caption(column), rows[0][column]);
                for (int row = 1; row < int(rows.size()); ++row)
                    QVERIFY2(isShown(place.text(row, column), rows[std::size_t(row)].value(column)),
                             qPrintable(QLatin1String(sheet) + place.text(row, column) + " is "_q +
                                        rows[std::size_t(row)].value(column)));
            }
            if (key == 3 || key == 4)
                for (int row = 0; row < place.model.rowCount(); ++row)
                    QVERIFY2(pages.contains(place.reportRow(row)),
                             qPrintable(place.reportRow(row)));
        }
        place.groupBy(5);
        QCOMPARE(place.text(1, 0) + place.text(2, 0), "SourcesReceivers"_q);
        QCOMPARE(place.text(0, 1), "90"_q);
        place.groupBy(6);
        QCOMPARE(place.model.rowCount(), 1);
        const QString figure = place.text(0, place.column("RMS 2D (m)"));
        const auto summary = book.rows("Summary"_q);
        const auto found = std::ranges::find_if(
            summary, [](const QStringList& row) { return row.value(0) == "Distance 2D"_q; });
        QVERIFY(isShown(figure, found->value(3)));
    }

    void showsAClickedGroupInTablesAndMap()
    {
        StatisticsPlace place;
        place.publish(events::kSurveyLineSwitched, "line_num=1");
        QCOMPARE(place.rows(place.resultTable), 27);
        place.map.zoomRect(90000, 90000, 90040, 90030); // elsewhere
        place.groupBy(2);
        QCOMPARE(place.text(2, 0), "R1"_q);
        place.click(2);
        QCOMPARE(place.rows(place.resultTable), 18);
        QVERIFY(place.map.transform().center().y() < 10000 ||
                place.map.transform().center().x() < 10000);
        const auto labels = place.resultTable.findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(
            labels, [](const QLabel* label) { return label->text().contains("Only Rover R1"_q); }));
        place.click(3, 0, Qt::ControlModifier);
        QCOMPARE(place.rows(place.resultTable), 40);

        // A change of the results is followed, and so is one behind other windows.
        place.window.hide();
        SurveyPoint another = *place.results().find("1", "101");
        another.pointNumber = "999";
        place.results().set(another);
        place.publish(events::kRefreshSurveyLayer);
        QTRY_COMPARE(place.rows(place.resultTable), 41);
        place.window.show();

        place.press("showAll");
        QCOMPARE(place.rows(place.resultTable), 28); // the line of before
        QVERIFY(!place.window.findChild<QToolButton*>("showAll"_q)->isEnabled());
        place.groupBy(0);
        place.click(2);
        QCOMPARE(place.rows(place.resultTable), 27);
        QCOMPARE(place.rows(place.designTable), 30); // with what is left
        place.groupBy(1);
        QCOMPARE(place.rows(place.resultTable), 28);
        place.click(2);
        QVERIFY(place.rows(place.resultTable) != 28);
        place.click(0); // all of them
        QCOMPARE(place.rows(place.resultTable), 28);
        QCOMPARE(place.table.selectedRowCount(), 1);
    }

    void theHeadingOfNamesStaysAndLeadsBack()
    {
        StatisticsPlace place;
        const QHeaderView& heading =
            *place.table.findChild<QTableView*>("groupNames"_q)->horizontalHeader();
        QScrollBar& bar = *place.table.horizontalScrollBar();
        QVERIFY(!heading.isVisible());
        bar.setValue(bar.maximum());
        QVERIFY(heading.isVisible());
        QCOMPARE(heading.mapToGlobal({0, 0}), place.table.horizontalHeader()->mapToGlobal({0, 0}));
        QTest::mouseClick(heading.viewport(), Qt::LeftButton);
        QCOMPARE(bar.value(), 0);
        QVERIFY(!heading.isVisible());
    }

    void goesToTheWorstResult()
    {
        StatisticsPlace place;
        place.click(2, place.column("Maximum at"));
        QCOMPARE("2 / "_q + place.selectedResult(), place.text(2, place.column("Maximum at")));
        place.click(0, place.column("Fewest satellites"));
        QCOMPARE(place.results().find("1", place.selectedResult().toStdString())->satelliteNumber,
                 12);
        place.click(3, place.column("Worst PDOP"));
        QCOMPARE(place.results().find("3", place.selectedResult().toStdString())->pdop, 2.8);
        QVERIFY(place.host.windowRegistry.revealed.last().contains("Statistics"_q)); // stays there
        QCOMPARE(place.rows(place.resultTable), 27);
    }

    void linksThePlotWithTheTables()
    {
        StatisticsPlace place;
        QWidget& canvas = *place.panel().canvas();
        dragMouse(canvas, Qt::LeftButton, {2, 2}, QPoint(canvas.width() - 3, canvas.height() - 3));
        const int selected = place.rows(place.resultTable);
        QVERIFY(selected > 60 && selected <= 72);
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, {2, 2}); // on nothing
        place.press("showAll");
        QTRY_VERIFY(!place.window.findChild<QToolButton*>("showAll"_q)->isEnabled());

        const SurveyPoint& result = *place.results().find("1", "103");
        const QPoint at =
            place.panel()
                .maps()
                .toScreen(result.east - result.designEast, result.north - result.designNorth)
                .toPoint();
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, at);
        QCOMPARE(place.selectedResult(), "103"_q);
    }

    void escapeAndClosingShowAllAgain()
    {
        StatisticsPlace place;
        place.groupBy(2);
        QWidget& canvas = *place.panel().canvas();
        const std::array<std::function<void()>, 4> ends{
            [&] { QTest::keyClick(&place.table, Qt::Key_Escape); },
            [&] { QTest::keyClick(place.window.findChild<StatisticsPlot*>(), Qt::Key_Escape); },
            [&] { place.window.onClosed(); }, // as its dock does
            [&] { place.press("showAll"); }};
        for (const auto& end : ends) {
            place.click(2);
            QCOMPARE(place.only(), "Only Rover R1"_q);
            dragMouse(canvas, Qt::LeftButton, {2, 2}, {canvas.width() - 3, canvas.height() - 3});
            QVERIFY(place.only().endsWith(" results of the plot"_q));
            end();
            QCOMPARE(place.only(), QString());
            QCOMPARE(place.table.selectedRowCount(), 0);
            QCOMPARE(place.rows(place.resultTable), 81);
            QCOMPARE(place.rows(place.designTable), 90);
        }
    }

    void aTableThatShowsAllAgainStaysSo()
    {
        StatisticsPlace place;
        place.groupBy(2);
        place.click(2);
        for (QToolButton* const button : place.resultTable.findChildren<QToolButton*>()) {
            if (button->text() == "Clear All Filters"_q)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        QCOMPARE(place.rows(place.resultTable), 81);
        const int design = place.rows(place.designTable);
        place.results().set(*place.results().find("1", "101"));
        place.publish(events::kRefreshSurveyLayer);
        QTest::qWait(20);
        QCOMPARE(place.rows(place.resultTable), 81);
        QCOMPARE(place.rows(place.designTable), design);
        place.click(2); // asks for it again
        QCOMPARE(place.rows(place.resultTable), 18);

        // A group that is gone hides nothing.
        std::vector<PointName> gone;
        for (const auto& [number, line] : place.results()) {
            for (const SurveyPoint& point : line) {
                if (point.instrumentSerialNumber == "R1")
                    gone.push_back({point.lineNumber, point.pointNumber});
            }
        }
        for (const PointName& point : gone)
            place.results().erase(point.line, point.point);
        place.publish(events::kRefreshSurveyLayer);
        QTRY_COMPARE(place.rows(place.resultTable), 63);
        QCOMPARE(place.only(), QString());
    }

    void aClickOnANameLeavesTheFiguresWhereTheyAre()
    {
        StatisticsPlace place;
        QScrollBar& bar = *place.table.horizontalScrollBar();
        bar.setValue(bar.maximum() / 2);
        const int before = bar.value();
        QVERIFY(before > 0);
        auto& names = *place.table.findChild<QTableView*>("groupNames"_q);
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {},
                          names.visualRect(place.model.index(2, 0)).center());
        QCOMPARE(place.only(), "Only Line 2"_q);
        QTest::keyClick(&place.table, Qt::Key_Down);
        QCOMPARE(place.only(), "Only Line 3"_q);
        QCOMPARE(bar.value(), before);
    }

    void ticksWhatIsInOrder()
    {
        StatisticsPlace place;
        const auto isTicked = [&](int row) {
            return place.model.index(row, 0)
                .data(Qt::ToolTipRole)
                .toString()
                .contains("within the limits"_q);
        };
        place.groupBy(2);
        QVERIFY(!isTicked(0) && !isTicked(2)); // offsets over the limit of 0.5
        place.manager->qualityParameters().set("design_hor_diff", "9");
        place.manager->qualityParameters().set("design_ver_diff", "9");
        place.publish(events::kProjectModified);
        QTRY_VERIFY(isTicked(2));
        place.groupBy(5);
        QVERIFY(!isTicked(2)); // some receivers are left
        for (int i = 9; i < 90; i += 10)
            place.design().erase(std::to_string(1 + i / 30), std::to_string(100 + i));
        place.publish(events::kRefreshDesignLayer);
        QTRY_VERIFY(isTicked(2));
        QVERIFY(!isTicked(1));
    }

    void savesAndCopiesThePlot()
    {
        StatisticsPlace place;
        const TestFolder folder;
        QDir().mkpath(folder.path("统计 图"));
        for (const auto& [ending, begin] :
             {std::pair("png", "\x89PNG"), {"svg", "<?xml"}, {"pdf", "%PDF"}}) {
            const QString path = folder.path("统计 图/偏差 1."_q + QLatin1String(ending));
            const FileDialog::Responder answer([&](const FileDialog::Request&) { return path; });
            Boxes boxes;
            place.press("plotSave");
            QCOMPARE(boxes.told().size(), 1);
            QVERIFY(TestFolder::read(path).startsWith(begin));
        }
        {
            const FileDialog::Responder answer(
                [&](const FileDialog::Request&) { return folder.path("none/1.png"); });
            Boxes boxes;
            place.press("plotSave");
            QVERIFY(boxes.told().join(QString()).contains("none"_q));
        }
        QApplication::clipboard()->clear();
        place.press("plotCopy");
        QVERIFY(QApplication::clipboard()->image().width() >= 640);

        place.results().clear();
        place.publish(events::kRefreshSurveyLayer);
        QTRY_VERIFY(!place.window.findChild<QToolButton*>("plotSave"_q)->isEnabled());
        QVERIFY(!place.window.findChild<QToolButton*>("plotCopy"_q)->isEnabled());
    }

    void sortsCopiesAndSaves()
    {
        StatisticsPlace place;
        place.groupBy(2);
        const int mean = place.column("Mean dE (m)");
        place.model.sortBy(mean, Qt::DescendingOrder);
        QCOMPARE(place.text(0, 0), "All"_q);
        for (int row = 2; row < place.model.rowCount(); ++row)
            QVERIFY(place.text(row - 1, mean).toDouble() >= place.text(row, mean).toDouble());
        place.click(1);
        QTest::keyClick(&place.table, Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
        QVERIFY(lines[0].startsWith("Rover\tDesigned\tStaked"_q));
        QVERIFY(lines[1].startsWith(place.text(1, 0) + QLatin1Char('\t')));

        const TestFolder folder;
        const FileDialog::Responder answer(
            [&](const FileDialog::Request&) { return folder.path("统计 1.csv"); });
        Boxes boxes;
        place.press("save");
        QCOMPARE(boxes.told().size(), 1);
        QFile file(folder.path("统计 1.csv"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().contains(place.text(0, mean).toUtf8()));
    }

    void staysCalmWithoutResults()
    {
        StatisticsPlace place;
        place.click(2);
        place.results().clear();
        place.publish(events::kRefreshSurveyLayer);
        QTRY_COMPARE(place.text(0, 2), "0"_q); // the design is still there
        place.design().clear();
        place.publish(events::kRefreshDesignLayer);
        QVERIFY(!place.table.isVisible());
        place.tellProject("");
        QCOMPARE(place.model.rowCount(), 0);
    }

    void remembersWidthsGivenByMouse()
    {
        StatisticsPlace place;
        QHeaderView& header = *place.table.horizontalHeader();
        const int before = header.sectionSize(1);
        const int usual = header.sectionSize(2);
        const int edge = header.sectionViewportPosition(2) - 1; // of the column before
        dragMouse(*header.viewport(), Qt::LeftButton, {edge, 8}, {edge + 60, 8});
        const int wide = header.sectionSize(1);
        auto& areas = *place.window.findChild<QSplitter*>();
        dragMouse(*areas.handle(1), Qt::LeftButton, {2, 100}, {-98, 100});
        const QList<int> sizes = areas.sizes();

        StatisticsWindow next("", &place.host);
        next.resize(place.window.size());
        next.show();
        QTRY_VERIFY(next.findChild<StatisticsTableModel*>()->rowCount() > 0);
        const QHeaderView& later = *next.findChild<CustomTableWidget*>()->horizontalHeader();
        QCOMPARE(later.sectionSize(1), wide);
        QCOMPARE(later.sectionSize(2), usual);
        QVERIFY(std::abs(next.findChild<QSplitter*>()->sizes()[0] - sizes[0]) < 5);
        QVERIFY(wide > before + 40 && sizes[0] < sizes[1]);
    }

    void remembersGroupsAndPlot()
    {
        {
            StatisticsPlace place;
            place.groupBy(4);
            place.window.findChild<QComboBox*>("plotKinds"_q)->setCurrentIndex(2);
            StatisticsWindow next("", &place.host);
            QCOMPARE(next.findChild<QComboBox*>("keys"_q)->currentIndex(), 4);
            QCOMPARE(next.findChild<QComboBox*>("plotKinds"_q)->currentIndex(), 2);
        }
    }
};

QTEST_MAIN(StatisticsWindowTest)
#include "StatisticsWindowTest.moc"
