#include "views/problems/ProblemTableModel.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace {

QString said(const Problem& problem)
{
    return QStringLiteral("%1 m away").arg(problem.value);
}

constexpr ProblemKind kNote{"note", "Once more", Severity::Note, said};
constexpr ProblemKind kFar{"far", "Too far", Severity::Error, said};
constexpr ProblemKind kWarm{"warm", "Too warm", Severity::Warning, said};
constexpr ProblemKind kHigh{"high", "Too high", Severity::Error, said};
constexpr ProblemKind kCause{
    .name = "cause", .caption = "Pole", .severity = Severity::Error, .what = said, .rank = 0};

constexpr auto kValue = int(ProblemField::Value);
constexpr auto kDay = int(ProblemField::Day);

/// Problems of some points, watched.
struct Table
{
    Problem& add(const ProblemKind& kind, const char* point, double value = kNoValue,
                 const char* surveyor = "")
    {
        SurveyPoint result = surveyPoint("1001", point);
        result.surveyor = surveyor;
        Problem& problem = found.add(kind, result);
        problem.value = value;
        return problem;
    }
    void show() { model.setProblems(std::exchange(found, {})); }
    /// The numbers of the points that are shown, from top to bottom.
    [[nodiscard]] QString order() const
    {
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row)
            all << model.index(row, int(ProblemField::Point)).data().toString();
        return all.join(QLatin1Char(' '));
    }
    [[nodiscard]] QString sorted(ProblemField column, Qt::SortOrder direction)
    {
        model.sortBy(int(column), direction);
        return order();
    }
    [[nodiscard]] QString filtered(int column, const char* expression)
    {
        model.setFilter(column, QString::fromUtf8(expression));
        const QString shown = order();
        model.setFilter(column, {});
        return shown;
    }
    [[nodiscard]] QString searched(const char* text)
    {
        model.setSearch(QString::fromUtf8(text));
        return order();
    }

    ProblemList found;
    ProblemTableModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class ProblemTableModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { get_system_ini_parameter().dictionary().clear(); }

    void theWorstComeFirstAndKindsStandTogether()
    {
        Table table;
        table.add(kNote, "a");
        table.add(kHigh, "b");
        table.add(kWarm, "c");
        table.add(kFar, "d");
        table.add(kHigh, "e").isAccepted = true;
        table.add(kHigh, "f");
        table.add(kCause, "g");
        table.show();
        QCOMPARE(table.order(), "g b f d c a"_q); // the cause before what follows from it
        QVERIFY(table.model.kinds()[1].kind == &kHigh);
        QCOMPARE(table.model.kinds()[1].open, 2);
        QCOMPARE(table.model.kinds()[1].accepted, 1);

        table.model.setChoice({.isAccepted = false, .kinds = {&kWarm, &kFar}});
        QCOMPARE(table.order(), "d c"_q);
        QCOMPARE(table.model.unfilteredCount(), 2);
        table.model.setChoice({.isAccepted = true, .kinds = {}});
        QCOMPARE(table.order(), "e"_q);
        table.show(); // nothing is found any more
        QVERIFY(table.model.rowCount() == 0 && table.model.kinds().empty());
    }

    void sortsNumbersAsNumbersAndKeepsWhatHasNoneLast()
    {
        Table table;
        table.add(kFar, "a", 9);
        table.add(kFar, "b", 10, "Li");
        table.add(kFar, "c").timeMs = 1;
        table.add(kHigh, "d", -0.5, "an");
        table.show();
        QCOMPARE(table.sorted(ProblemField::Value, Qt::AscendingOrder), "d a b c"_q);
        QCOMPARE(table.sorted(ProblemField::Value, Qt::DescendingOrder), "b a d c"_q);
        QCOMPARE(table.sorted(ProblemField::What, Qt::AscendingOrder), "a b c d"_q); // kind by kind
        QCOMPARE(table.sorted(ProblemField::Surveyor, Qt::DescendingOrder), "b d a c"_q);
        QCOMPARE(table.sorted(ProblemField::Kind, Qt::AscendingOrder),
                 "a b c d"_q); // "Too f" first
        QCOMPARE(table.sorted(ProblemField::Kind, Qt::DescendingOrder), "d a b c"_q);
        QCOMPARE(table.sorted(ProblemField::Day, Qt::DescendingOrder), "c a b d"_q);
        table.model.sortBy(-1, Qt::AscendingOrder);
        QCOMPARE(table.order(), "a b c d"_q);
    }

    void filtersAndSearches()
    {
        Table table;
        Problem& named = table.add(kFar, "10015001", 24.9, "Zhang San");
        named.otherLine = table.found.keep("1002");
        named.otherPoint = table.found.keep("10025009");
        named.timeMs = 1'700'000'000'000; // 2023/11/15 06:13 in Shanghai
        table.add(kFar, "10015002", 0.3);
        table.add(kWarm, "C10015001_2", 30, "李四");
        table.show();
        const QString first = "10015001"_q;
        QCOMPARE(table.filtered(kValue, "> 20"), "10015001 C10015001"_q);
        QCOMPARE(table.filtered(kDay, "2023/11/15"), first);
        QCOMPARE(table.filtered(kDay, "> 2024"), QString());
        QCOMPARE(table.filtered(int(ProblemField::Kind), "!far"), "C10015001"_q);
        QCOMPARE(table.filtered(int(ProblemField::Severity), "warn"), "C10015001"_q);
        QCOMPARE(table.filtered(int(ProblemField::What), "0.3 m"), "10015002"_q);
        table.model.setFilter(kValue, "> x"_q);
        QVERIFY(!table.model.filterFault(kValue).isEmpty() && !table.model.isFiltered());

        QCOMPARE(table.searched("1002/10025"), first);
        QCOMPARE(table.searched("1001/C"), "C10015001"_q);
        QCOMPARE(table.searched(" zhang s "), first);
        QCOMPARE(table.searched("李"), "C10015001"_q);
        QCOMPARE(table.searched("too FAR"), "10015001 10015002"_q);
        QVERIFY(table.model.isFiltered());
        table.model.clearFilters();
        QCOMPARE(table.model.rowCount(), 3);
        const QModelIndex far = table.model.index(1, kValue);
        QCOMPARE(far.data().toString(), "0.300 m"_q);
        QCOMPARE(table.filtered(kValue, table.model.filterFor(far).toUtf8()), "10015002"_q);

        const QSignalSpy arranged(&table.model, &QAbstractItemModel::layoutChanged);
        table.model.setChoice({});
        table.model.refresh();
        QCOMPARE(arranged.size(), 0); // as before: a million rows stay as they are
        get_system_ini_parameter().dictionary().set(settings::kTimeZone, "0");
        table.model.refresh();
        QCOMPARE(table.model.index(0, kDay).data().toString(), "2023/11/14"_q);
    }

    void aSelectedRowFollowsItsProblem()
    {
        Table table;
        for (const char* const point : {"a", "b", "c", "d"})
            table.add(kFar, point, *point);
        table.show();
        const QPersistentModelIndex c = table.model.index(2, 0);
        const QPersistentModelIndex a = table.model.index(0, 0);
        table.model.sortBy(kValue, Qt::DescendingOrder);
        QCOMPARE(c.row(), 1);
        table.model.changeAccepted([](ProblemList& problems) { problems[0].isAccepted = true; });
        QVERIFY(!a.isValid());
        QCOMPARE(c.row(), 1);
        QCOMPARE(table.order(), "d c b"_q);

        // The next run: c is there again, for another reason as well, and b is gone.
        table.add(kWarm, "c", 3);
        table.add(kFar, "c", 99);
        table.add(kFar, "a", 98);
        ProblemList next = std::exchange(table.found, {});
        QCOMPARE(table.model.setProblems(std::move(next), 1), 0);
        QCOMPARE(table.order(), "c a c"_q);
        QCOMPARE(table.model.problem(0).kind, &kFar);
        QCOMPARE(table.model.setProblems({}, 0), -1);
    }
};

QTEST_MAIN(ProblemTableModelTest)
#include "ProblemTableModelTest.moc"
