#include "reports/daily/DailyReport.h"

#include "lum_sdk/events/ProgressReporter.h"
#include "quality/problems/ProblemFinders.h"
#include "reports/daily/DailyFigures.h"
#include "reports/daily/DailyMap.h"
#include "reports/daily/DailyProblems.h"
#include "reports/ReportInput.h"
#include "tests/quality/statistics/MadeSurvey.h"
#include "tests/support/Literals.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestFolder.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr std::int64_t kDayMs = 86400000;
const QDate kFirstDay(2024, 7, 26);

/// A survey whose report is written.
struct Reported : MadeSurvey
{
    SurveyPoint& stake(int number, const char* surveyor, const char* rover, int day, double east)
    {
        const std::string name = std::to_string(number);
        plan("1", name, number % 2);
        SurveyPoint& point = measure("1", name);
        point.surveyor = surveyor;
        point.instrumentSerialNumber = rover;
        point.dateTime = kNoonMs + day * kDayMs;
        point.pointMark = number % 2;
        point.east += east;
        return point;
    }
    /// Two crews on three days, with values that are no numbers and points that nobody staked.
    void fill()
    {
        for (int i = 0; i < 60; ++i) {
            SurveyPoint& point = stake(1000 + i, i % 3 == 0 ? "王伟" : "Li",
                                       i % 2 == 0 ? "R1" : "R2", i / 20, 0.0123 * i);
            point.elevation += 0.0077 * (i % 7);
        }
        results.find("1", "1025")->east = std::nan("");
        results.find("1", "1026")->horizontalAccuracy = std::nan("");
        plan("2", "11");
        plan("2", "12");
        measure("1", "C00001021").dateTime = kNoonMs + kDayMs;
        measure("1", "1022F").dateTime = kNoonMs + kDayMs;
    }
    [[nodiscard]] ReportInput input()
    {
        return {design,           results,          quality, coords,   project,
                "/p/测区.kelx"_q, "Skyquill 1.0"_q, choice,  progress, problems};
    }
    [[nodiscard]] QString path() const { return folder.path("日报 1.pdf"); }
    Outcome write() { return writeDailyReport(path(), input()); }
    [[nodiscard]] QString text() const { return textOfPdf(path()); }
    [[nodiscard]] int pageCount() const { return TestFolder::read(path()).count("/Type /Page\n"); }

    TestFolder folder;
    basalt::Dictionary quality;
    basalt::Dictionary coords;
    QString project = "测区"_q;
    ReportChoice choice;
    ProgressReporter progress{nullptr};
    std::function<ProblemList()> problems;
};

} // namespace

class DailyReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePagesHaveTheTablesOfTheDay()
    {
        Reported reported;
        reported.fill();
        reported.choice.setDays(kFirstDay.addDays(1), kFirstDay.addDays(1));
        const Outcome outcome = reported.write();
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text()));
        const QString text = reported.text();
        const DailyFigures figures(reported.input());
        QCOMPARE(figures.day(), kFirstDay.addDays(1));
        for (const DailyTable& table :
             {dailyWork(figures), dailyStatistics(figures, DailySpan::OfDay, DailyKey::Rover),
              dailyStatistics(figures, DailySpan::Total, DailyKey::Surveyor)}) {
            QVERIFY(table.rows.size() >= 3); // two and their sum
            for (const QStringList& row : table.rows)
                QVERIFY2(text.contains(row.join(u' ').simplified()), qPrintable(row.join(u' ')));
        }
    }

    void aDayIsToldAsItWas()
    {
        Reported reported;
        reported.fill();
        reported.choice.setDays(kFirstDay.addDays(1), kFirstDay.addDays(1));
        const DailyFigures middle(reported.input());
        QCOMPARE(middle.total().sample.design.left, std::size_t(22)); // the last day's, and two
        QCOMPARE(*middle.pace().daysNeeded, std::size_t(2));          // at 20 a day
        QCOMPARE(dailyWork(middle).rows.back().mid(1, 5),
                 (QStringList{"10"_q, "10"_q, "0"_q, "1"_q, "1"_q}));
        reported.choice.setDays(kFirstDay.addDays(-5), kFirstDay.addDays(1));
        QCOMPARE(DailyFigures(reported.input()).day(), kFirstDay.addDays(1));
        reported.choice = {};
        QCOMPARE(DailyFigures(reported.input()).total().sample.design.left, std::size_t(2));
        reported.choice.surveyors = QStringList("王伟"_q);
        QCOMPARE(dailyWork(DailyFigures(reported.input())).rows.size(), std::size_t(2));
    }

    void whatIsMissingIsSaid()
    {
        Reported reported;
        QVERIFY(reported.write().isDone());
        QVERIFY(reported.text().contains("The project has no results."_q));
        QCOMPARE(reported.pageCount(), 1);
        reported.plan("1", "11"); // a map of one point
        QVERIFY(reported.write().isDone());
        QVERIFY(reported.text().contains("not staked yet"_q));
        reported.stake(12, "Li", "R", 0, 0).dateTime = 0;
        QVERIFY(reported.write().isDone());
        QVERIFY(reported.text().contains("No result has a time"_q));
        reported.stake(13, "Li", "R", 0, 0);
        QVERIFY(reported.write().isDone());
        QVERIFY(reported.text().contains("(66.7%)"_q));
        reported.choice.setDays({2030, 1, 1}, {2030, 1, 1});
        const Outcome outcome = reported.write();
        QCOMPARE(outcome.text(), "There is no result of this day."_q);
        QVERIFY(!reported.text().contains("no results to show"_q)); // an empty plot
        QVERIFY(reported.text().contains("Daily report, 2030-01-01"_q));
        reported.choice.setDays({2030, 1, 1}, {2030, 1, 9});
        QCOMPARE(reported.write().text(),
                 "No result of the chosen period and surveyors has a time."_q);
    }

    void longNamesAndManyOfThemStayOnTheirPages()
    {
        Reported reported;
        reported.project = QString(200, u'测');
        for (int i = 0; i < 300; ++i) {
            const std::string name = std::string(200, 'x') + std::to_string(i);
            reported.stake(1000 + i, name.c_str(), name.c_str(), i % 5, 0.01);
        }
        reported.problems = [&] {
            ProblemList problems;
            static const ProblemKind kKind{"k", "K", Severity::Warning,
                                           [](const Problem&) { return QString(900, u'w'); }};
            for (const auto& point : *reported.results.findLine("1"))
                problems.add(kKind, point).value = 1;
            return problems;
        };
        QVERIFY(reported.write().isDone());
        const QString text = reported.text();
        QVERIFY(text.contains("and 240 more; the workbook"_q));
        QVERIFY(text.contains("and 200 more; the window"_q));
        QVERIFY(!text.contains(QString(60, u'x')));
        QVERIFY2(reported.pageCount() < 18, qPrintable(QString::number(reported.pageCount())));
    }

    /// Of a point whose coordinates are missing or wrong, with names beside them.
    void largeNumbersAreNotCut()
    {
        Reported reported;
        reported.fill();
        for (int i = 0; i < 60; ++i) {
            SurveyPoint& point = *reported.results.find("1", std::to_string(1000 + i));
            point.surveyor += " of the crew with the long name " + std::to_string(i % 3);
            point.north -= 4123456.789;
            point.east += 87654321.123;
            point.elevation -= 12345.678;
        }
        QVERIFY(reported.write().isDone());
        const QString text = reported.text();
        const DailyTable table =
            dailyStatistics(DailyFigures(reported.input()), DailySpan::Total, DailyKey::Surveyor);
        for (const QStringList& row : table.rows) {
            for (int column = 1; column < row.size(); ++column)
                QVERIFY2(text.contains(row[column]), qPrintable(row[column]));
        }
    }

    void problemsOfTheDayComeFirst()
    {
        Reported reported;
        reported.fill();
        const ProblemKind* const kind = findProblemKind("too_far");
        ProblemList problems;
        problems.add(*kind, *reported.results.find("1", "1000"));
        problems.add(*kind, *reported.results.find("1", "1041"));
        problems.add(*kind, *reported.results.find("1", "1001")).isAccepted = true;
        const DailyProblems told(problems, DailyFigures(reported.input()));
        QCOMPARE(told.count, std::size_t(2));
        QCOMPARE(told.rows.rows[0][2], "1041"_q);
        QCOMPARE(told.kinds.rows[0].mid(2), (QStringList{"1"_q, "2"_q}));
    }

    void theMapIsThatOfTheDesignAndOfThisDay()
    {
        Reported reported;
        reported.fill();
        reported.plan("2", "13");
        for (const char* const number : {"11", "12", "13"}) {
            DesignPoint& point = *reported.design.find("2", number);
            point.north = 4000000;
            point.east = 501000;
        }
        for (auto& point : *reported.design.findLine("1")) {
            point.north = 4000000;
            point.east = 500000;
        }
        reported.results.find("1", "1001")->north = 0; // as its base station is
        const MapSheet sheet = dailyMap(reported.input(), DailyFigures(reported.input()));
        QCOMPARE(sheet.setup.area.width(), 1000.0);
        QVERIFY(sheet.setup.area.height() < 20);
        QStringList legend;
        for (const lum::Legend::Entry& entry : sheet.drawing.legend.entries)
            legend << entry.text + u' ' + QString::number(entry.count);
        QVERIFY2(legend.join(u',').endsWith("other results 41,not staked yet 3"_q),
                 qPrintable(legend.join(u',')));
    }

    void whatFailsLeavesTheOldFile()
    {
        Reported reported;
        reported.fill();
        reported.folder.write("日报 1.pdf", "kept");
        int asked = 0;
        reported.choice.isCancelled = [&] { return ++asked > 3; }; // while pages are painted
        const Outcome cancelled = reported.write();
        QCOMPARE(cancelled.text(), "The report was cancelled; no file was written."_q);
        QCOMPARE(TestFolder::read(reported.path()), "kept");
        reported.choice.isCancelled = nullptr;
        const QString none = reported.folder.path("none/a.pdf");
        const Outcome failed = writeDailyReport(none, reported.input());
        QVERIFY2(failed.text().contains("none/a.pdf"_q), qPrintable(failed.text()));
        QCOMPARE(QDir(QFileInfo(reported.path()).path()).entryList(QDir::Files),
                 QStringList("日报 1.pdf"_q));
    }
};

QTEST_MAIN(DailyReportTest)
#include "DailyReportTest.moc"
