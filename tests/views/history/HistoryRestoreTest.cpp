#include "lum_sdk/GroupedNumber.h"
#include "model/PointNumber.h"
#include "quality/problems/NameProblems.h"
#include "quality/RepeatChoice.h"
#include "tests/views/history/HistoryPlace.h"

namespace {

using Numbers = std::vector<std::pair<QString, QString>>;

/// A project with results that the history can tell apart by where they are.
struct MeasuredProject : HistoryProject
{
    /// Results of line 2001: the first is 1 m to the east, the second 2 m, and so on.
    void measure(const QStringList& numbers)
    {
        QByteArray rows = "line num,point num,north,east,hor accu,surveyor\n";
        for (int i = 0; i < numbers.size(); ++i)
            rows +=
                "2001," + numbers[i].toUtf8() + ",100," + QByteArray::number(i + 1) + ",0.01,Li\n";
        manager->importSurveyCsv(root.write("measured.csv", rows));
    }
    void rename(const Numbers& numbers, const char* toLine)
    {
        std::vector<Renaming> renamings;
        for (const auto& [from, to] : numbers)
            renamings.push_back({{"2001", from.toStdString()}, {toLine, to.toStdString()}});
        Outcome outcome = Outcome::done();
        manager->renameResults(renamings, &outcome);
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text()));
    }
    void resolve(RepeatChoice::Rule rule)
    {
        std::vector<RepeatedPoint> points = manager->repeatedPoints();
        std::vector<const RepeatedPoint*> all;
        for (const RepeatedPoint& point : points)
            all.push_back(&point);
        manager->resolveRepeats(resolveRepeats(all, {rule, 100}));
    }
    /// "1:2 3:1" for the second result as 1 and the first one as 3.
    [[nodiscard]] QString standing(const char* line = "2001")
    {
        QStringList texts;
        if (const auto* const found = results().findLine(line)) {
            for (const SurveyPoint* const point : writtenOrder(*found))
                texts << QString::fromStdString(
                             std::string(writtenPointNumber(point->pointNumber))) +
                             QLatin1Char(':') + QString::number(point->east);
        }
        return texts.join(QLatin1Char(' '));
    }
};

} // namespace

class HistoryRestoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExchangeOfNames()
    {
        MeasuredProject project;
        project.measure({"1"_q, "2"_q, "3"_q});
        project.rename({{"1"_q, "2"_q}, {"2"_q, "1"_q}}, "2001");
        project.save();
        const Shown seen(project);
        const QStringList exchange{"1|changed||point num 2|point num 1"_q,
                                   "2|changed||point num 1|point num 2"_q};
        QCOMPARE(seen.changes(), exchange);
        SurveyCorrection correction;
        correction.remarks = "wet";
        project.manager->correctSurveyPoint({"2001", "1"}, correction);
        QCOMPARE(project.standing(), "1:2 2:1 3:3"_q);
        QCOMPARE(seen.actions().size(), 4);
        seen.choose(1);
        seen.select(0); // takes the other one along
        seen.press("Restore These");
        QCOMPARE(project.host.told, "Points restored: 2."_q);
        QCOMPARE(project.standing(), "1:1 2:2 3:3"_q);
        QCOMPARE(project.results().find("2001", "2")->remarks, std::string("wet"));
        seen.press("Restore These");
        QCOMPARE(seen.actions().first(), "Restore 2 points|not saved yet"_q);
    }

    void oneNameFromTheLifeOfItsPoint()
    {
        MeasuredProject project;
        project.measure({"1"_q, "2"_q});
        project.rename({{"1"_q, "7"_q}, {"2"_q, "8"_q}}, "2002");
        project.save();
        project.publish(events::kShowPointHistory, payload::selectedPoint("7"_q, "2002"_q));
        const Shown seen(project);
        QCOMPARE(seen.changes(),
                 QStringList("7|changed||line num 2001; point num 1|line num 2002; point num 7"_q));
        seen.typePoint("2001/1"); // under its old name it is gone
        QCOMPARE(seen.changes().size(), 2);
        QVERIFY(seen.changes().first().startsWith("1|deleted|"_q));
        seen.select(0);
        seen.press("Restore These");
        QCOMPARE(project.host.told, "Points restored: 1."_q);
        QCOMPARE(project.standing(), "1:1"_q);
        QCOMPARE(project.standing("2002"), "8:2"_q);
        project.steps.undo();
        QCOMPARE(project.standing("2002"), "7:1 8:2"_q);
        project.manager->deleteSurveyPoints({{"2002", "7"}});
        seen.choose(1);
        seen.select(1);
        seen.press("Restore These");
        QVERIFY2(project.host.told.startsWith("Points restored: 0. Not restored"_q),
                 qPrintable(project.host.told)); // it is there no more
    }

    void aLineUnderTheNextNumbers_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("an item each") << 4;
        QTest::newRow("in a blob") << 5500;
    }
    void aLineUnderTheNextNumbers()
    {
        QFETCH(int, count);
        MeasuredProject project;
        QStringList numbers{"C20015001"_q, "C20015001"_q};
        for (int i = 2; i < count; ++i)
            numbers << QString::number(100000 + i);
        project.measure(numbers);
        const QString before = project.standing();
        Numbers names{{"C20015001_0"_q, "C20015002"_q}, {"C20015001_1"_q, "C20015002"_q}};
        for (int i = 2; i < count; ++i)
            names.emplace_back(numbers[i], QString::number(100001 + i));
        project.rename(names, "2001");
        QVERIFY(project.standing() != before);
        project.save();
        const Shown seen(project);
        QTest::keyClick(&seen.table("items"), Qt::Key_A, Qt::ControlModifier);
        seen.press("Restore These");
        QCOMPARE(project.host.told,
                 QStringLiteral("Points restored: %1.").arg(lum::groupedNumber(count)));
        QCOMPARE(project.standing(), before);
        QVERIFY(project.results().find("2001", "C20015001_1") != nullptr);
        seen.choose(1);
        QTest::keyClick(&seen.table("items"), Qt::Key_A, Qt::ControlModifier);
        seen.press("Restore These");
        QCOMPARE(
            project.host.told,
            QStringLiteral("Points restored: 0. Already so: %1.").arg(lum::groupedNumber(count)));
    }

    void whatRepeatsWereResolvedInto()
    {
        MeasuredProject project;
        project.measure({"20015001"_q, "C20015001"_q, "C20015001"_q, "C20015002"_q, "C20015002"_q});
        const QString before = project.standing();
        project.resolve(RepeatChoice::Rule::WeightedMean);
        QCOMPARE(project.standing(), "20015001:2 20015002:4.5"_q);
        project.save();
        const Shown seen(project);
        QCOMPARE(seen.actions().first(), "Resolve 2 repeated points|done"_q);
        QTest::keyClick(&seen.table("items"), Qt::Key_A, Qt::ControlModifier);
        seen.press("Restore These");
        QCOMPARE(project.host.told, "Points restored: 5. In place of another state: 1. Taken away, "
                                    "since their measurements are back: 1."_q);
        QCOMPARE(project.standing(), before);
        project.steps.undo();
        QVERIFY(seen.changes().value(2).startsWith("C20015001|deleted|"_q));
        seen.select(2); // alone
        seen.press("Restore These");
        QCOMPARE(project.host.told, "Points restored: 1."_q);
        QCOMPARE(project.standing(), "20015001:2 20015002:4.5 C20015001:2"_q);
    }
};

QTEST_MAIN(HistoryRestoreTest)
#include "HistoryRestoreTest.moc"
