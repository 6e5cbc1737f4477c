#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Paths.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Transform.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/ISurveyPointList.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/QualityLimits.h"
#include "quality/ui/DataInspectionCommand.h"
#include "quality/ui/DlgQCParamSet.h"
#include "quality/ui/DlgQCResult.h"
#include "quality/ui/QualityResultModel.h"
#include "tests/lum_desktop_sdkx/TestHost.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QPushButton>
#include <QtTest>

#include <array>
#include <cmath>
#include <memory>

namespace {

/// A survey table that notes what it is asked to show.
class NotingList final : public IWindow, public ISurveyPointList
{
public:
    QWidget* widget() override { return nullptr; }
    IDictionary& parameters() override { return m_parameters; }
    bool selectPoint(const QString& lineNumber, const QString& pointNumber) override
    {
        asked << lineNumber + QLatin1Char('/') + pointNumber;
        return true;
    }
    QStringList asked;

private:
    basalt::Dictionary m_parameters;
};

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

} // namespace

class QualityDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takesAGoodCode();
    void refusesABadCode();
    void asksToMendAFileEditedByHand();
    void takesLimitsWithAMinus();
    void asksForWhatTheToolAccepts();
    void theCommandChecksTellsAndLists();
    void theListIsAModelOfItsRows();
    void aClickShowsTheResult();
    void aClickComesNearEnough_data(); // NOLINT(readability-identifier-naming): Qt Test's
    void aClickComesNearEnough();
    void eachListHasAPlaceOfItsOwn();
    void theListGoesWithItsProject();

private:
    static DlgQCResult* openList()
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* const list = qobject_cast<DlgQCResult*>(widget))
                return list;
        }
        return nullptr;
    }
};

void QualityDialogsTest::init()
{
    IDictionary& values = get_system_status_dictionary();
    values.clear();
    values.set(status::kProjectOpen, "1");
    values.set(status::kProjectPath, "/a");
}

void QualityDialogsTest::takesAGoodCode()
{
    basalt::Dictionary parameters;
    parameters.set("kept", "x");
    DlgQCParamSet dialog(nullptr, parameters);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Quality Specification"));
    auto* const grid = dialog.findChild<PropertyGridCtrl*>();
    grid->setValue(QStringLiteral("re_code"), QStringLiteral("g"));
    grid->setValue(QStringLiteral("pdop_max"), QStringLiteral("4"));
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(parameters.text("re_code") == "G");
    QVERIFY(parameters.text("pdop_max") == "4");
    QVERIFY(parameters.text("kept") == "x");
}

void QualityDialogsTest::refusesABadCode()
{
    QStringList told;
    const LumMessageBox::Responder responder([&](const auto& message) {
        told << message.title << message.text;
        return LumMessageBox::Button::Ok;
    });
    basalt::Dictionary parameters;
    DlgQCParamSet dialog(nullptr, parameters);
    dialog.show();
    dialog.findChild<PropertyGridCtrl*>()->setValue(QStringLiteral("re_code"), QStringLiteral("c"));
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(dialog.isVisible());
    QCOMPARE(told, (QStringList{QStringLiteral("提示"),
                                QStringLiteral("请确认输入的复测代码是不为' C '的单个字母")}));
    QCOMPARE(parameters.size(), std::size_t(0));
}

void QualityDialogsTest::asksToMendAFileEditedByHand()
{
    basalt::Dictionary parameters; // without a resurvey code, which has its default then
    parameters.set("pdop_max", "many");
    DlgQCParamSet dialog(nullptr, parameters);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(dialog.isVisible());
    QVERIFY(parameters.text("pdop_max") == "many");
    dialog.findChild<PropertyGridCtrl*>()->setValue(QStringLiteral("pdop_max"),
                                                    QStringLiteral("3"));
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QVERIFY(parameters.text("re_code") == "F");
    QVERIFY(parameters.text("pdop_max") == "3");
}

void QualityDialogsTest::takesLimitsWithAMinus()
{
    basalt::Dictionary parameters;
    for (const QualityParameter& parameter : kQualityParameters) {
        if (parameter.largest > 0)
            parameters.set(parameter.key, "-2");
    }
    DlgQCParamSet dialog(nullptr, parameters);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    QVERIFY(!dialog.isVisible());
    QVERIFY(parameters.text("ant_height_max") == "-2");
}

/// The grid's control file against the table that other ways of entry go by.
void QualityDialogsTest::asksForWhatTheToolAccepts()
{
    QFile file(QString::fromStdString(
        basalt::resolvedPath("$(APP_DIR)/../etc/Tarvona/config/Skyquill/ControlXml/DataProcess5/"
                             "QCParam.xml")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    PropertyGridLayout layout;
    QCOMPARE(readPropertyGridLayout(file.readAll(), layout), QString());
    std::size_t rows = 0;
    for (const PropertyGridGroup& group : layout.groups) {
        for (const PropertyGridRow& row : group.rows) {
            const auto* const parameter = findQualityParameter(row.key.toStdString());
            QVERIFY2(parameter != nullptr, qPrintable(row.key));
            QCOMPARE(row.maximum.value_or(0), parameter->largest);
            QVERIFY(!row.minimum);
            QCOMPARE(row.editor == PropertyGridRow::Editor::Integer, parameter->isWhole);
            QCOMPARE(row.fallback, QString::fromLatin1(parameter->fallback));
            ++rows;
        }
    }
    QCOMPARE(rows, kQualityParameters.size());
}

void QualityDialogsTest::theCommandChecksTellsAndLists()
{
    TestHost host;
    DataProcessDataManager manager(&host);
    manager.surveyPoints().set(weakPoint("C10015001_0"));
    TestListener listener;
    const EventSubscription subscription(listener, "REFRESH_DESIGN_TABLE,REFRESH_SURVEY_TABLE",
                                         host.events);
    QStringList told;
    const LumMessageBox::Responder responder([&](const auto& message) {
        told << message.title << message.text;
        return LumMessageBox::Button::Ok;
    });
    DataInspectionCommand command("", &host);
    QVERIFY(command.isEnabled());
    command.execute();
    QCOMPARE(told,
             (QStringList{QStringLiteral("success"), QStringLiteral("Quality Check Complete!")}));
    QCOMPARE(listener.names, (QStringList{QStringLiteral("REFRESH_DESIGN_TABLE"),
                                          QStringLiteral("REFRESH_SURVEY_TABLE")}));
    DlgQCResult* const list = openList();
    QVERIFY(list != nullptr && list->isVisible() && !list->isModal());
    const QAbstractItemModel& model = *list->findChild<CustomTableWidget*>()->model();
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("C10015001"));
    QCOMPARE(model.index(0, 0).data(261).toString(), QStringLiteral("C10015001_0"));
    QCOMPARE(model.index(0, 0).data(262).toString(), QStringLiteral("1001"));
    QCOMPARE(model.index(0, 2).data().toString(), QStringLiteral("Satellite Number Insufficient."));
    QCOMPARE(model.index(0, 3).data().toString(), QStringLiteral("3.000"));
    QCOMPARE(model.index(0, 4).data().toString(), QStringLiteral("6.000"));
    list->close();
    QTRY_VERIFY(openList() == nullptr);
}

void QualityDialogsTest::theListIsAModelOfItsRows()
{
    QualityResultModel model({{"7", "1", "HRMS Out-range.", 1, 2}}, nullptr);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.index(0, 1).data(261), QVariant());
}

void QualityDialogsTest::aClickShowsTheResult()
{
    TestHost host;
    NotingList list;
    MapWindow map("name=DataMap", &host);
    map.resize(400, 300);
    host.windowRegistry.windows[QStringLiteral("DataMap")] = &map;
    host.windowRegistry.windows[QStringLiteral("Survey Data List")] = &list;
    DataProcessDataManager manager(&host);
    manager.surveyPoints().set(weakPoint("5"));
    manager.checkQuality();
    DlgQCResult dialog(host, manager.describeQuality());
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    auto* const table = dialog.findChild<CustomTableWidget*>();
    const QRect cell = table->visualRect(table->model()->index(0, 2));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
    QCOMPARE(list.asked, QStringList(QStringLiteral("1001/5")));
    QCOMPARE(map.transform().center(), QPointF(3000, 4000));
    const QImage picture = map.grab().toImage();
    QCOMPARE(picture.pixelColor(picture.width() / 2, picture.height() / 2), QColor(Qt::blue));

    manager.surveyPoints().clear(); // edited since: the row leads nowhere
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
}

void QualityDialogsTest::aClickComesNearEnough_data() // NOLINT(readability-identifier-naming)
{
    QTest::addColumn<double>("offset"); // metres from the design
    QTest::addColumn<double>("before"); // metres a pixel
    QTest::addColumn<double>("after");
    QTest::newRow("far offset") << 50.0 << 100.0 << 1.0;
    QTest::newRow("offset seen as two points") << 6.0 << 100.0 << 0.5;
    QTest::newRow("tiny offset keeps the neighbours") << 0.01 << 100.0 << 0.05;
    QTest::newRow("no offset") << 0.0 << 100.0 << 1.0;
    QTest::newRow("near enough") << 6.0 << 0.3 << 0.3;
}

void QualityDialogsTest::aClickComesNearEnough()
{
    QFETCH(const double, offset);
    QFETCH(const double, before);
    TestHost host;
    MapWindow map("name=DataMap", &host);
    map.resize(400, 300);
    host.windowRegistry.windows[QStringLiteral("DataMap")] = &map;
    map.show();
    map.zoomRect(0, 0, 400 * before, 300 * before);
    QCOMPARE(map.transform().GetScale(), before);
    PointHighlight::show(host, {3000, 4000}, {3000, 4000 + offset});
    QCOMPARE(map.transform().center(), QPointF(3000, 4000));
    QTEST(map.transform().GetScale(), "after");
    map.zoomAbout(200, 150, 0.01);
    const Transform view = map.transform();
    PointHighlight::show(host, {3000, std::nan("")}, {3000, 4000});
    QVERIFY2(map.transform() == view, "there is no place to come near to");
}

void QualityDialogsTest::eachListHasAPlaceOfItsOwn()
{
    TestHost host;
    QWidget frame;
    frame.resize(1200, 800);
    host.frame = &frame;
    std::array<DlgQCResult*, 3> lists{};
    for (DlgQCResult*& list : lists) {
        list = std::make_unique<DlgQCResult>(host, std::vector<QualityRow>()).release();
        list->show();
    }
    QVERIFY(lists[1]->x() < lists[0]->x() - 20 && lists[1]->y() < lists[0]->y() - 20);
    QVERIFY(lists[2]->x() < lists[1]->x() - 20);
    const QPoint freed = lists[0]->pos();
    lists[0]->close();
    auto* const next = std::make_unique<DlgQCResult>(host, std::vector<QualityRow>()).release();
    QCOMPARE(next->pos(), freed);
}

void QualityDialogsTest::theListGoesWithItsProject()
{
    TestHost host;
    DlgQCResult dialog(host, {});
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    host.events.publish(events::kUpdateSystemStatus, nullptr, 0);
    QVERIFY(dialog.isVisible());
    get_system_status_dictionary().set(status::kProjectPath, "/b");
    host.events.publish(events::kUpdateSystemStatus, nullptr, 0);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(QualityDialogsTest)
#include "QualityDialogsTest.moc"
