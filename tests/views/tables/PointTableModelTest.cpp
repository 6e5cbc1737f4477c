#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "tests/support/Literals.h"
#include "views/tables/DesignTableModel.h"
#include "views/tables/SurveyTableModel.h"

#include <QAbstractItemModelTester>
#include <QItemSelectionModel>
#include <QtTest>

#include <cmath>

class PointTableModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_manager.reset(); }

    void resultsAreShownAsInFiles();
    void designIsShown();
    void rowsAreFoundInAnyOrder();
    void equalRowsKeepTheLinesOrder();
    void namesAndTextsHaveTheirOrders();
    void filtersNarrow();
    void pointsThatChangedAreEmptyRows();
    void selectionFollowsItsPoints();
    void failedCellsSayWhy();
    void survivesTheManager();

private:
    SurveyPoint& add(const char* line, const std::string& number, double pdop = 1)
    {
        SurveyPoint point;
        point.lineNumber = line;
        point.pointNumber = number;
        point.pdop = pdop;
        return m_manager->surveyPoints().set(std::move(point));
    }
    /// A table of all results, watched.
    void showSurvey()
    {
        m_model = makeSurveyTableModel();
        m_tester = std::make_unique<QAbstractItemModelTester>(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_model->showAllLines();
    }
    [[nodiscard]] int column(const char* key) const
    {
        for (int i = 0; i < m_model->columnCount(); ++i) {
            if (m_model->columnKey(i) == QLatin1String(key))
                return i;
        }
        return -1;
    }
    [[nodiscard]] QVariant cell(int row, const char* key, int role = Qt::DisplayRole) const
    {
        return m_model->index(row, column(key)).data(role);
    }
    /// The numbers of the shown points, from top to bottom.
    [[nodiscard]] std::string order() const
    {
        std::string all;
        for (int row = 0; row < m_model->rowCount(); ++row)
            all += (row == 0 ? "" : " ") + m_model->pointAt(row).point;
        return all;
    }

    Host m_host;
    std::unique_ptr<DataProcessDataManager> m_manager;
    std::unique_ptr<PointTableModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void PointTableModelTest::init()
{
    m_tester.reset();
    m_model.reset();
    m_manager = std::make_unique<DataProcessDataManager>(&m_host);
}

void PointTableModelTest::resultsAreShownAsInFiles()
{
    SurveyPoint& point = add("1001", "C10012034_0", 1.23456);
    point.altitude = 12.3456789;
    point.latitude = 30.5;
    point.ageOfDiff = 1.23456789;
    point.pointMark = 2;
    point.solutionType = 3;
    point.startTime = 1714521600000; // 2024/05/01 00:00:00 UTC
    point.remarks = "石头 \"5%\"";
    get_system_ini_parameter().dictionary().remove(settings::kTimeZone);
    showSurvey();
    const std::pair<const char*, const char*> cells[] = {
        {"line_num", "1001"},       {"point_num", "C10012034"},
        {"point_mark", "R"},        {"latitude", "30.50000000"},
        {"altitude", "12.345679"},  {"pdop", "1.2346"},
        {"age_of_diff", "1.23457"}, {"solution_type", "differential"},
        {"measure_mode", "loft"},   {"start_time", "2024/05/01 08:00:00"},
        {"epoch_number", "0"},      {"remarks", "石头 \"5%\""}};
    for (const auto& [key, text] : cells)
        QCOMPARE(cell(0, key).toString(), QString::fromUtf8(text));
    QCOMPARE(cell(0, "pdop", Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(cell(0, "remarks", Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(cell(0, "line_num", PointTableModel::kPointNumberRole).toString(), "C10012034_0"_q);
    QCOMPARE(m_model->headerData(3, Qt::Horizontal).toString(), "base id"_q);

    get_system_status_dictionary().set(status::kDegreeFormat, "1");
    get_system_ini_parameter().dictionary().set(settings::kTimeZone, "-1");
    m_model->refresh();
    QCOMPARE(cell(0, "latitude").toString(), "30deg30min0.000sec"_q);
    QCOMPARE(cell(0, "start_time").toString(), "2024/04/30 23:00:00"_q);
    m_model->setFilter(column("latitude"), "30.4..30.6"_q);
    QCOMPARE(m_model->rowCount(), 1);
    get_system_status_dictionary().remove(status::kDegreeFormat);
    get_system_ini_parameter().dictionary().remove(settings::kTimeZone);
}

void PointTableModelTest::designIsShown()
{
    DesignPoints& design = m_manager->designPoints();
    design.set({"1001", "10015001", 1.23456, -2, 3, 0.1, 2, 1});
    design.set({"1001", "10015002", 1e7, 2, 3, 359.123456789, 0, 2});
    m_model = makeDesignTableModel();
    const QAbstractItemModelTester tester(m_model.get());
    m_model->showLine("1001"_q);
    QStringList texts;
    for (int i = 0; i < 18; ++i)
        texts << m_model->index(i / 9, i % 9).data().toString();
    QCOMPARE(texts.join(QLatin1Char(' ')),
             "10015001 1001 1.235 -2.000 3.000 10015001 0.1 R surveyed "
             "10015002 1001 10000000.000 2.000 3.000 10015002 359.123456789 R not surveyed"_q);
    QVERIFY(!cell(0, "status", Qt::ForegroundRole).isValid());
    QCOMPARE(cell(1, "status", Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
    m_model->setFilter(column("status"), "!not"_q);
    QCOMPARE(m_model->rowCount(), 1);
    m_model->showLine("9"_q);
    QCOMPARE(m_model->rowCount(), 0);
    QCOMPARE(m_model->unfilteredCount(), 0);
}

void PointTableModelTest::rowsAreFoundInAnyOrder()
{
    for (int i = 0; i < 300; ++i)
        add(i % 3 == 0 ? "L 石" : "L", std::to_string(i), i % 7);
    showSurvey();
    for (const int sortColumn : {-1, column("pdop")}) {
        for (const char* const expression : {"", "> 2"}) {
            m_model->sortBy(sortColumn, Qt::DescendingOrder);
            m_model->setFilter(column("pdop"), QLatin1String(expression));
            QVERIFY(m_model->rowCount() > 100);
            for (int row = 0; row < m_model->rowCount(); ++row)
                QCOMPARE(m_model->rowOf(m_model->pointAt(row)), row);
        }
    }
    QCOMPARE(m_model->unfilteredCount(), 300);
    QVERIFY(m_model->holds({"L 石", "0"})); // its pdop is filtered out
    QCOMPARE(m_model->rowOf({"L 石", "0"}), -1);
    QVERIFY(!m_model->holds({"L", "0"}));
    QVERIFY(!m_model->holds({"Z", "0"}));
}

void PointTableModelTest::equalRowsKeepTheLinesOrder()
{
    const double nan = std::nan("");
    const double pdops[] = {2, nan, 0.0, 10, -0.0, 2, -3, 10, nan};
    for (std::size_t i = 0; i < std::size(pdops); ++i)
        add("L", std::string(1, static_cast<char>('a' + i)), pdops[i]);
    showSurvey();
    m_model->sortBy(column("pdop"), Qt::AscendingOrder);
    QCOMPARE(order(), std::string("g c e a f d h b i"));
    m_model->sortBy(column("pdop"), Qt::DescendingOrder);
    QCOMPARE(order(), std::string("d h a f c e g b i")); // what is no number stays last
    for (const auto direction : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        for (const char* const key : {"line_num", "remarks", "satellite_number", "start_time"}) {
            m_model->sortBy(column(key), direction);
            QCOMPARE(order(), std::string("a b c d e f g h i"));
        }
    }
    m_model->sortBy(column("pdop"), Qt::AscendingOrder);
    m_model->sortBy(-1, Qt::AscendingOrder);
    QCOMPARE(order(), std::string("a b c d e f g h i"));
}

void PointTableModelTest::namesAndTextsHaveTheirOrders()
{
    const std::string longName(1000, '9');
    for (const std::string& name :
         {std::string("10015001"), std::string("9"), std::string("100150010"),
          std::string("10015001%s"), std::string("\"quoted\""), longName, std::string("点")})
        add("L", name);
    m_manager->surveyPoints().find("L", "9")->remarks = "éclair";
    m_manager->surveyPoints().find("L", "10015001")->remarks = "zebra";
    showSurvey();
    m_model->sortBy(column("point_num"), Qt::DescendingOrder);
    QCOMPARE(order(), "点 " + longName + " 9 100150010 10015001%s 10015001 \"quoted\"");
    QCOMPARE(m_model->rowOf({"L", longName}), 1);
    m_model->sortBy(column("remarks"), Qt::DescendingOrder);
    QCOMPARE(order().substr(0, 10), std::string("10015001 9")); // "é" comes before "z"
}

void PointTableModelTest::filtersNarrow()
{
    for (int i = 0; i < 20; ++i) {
        SurveyPoint& point = add(i < 10 ? "1001" : "A1", std::to_string(1000 + i), i * 0.1);
        point.solutionType = i % 4 == 0 ? 5 : 4;
    }
    showSurvey();
    m_model->setFilter(column("solution_type"), "!fixed"_q);
    QCOMPARE(order(), std::string("1000 1004 1008 1012 1016"));
    m_model->setFilter(column("pdop"), "> 0.4"_q);
    QCOMPARE(order(), std::string("1008 1012 1016"));
    m_model->setFilter(column("point_num"), "1001..1012"_q);
    m_model->setFilter(column("line_num"), "> 1000"_q); // "A1" is no number
    QCOMPARE(order(), std::string("1008"));
    QVERIFY(m_model->isFiltered());
    m_model->clearFilters();
    QCOMPARE(m_model->rowCount(), 20);
    m_model->setFilter(column("pdop"), "> abc"_q);
    QVERIFY(m_model->filterFault(column("pdop")).contains("abc"_q));
    QCOMPARE(m_model->filter(column("pdop")), "> abc"_q);
    QVERIFY(!m_model->isFiltered());
    QCOMPARE(m_model->rowCount(), 20);
}

void PointTableModelTest::pointsThatChangedAreEmptyRows()
{
    for (const char* number : {"1", "2", "3"})
        add("L", number);
    showSurvey();
    m_manager->surveyPoints().erase("L", "2");
    QCOMPARE(m_model->rowCount(), 3);
    QVERIFY(!cell(0, "point_num").isValid());
    QCOMPARE(m_model->pointAt(0), PointName());
    QCOMPARE(m_model->rowOf({"L", "1"}), -1);
    m_model->sortBy(column("pdop"), Qt::AscendingOrder); // reads the points itself
    QCOMPARE(order(), std::string("1 3"));
    m_manager->surveyPoints().eraseLine("L");
    m_model->setFilter(column("pdop"), "1"_q);
    QCOMPARE(m_model->rowCount(), 0);
}

void PointTableModelTest::selectionFollowsItsPoints()
{
    for (int i = 0; i < 100; ++i)
        add(i % 2 == 0 ? "L1" : "L2", std::to_string(100 + i), i % 5);
    showSurvey();
    QItemSelectionModel selection(m_model.get());
    const auto select = [&](const PointName& name) {
        selection.select(m_model->index(m_model->rowOf(name), 0),
                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    };
    for (const int number : {110, 112, 114, 151})
        select({number % 2 == 0 ? "L1" : "L2", std::to_string(number)});
    selection.setCurrentIndex(m_model->index(m_model->rowOf({"L1", "112"}), 5),
                              QItemSelectionModel::NoUpdate);
    const auto selected = [&] {
        std::string all;
        QModelIndexList rows = selection.selectedRows();
        std::sort(rows.begin(), rows.end());
        for (const QModelIndex& index : rows)
            all += m_model->pointAt(index.row()).point + ' ';
        return all;
    };
    m_model->sortBy(column("pdop"), Qt::DescendingOrder);
    QCOMPARE(selected(), std::string("114 112 151 110 "));
    // 112 goes, others come before and behind it.
    m_manager->surveyPoints().erase("L1", "112");
    add("L0", "1", 4);
    add("L2", "9", 0);
    m_model->sortBy(-1, Qt::AscendingOrder);
    QCOMPARE(selected(), std::string("110 114 151 "));
    QVERIFY(!selection.currentIndex().isValid());
    m_model->setFilter(column("point_num"), "!114"_q);
    m_model->clearFilters();
    QCOMPARE(selected(), std::string("110 151 "));
}

void PointTableModelTest::failedCellsSayWhy()
{
    SurveyPoint& point = add("L", "1", 7.2);
    point.hdop = 0.4;
    point.vdop = 2;
    point.north = 0.7;
    point.satelliteNumber = 4;
    point.antennaHeight = 2;
    point.transversalDeviation = -0.50001;
    m_manager->checkQuality();
    showSurvey();
    const std::pair<const char*, const char*> faults[] = {
        {"pdop", "PDOP 7.20 is over its limit 3.00."},
        {"hdop", "HDOP 0.40 is under its limit 0.50."},
        {"north", "Horizontal distance from the design 0.70 m is over its limit 0.50 m."},
        {"satellite_number", "Number of satellites 4 is under its limit 6."},
        {"transversal_deviation", "Transversal deviation 0.50001 m is over its limit 0.50000 m."},
    };
    for (const auto& [key, sentence] : faults) {
        QVERIFY2(cell(0, key, Qt::BackgroundRole).isValid(), key);
        QCOMPARE(cell(0, key, Qt::ToolTipRole).toString(), QString::fromUtf8(sentence));
    }
    for (const char* const key : {"vdop", "elevation", "longitudinal_deviation", "line_num"}) {
        QVERIFY2(!cell(0, key, Qt::BackgroundRole).isValid(), key);
        QVERIFY2(!cell(0, key, Qt::ToolTipRole).isValid(), key);
    }
    m_manager->qualityParameters().set("pdop_max", "8"); // after the check
    QCOMPARE(cell(0, "pdop", Qt::ToolTipRole).toString(),
             "PDOP 7.20 was out of range in the last check. Its limit is now 8.00."_q);
}

void PointTableModelTest::survivesTheManager()
{
    add("L", "1");
    showSurvey();
    const QPersistentModelIndex index(m_model->index(0, 0));
    m_manager.reset();
    QVERIFY(!index.data().isValid());
    m_model->refresh();
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!index.isValid());
    m_manager = std::make_unique<DataProcessDataManager>(&m_host);
    add("L", "2");
    m_model->refresh();
    QCOMPARE(order(), std::string("2"));
}

QTEST_MAIN(PointTableModelTest)
#include "PointTableModelTest.moc"
