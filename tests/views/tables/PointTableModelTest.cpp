#include "tests/project/OpenProject.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "views/tables/DesignTableModel.h"
#include "views/tables/SurveyTableModel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

/// A table of the points of a project, watched.
class Table : public OpenProject
{
public:
    SurveyPoint& add(const char* line, const std::string& number, double pdop = 1)
    {
        SurveyPoint& point = results().set(surveyPoint(line, number));
        point.pdop = pdop;
        return point;
    }
    /// Results "a", "b", ... of one line.
    void addPdops(const std::vector<double>& pdops)
    {
        char name = 'a';
        for (const double pdop : pdops)
            add("L", std::string(1, name++), pdop);
    }
    /// Shows all results.
    void show() { show(makeSurveyTableModel()); }
    void show(std::unique_ptr<PointTableModel> shown)
    {
        model = std::move(shown);
        m_tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        model->showAllLines();
    }

    [[nodiscard]] int column(const char* key) const
    {
        int column = 0;
        while (column < model->columnCount() && model->columnKey(column) != QLatin1String(key))
            ++column;
        return column;
    }
    [[nodiscard]] QVariant cell(int row, const char* key, int role = Qt::DisplayRole) const
    {
        return model->index(row, column(key)).data(role);
    }
    [[nodiscard]] QString text(int row, const char* key, int role = Qt::DisplayRole) const
    {
        return cell(row, key, role).toString();
    }
    void filter(const char* key, const char* expression) const
    {
        model->setFilter(column(key), QString::fromUtf8(expression));
    }
    /// The numbers of the shown points, from top to bottom.
    [[nodiscard]] std::string order() const
    {
        std::string all;
        for (int row = 0; row < model->rowCount(); ++row)
            all += (row == 0 ? "" : " ") + model->pointAt(row).point;
        return all;
    }
    [[nodiscard]] std::string sorted(const char* key, Qt::SortOrder direction) const
    {
        model->sortBy(column(key), direction);
        return order();
    }

    std::unique_ptr<PointTableModel> model;

private:
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

constexpr Qt::SortOrder kUp = Qt::AscendingOrder;
constexpr Qt::SortOrder kDown = Qt::DescendingOrder;

} // namespace

class PointTableModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultsAreShownAsInFiles()
    {
        Table table;
        SurveyPoint& point = table.add("1001", "C10012034_0", 1.23456);
        point.altitude = 12.3456789;
        point.latitude = 30.5;
        point.ageOfDiff = 1.23456789;
        point.pointMark = 2;
        point.solutionType = 3;
        point.startTime = 1714521600000; // 2024/05/01 00:00:00 UTC
        point.remarks = "石头 \"5%\"";
        table.show();
        const std::pair<const char*, const char*> cells[] = {
            {"line_num", "1001"},       {"point_num", "C10012034"},
            {"point_mark", "R"},        {"latitude", "30.50000000"},
            {"altitude", "12.345679"},  {"pdop", "1.2346"},
            {"age_of_diff", "1.23457"}, {"solution_type", "differential"},
            {"measure_mode", "loft"},   {"start_time", "2024/05/01 08:00:00"},
            {"epoch_number", "0"},      {"remarks", "石头 \"5%\""}};
        for (const auto& [key, text] : cells)
            QCOMPARE(table.text(0, key), QString::fromUtf8(text));
        QCOMPARE(table.text(0, "line_num", PointTableModel::kPointNumberRole), "C10012034_0"_q);

        OpenProject::status().set(status::kDegreeFormat, "1");
        OpenProject::settings().set(settings::kTimeZone, "-1");
        table.model->refresh();
        QCOMPARE(table.text(0, "latitude"), "30deg30min0.000sec"_q);
        QCOMPARE(table.text(0, "start_time"), "2024/04/30 23:00:00"_q);
        table.filter("latitude", "30.4..30.6");
        QCOMPARE(table.model->rowCount(), 1);
    }

    void designIsShown()
    {
        Table table;
        table.design().set({"1001", "10015001", 1.23456, -2, 3, 0.1, 2, 1});
        table.design().set({"1001", "10015002", 1e7, 2, 3, 359.123456789, 0, 2});
        table.show(makeDesignTableModel());
        table.model->showLine("1001"_q);
        QStringList texts;
        for (int i = 0; i < 18; ++i)
            texts << table.model->index(i / 9, i % 9).data().toString();
        QCOMPARE(texts.join(QLatin1Char(' ')),
                 "10015001 1001 1.235 -2.000 3.000 10015001 0.1 R surveyed "
                 "10015002 1001 10000000.000 2.000 3.000 10015002 359.123456789 R not surveyed"_q);
        QVERIFY(!table.cell(0, "status", Qt::ForegroundRole).isValid());
        QCOMPARE(table.cell(1, "status", Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
        table.filter("status", "!not");
        QCOMPARE(table.model->rowCount(), 1);
        table.model->showLine("9"_q);
        QCOMPARE(table.model->rowCount() + table.model->unfilteredCount(), 0);
    }

    void numbersAreOrderedAndEqualRowsKeepTheLinesOrder()
    {
        const double nan = std::nan("");
        const double least = 1 + std::numeric_limits<double>::epsilon();
        const struct
        {
            std::vector<double> pdops;
            const char* upwards;
            const char* downwards;
        } cases[] = {
            {{2, nan, 0.0, 10, -0.0, 2, -3, 10, nan}, "g c e a f d h b i", "d h a f c e g b i"},
            {{1e300, least, 1, -1e-300, std::nextafter(1, 0), -least, 1e-300, 1},
             "f d g e c h b a",
             "a b c h e g d f"}};
        for (const auto& [pdops, upwards, downwards] : cases) {
            Table table;
            table.addPdops(pdops);
            table.show();
            const std::string inTheLine = table.order();
            QCOMPARE(table.sorted("pdop", kUp), std::string(upwards));
            QCOMPARE(table.sorted("pdop", kDown), std::string(downwards)); // NaN stays last
            for (const auto direction : {kUp, kDown}) {
                for (const char* key : {"line_num", "remarks", "satellite_number", "start_time"})
                    QCOMPARE(table.sorted(key, direction), inTheLine);
            }
            table.model->sortBy(table.column("pdop"), kUp);
            table.model->sortBy(-1, kUp);
            QCOMPARE(table.order(), inTheLine);
        }
    }

    void namesAndTextsHaveTheirOrders()
    {
        Table table;
        const std::string longName(1000, '9');
        for (const std::string& name :
             {std::string("10015001"), std::string("9"), std::string("100150010"),
              std::string("10015001%s"), std::string("\"quoted\""), longName, std::string("点")})
            table.add("L", name);
        table.results().find("L", "9")->remarks = "éclair";
        table.results().find("L", "10015001")->remarks = "zebra";
        table.show();
        QCOMPARE(table.sorted("point_num", kDown),
                 "点 " + longName + " 9 100150010 10015001%s 10015001 \"quoted\"");
        QCOMPARE(table.model->rowOf({"L", longName}), 1);
        // "é" comes before "z".
        QCOMPARE(table.sorted("remarks", kDown).substr(0, 10), std::string("10015001 9"));
    }

    void filtersNarrow()
    {
        Table table;
        for (int i = 0; i < 20; ++i)
            table.add(i < 10 ? "1001" : "A1", std::to_string(1000 + i), i * 0.1).solutionType =
                i % 4 == 0 ? 5 : 4;
        table.show();
        table.filter("solution_type", "!fixed");
        QCOMPARE(table.order(), std::string("1000 1004 1008 1012 1016"));
        table.filter("pdop", "> 0.4");
        QCOMPARE(table.order(), std::string("1008 1012 1016"));
        table.filter("point_num", "1001..1012");
        table.filter("line_num", "> 1000"); // "A1" is no number
        QCOMPARE(table.order(), std::string("1008"));
        table.model->clearFilters();
        QCOMPARE(table.model->rowCount(), 20);
    }

    void failedCellsSayWhy()
    {
        Table table;
        SurveyPoint& point = table.add("L", "1", 7.2);
        point.antennaHeight = 2;
        point.satelliteNumber = 4;
        table.manager->checkQuality();
        table.show();
        QVERIFY(table.cell(0, "satellite_number", Qt::BackgroundRole).isValid());
        QCOMPARE(table.text(0, "pdop", Qt::ToolTipRole), "PDOP 7.20 is over its limit 3.00."_q);
        for (const char* key : {"elevation", "longitudinal_deviation", "line_num"}) {
            QVERIFY2(!table.cell(0, key, Qt::BackgroundRole).isValid(), key);
            QVERIFY2(!table.cell(0, key, Qt::ToolTipRole).isValid(), key);
        }
        table.manager->qualityParameters().set("pdop_max", "8"); // after the check
        QCOMPARE(table.text(0, "pdop", Qt::ToolTipRole),
                 "PDOP 7.20 was out of range in the last check. Its limit is now 8.00."_q);
    }
};

QTEST_MAIN(PointTableModelTest)
#include "PointTableModelTest.moc"
