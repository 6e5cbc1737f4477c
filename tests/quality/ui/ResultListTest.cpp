#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Transform.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/QualityLimits.h"
#include "quality/QualityResultModel.h"
#include "quality/ui/DlgQCResult.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QtTest>

#include <array>
#include <memory>

namespace {

/// A list of points that notes which ones it has to select.
class NotingList final : public IWindow, public IPointList
{
public:
    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    bool selectPoint(const QString& lineNumber, const QString& pointNumber) override
    {
        asked << lineNumber + QLatin1Char('/') + pointNumber;
        return true;
    }
    bool followPoint(const QString& /*lineNumber*/, const QString& /*pointNumber*/) override
    {
        return true;
    }
    void deselect() override {}
    QStringList asked;

private:
    basalt::Dictionary m_parameters;
};

/// A result with too few satellites.
SurveyPoint weakPoint(const char* number)
{
    SurveyPoint point;
    point.lineNumber = "1001";
    point.pointNumber = number;
    point.north = point.designNorth = 4000;
    point.east = point.designEast = 3000;
    point.antennaHeight = 2;
    point.pdop = point.hdop = point.vdop = 1;
    point.satelliteNumber = 3;
    return point;
}

std::vector<QualityRow> someRows()
{
    return {{"C10015001_0", "1001", "HRMS Out-range.", 0.6, 0.5},
            {"7", "L \"1\", north", "PDOP, HDOP AND VDOP Out-range.", -1, -1},
            {"8", "1001", "Antenna Too Low.", 0.4996, 0.5}};
}

} // namespace

class ResultListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { lum::setDpiScale(1); }
    void theModelHoldsItsRows();
    void aClickSelectsTheResult();
    void theKeyboardSelectsTheResult();
    void lineDeviationsAreNamedAsSuch();
    void tellsTheUnitOfItsLengthsWhereThatIsAQuestion();
    void copiesRowsWithCaptions();
    void savesAsCsvOrTellsWhyNot();
    void eachListHasAPlaceOfItsOwn();
    void theListGoesWithItsProject();

private:
    std::unique_ptr<DlgQCResult> makeList()
    {
        auto list = std::make_unique<DlgQCResult>(
            *m_host, CheckResult{makeQualityResultModel(someRows()), "3 faults"_q});
        list->setAttribute(Qt::WA_DeleteOnClose, false);
        list->show();
        return list;
    }
    /// Saves a list by the last entry of the menu, which the menu key opens.
    static void saveByTheMenu(DlgQCResult& list)
    {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(list.findChild<CustomTableWidget*>(), &event);
        QWidget* const menu = QApplication::activePopupWidget();
        QVERIFY(menu != nullptr);
        QTest::keyClick(menu, Qt::Key_Up);
        QTest::keyClick(menu, Qt::Key_Return);
    }

    std::unique_ptr<TestHost> m_host;
};

void ResultListTest::init()
{
    m_host = std::make_unique<TestHost>();
    IDictionary& values = get_system_status_dictionary();
    values.clear();
    values.set(status::kProjectOpen, "1");
    values.set(status::kProjectPath, "/a");
}

void ResultListTest::theModelHoldsItsRows()
{
    const auto model = makeQualityResultModel(someRows());
    const QAbstractItemModelTester tester(model.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model->rowCount(), 3);
    const QModelIndex first = model->index(0, 0);
    QCOMPARE(first.data().toString(), QStringLiteral("C10015001"));
    QCOMPARE(first.data(261).toString(), QStringLiteral("C10015001_0"));
    QCOMPARE(first.data(262).toString(), QStringLiteral("1001"));
    QCOMPARE(first.data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignCenter));
    QCOMPARE(model->index(0, 1).data(261), QVariant());
    QCOMPARE(model->headerData(5, Qt::Horizontal, Qt::DisplayRole).toInt(), 6); // Qt's own
}

void ResultListTest::aClickSelectsTheResult()
{
    NotingList points;
    MapWindow map("name=DataMap", m_host.get());
    map.resize(400, 300);
    TestWindowRegistry& windows = m_host->windowRegistry;
    windows.windows[QStringLiteral("DataMap")] = &map;
    windows.windows[QStringLiteral("Survey Data List")] = &points;
    DataProcessDataManager manager(m_host.get());
    manager.surveyPoints().set(weakPoint("8"));
    const EventLog log(m_host->events, "ON_SURVEY_POINT_SELECTED");
    const auto list = makeList();
    auto* const table = list->findChild<CustomTableWidget*>();
    const auto place = [&] { return table->visualRect(table->model()->index(2, 2)).center(); };
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place());
    QCOMPARE(points.asked, QStringList(QStringLiteral("1001/8")));
    QCOMPARE(log.events.size(), 0U); // the window announces it
    QCOMPARE(map.transform().center(), QPointF(0, 0));
    QVERIFY(windows.activated.isEmpty());

    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place());
    QCOMPARE(map.transform().center(), QPointF(3000, 4000));
    QCOMPARE(windows.revealed, QStringList("DataMap beside Survey Data List"_q));

    manager.surveyPoints().clear();
    map.centerOn(0, 0);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place());
    QCOMPARE(map.transform().center(), QPointF(0, 0)); // the result was deleted

    windows.windows.remove(QStringLiteral("Survey Data List"));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(1, 0)).center());
    QCOMPARE(log.payloads(),
             std::vector<std::string>{"pointName=7,lineName=\"L \"\"1\"\", north\""});
}

void ResultListTest::theKeyboardSelectsTheResult()
{
    NotingList points;
    m_host->windowRegistry.windows[QStringLiteral("Survey Data List")] = &points;
    const DataProcessDataManager manager(m_host.get());
    const auto list = makeList();
    QVERIFY(QTest::qWaitForWindowActive(list.get()));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown,
                              Qt::Key_Down, Qt::Key_PageUp, Qt::Key_Return})
        QTest::keyClick(QApplication::focusWidget(), key);
    QCOMPARE(points.asked,
             (QStringList{QStringLiteral("1001/C10015001_0"), QStringLiteral("L \"1\", north/7"),
                          QStringLiteral("1001/8"), QStringLiteral("1001/C10015001_0"),
                          QStringLiteral("1001/C10015001_0")}));
}

void ResultListTest::lineDeviationsAreNamedAsSuch()
{
    std::vector<QualityRow> rows;
    for (const int code : {10000000, 20000000, 30000000, 1000000}) {
        SurveyPoint point = weakPoint("8");
        point.qualityStandard = code;
        describeQuality(point, QualityLimits(), rows);
    }
    const auto model = makeQualityResultModel(rows);
    const auto shown = [&](int row, int role) {
        return model->index(row, kQualityDescribeColumn).data(role).toString();
    };
    QVERIFY(shown(0, Qt::ToolTipRole).contains(QStringLiteral("transversal")));
    QVERIFY(shown(1, Qt::ToolTipRole).contains(QStringLiteral("longitudinal")));
    QVERIFY(shown(2, Qt::ToolTipRole).contains(QStringLiteral("transversal and the longi")));
    QVERIFY(shown(3, Qt::ToolTipRole).isEmpty());
    QTranslator chinese;
    QVERIFY(chinese.load(QStringLiteral("skyquill_zh_CN"),
                         QCoreApplication::applicationDirPath() +
                             QStringLiteral("/../etc/Tarvona/config/Skyquill/Language")));
    QCoreApplication::installTranslator(&chinese);
    for (const auto& [row, deviation] :
         {std::pair(0, QStringLiteral("横向偏差")), {1, QStringLiteral("纵向偏差")}}) {
        QVERIFY2(shown(row, Qt::DisplayRole).startsWith(deviation),
                 qPrintable(shown(row, Qt::DisplayRole)));
        QVERIFY(shown(row, Qt::ToolTipRole).contains(deviation));
    }
}

void ResultListTest::tellsTheUnitOfItsLengthsWhereThatIsAQuestion()
{
    basalt::Dictionary system;
    const auto note = [&] {
        get_project_coord_transform().initialise(system, system);
        return makeList()->findChild<QLabel*>()->text();
    };
    QCOMPARE(note(), "3 faults"_q);
    system.set("factor", "3.2808333333333333");
    QVERIFY2(note().contains("metres"_q) && note().contains("ftUS"_q), qPrintable(note()));
    system.clear();
    QCOMPARE(note(), "3 faults"_q);
}

void ResultListTest::copiesRowsWithCaptions()
{
    const DataProcessDataManager manager(m_host.get());
    const auto list = makeList();
    QVERIFY(QTest::qWaitForWindowActive(list.get()));
    auto* const table = list->findChild<CustomTableWidget*>();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText(QStringLiteral("before"));
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard.text(), QStringLiteral("before")); // no row was selected
    table->selectRow(0);
    QTest::keyClick(table, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard.text(),
             QStringLiteral("Point Num\tLine Num\tDescribe\tValue\tLimit\n"
                            "C10015001\t1001\tHRMS Out-range.\t0.600\t0.500\n"
                            "7\tL \"1\", north\tPDOP, HDOP AND VDOP Out-range.\t-1.000\t-1.000\n"));
}

void ResultListTest::savesAsCsvOrTellsWhyNot()
{
    const TestFolder folder;
    const QString path = folder.path("faults.csv");
    QString chosen = path;
    const FileDialog::Responder files([&](const auto& /*request*/) { return chosen; });
    QStringList told;
    const LumMessageBox::Responder messages([&](const auto& message) {
        if (message.kind == LumMessageBox::Kind::Question)
            return LumMessageBox::Button::Yes; // replaces the file
        told << message.text;
        return LumMessageBox::Button::Ok;
    });
    const auto list = makeList();
    QVERIFY(QTest::qWaitForWindowActive(list.get()));
    list->findChild<CustomTableWidget*>()->selectRow(1);
    saveByTheMenu(*list);
    const QByteArray saved = "Point Num,Line Num,Describe,Value,Limit\n"
                             "C10015001,1001,HRMS Out-range.,0.600,0.500\n"
                             "7,\"L \"\"1\"\", north\",\"PDOP, HDOP AND VDOP Out-range.\","
                             "-1.000,-1.000\n"
                             "8,1001,Antenna Too Low.,0.500,0.500\n";
    QCOMPARE(TestFolder::read(path), saved);
    QCOMPARE(told, QStringList());
    {
        const SmallFiles fullDisk(20);
        saveByTheMenu(*list);
    }
    QCOMPARE(TestFolder::read(path), saved);
    chosen = folder.path("missing/faults.csv");
    saveByTheMenu(*list);
    chosen.clear(); // the user cancels
    saveByTheMenu(*list);
    QCOMPARE(told.size(), 2);
    QVERIFY2(told[0].contains(QStringLiteral("\"%1\" cannot be written: ").arg(path)),
             qPrintable(told[0]));
    QVERIFY2(told[1].contains(QStringLiteral("missing/faults.csv")), qPrintable(told[1]));
}

void ResultListTest::eachListHasAPlaceOfItsOwn()
{
    lum::setDpiScale(0.6); // they fit side by side on the screen
    QWidget frame;
    frame.resize(780, 560);
    m_host->frame = &frame;
    std::array<std::unique_ptr<DlgQCResult>, 3> lists;
    for (auto& list : lists)
        list = makeList();
    QVERIFY(lists[1]->x() < lists[0]->x() - 20 && lists[1]->y() < lists[0]->y() - 20);
    QVERIFY(lists[2]->x() < lists[1]->x() - 20);
    const QPoint freed = lists[0]->pos();
    lists[0]->close();
    QCOMPARE(makeList()->pos(), freed);
}

void ResultListTest::theListGoesWithItsProject()
{
    const auto list = makeList();
    m_host->events.publish(events::kUpdateSystemStatus, nullptr, 0);
    QVERIFY(list->isVisible());
    get_system_status_dictionary().set(status::kProjectPath, "/b");
    m_host->events.publish(events::kUpdateSystemStatus, nullptr, 0);
    QVERIFY(!list->isVisible());
}

QTEST_MAIN(ResultListTest)
#include "ResultListTest.moc"
