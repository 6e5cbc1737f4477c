#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "design/ui/DesignSurveyLineCommand.h"
#include "design/ui/DesignTexts.h"
#include "design/ui/DlgDesignLine.h"
#include "map/ui/PointHighlight.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/MapMouse.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Widgets.h"

namespace {

/// An open project, its map, and the dialog on it.
class Designer : public TestMap
{
public:
    /// \param values of design parameters: "key=value,key=value"
    explicit Designer(const char* values = "")
    {
        host.document.name = "demo"_q;
        setStatus(status::kProjectOpen, "1");
        setStatus(status::kProjectPath, "/a");
        csa_to_dictionary(parameters(), values);
        open();
    }
    ~Designer()
    {
        if (DlgDesignLine* const dialog = shown())
            dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void open() { DesignSurveyLineCommand("", &host).execute(); }
    [[nodiscard]] static DlgDesignLine* shown() { return findWindow<DlgDesignLine>(); }
    [[nodiscard]] IDictionary& parameters() { return manager.designParameters(); }
    [[nodiscard]] QString stored(const char* key)
    {
        return QString::fromStdString(std::string(parameters().text(key, "-")));
    }
    [[nodiscard]] static QLineEdit& field(const char* key)
    {
        return *shown()->findChild<QLineEdit*>(QLatin1String(key));
    }
    static void type(const char* key, const QString& text) { typeOver(field(key), text); }
    static void press(const char* text) { ::press(*shown(), text); }
    /// Takes another entry of the box that has this one.
    static void choose(const char* entry)
    {
        for (QComboBox* const box : shown()->findChildren<QComboBox*>()) {
            const int index = box->findText(QLatin1String(entry));
            if (index < 0 || !box->isVisible())
                continue;
            QTest::keyClick(box, Qt::Key_Down); // opens the list
            box->view()->setCurrentIndex(box->model()->index(index, 0));
            QTest::keyClick(box->view(), Qt::Key_Return);
            return;
        }
        QFAIL(entry);
    }
    /// All that the dialog says below its fields.
    [[nodiscard]] static QString said()
    {
        QStringList all;
        for (const QLabel* const label : shown()->findChildren<QLabel*>()) {
            if (label->isVisible() && label->wordWrap())
                all << label->text();
        }
        return all.join(QLatin1Char('\n'));
    }
    [[nodiscard]] QColor shownAt(double east, double north)
    {
        const QPointF place = window.transform().SurveyToScreen(east, north);
        return picture().pixelColor(place.toPoint());
    }
    void clickMap(double east, double north)
    {
        const QPoint place = window.transform().SurveyToScreen(east, north).toPoint();
        moveMouse(window, place);
        QTest::mouseClick(&window, Qt::LeftButton, {}, place);
    }

    EventLog refreshed{host.events, events::kRefreshDesignLayer};
};

/// A grid of 3 x 5 points around (100, 100), lines to the north, and one of 2 x 3, lines to the
/// east.
constexpr const char* kGrids =
    "r_line_dist=50,r_line_end_num=20,r_pt_dist=25,r_pt_end_num=40,calc_r_start_north=100,"
    "calc_r_start_east=100,s_line_dist=40,s_line_start_num=5000,s_line_end_num=5010,s_pt_dist=60,"
    "s_pt_end_num=20,calc_s_start_north=250,calc_s_start_east=30,calc_s_start_azi=90";

} // namespace

class DesignLineDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }

    void saveKeepsTheParametersAndLeavesTheDesign()
    {
        Designer project("r_line_dist=12.5,calc_r_start_azi=359.595999900,s_recvrse_recvline=1");
        project.addDesign("1", "10001", 1, 1);
        QCOMPARE(Designer::shown()->windowTitle(), "Design Line Dialog"_q);
        QCOMPARE(Designer::field("r_line_dist").text(), "12.5"_q);
        QCOMPARE(Designer::field("r_line_end_num").text(), "1000"_q); // where nothing was stored
        QCOMPARE(Designer::field("calc_r_start_azi").text(), "359.5959999"_q);
        QVERIFY(Designer::shown()->findChild<QCheckBox*>("s_recvrse_recvline"_q)->isChecked());
        Designer::type("s_pt_dist", " 7.25 "_q);
        Designer::type("calc_s_start_north", "5000000.1234"_q);
        Designer::shown()->findChild<QCheckBox*>("r_recvrse_recvline"_q)->click();
        QSignalSpy finished(Designer::shown(), &QDialog::finished);
        Designer::press("Save");
        QCOMPARE(finished.value(0).value(0).toInt(), int(QDialog::Rejected));
        QCOMPARE(project.stored("s_pt_dist"), "7.25"_q);
        QCOMPARE(project.stored("calc_s_start_north"), "5000000.1234"_q);
        QCOMPARE(project.stored("calc_r_start_azi"), "359.595999900"_q);
        QCOMPARE(project.stored("r_recvrse_recvline"), "1"_q);
        QCOMPARE(project.stored("r_line_step"), "10"_q);
        QVERIFY(project.manager.isChanged());
        QCOMPARE(project.manager.designPoints().pointCount(), std::size_t(1));
        QVERIFY(project.refreshed.events.empty());
    }

    void eachButtonReplacesTheWholeDesign()
    {
        struct Case
        {
            const char* pressed;
            std::size_t points;
        };
        for (const auto& [pressed, points] :
             {Case{"OK", 21}, Case{"Calc R", 15}, Case{"Calc S", 6}}) {
            Designer project(kGrids);
            project.addDesign("1", "10001", 1, 1);
            project.addDesign("1", "10002", 1, 2);
            project.addDesign("2", "20001", 1, 2, 0);
            project.publish(events::kRefreshDesignLayer); // as an import does meanwhile
            QVERIFY(Designer::said().contains("3 design points of 2 lines will be replaced"_q));
            QVERIFY(Designer::said().contains("3 receiver lines x 5 points = 15; area 0.01 km²"_q));
            project.refreshed.events.clear();
            QSignalSpy finished(Designer::shown(), &QDialog::finished);
            Designer::press(pressed);
            QCOMPARE(finished.value(0).value(0).toInt(), int(QDialog::Accepted));
            QCOMPARE(project.manager.designPoints().pointCount(), points);
            QCOMPARE(project.refreshed.events.size(), std::size_t(1));
            QVERIFY2(project.host.told.contains("3 design points replaced by %1"_q.arg(points)),
                     qPrintable(project.host.told));
        }
    }

    void whatCannotBeStoredIsRefusedAndMarked()
    {
        struct Case
        {
            const char* key;
            const char* text;
            const char* told; ///< a part of the box
        };
        const std::initializer_list<Case> kCases = {
            {"r_line_step", "0", "注意|步长禁止输入0。"},
            {"s_pt_step", "", "注意|步长禁止输入0。"},
            {"r_line_dist", "15,5", "注意|R-Line Dist: \"15,5\" is not a number."},
            {"r_pt_end_num", "2000000000", "200,000,001"},
        };
        for (const auto& [key, text, part] : kCases) {
            Designer project(kGrids);
            const basalt::Dictionary before(project.parameters());
            Boxes boxes;
            const QColor sound = Designer::field(key).palette().color(QPalette::Base);
            Designer::type(key, QString::fromLatin1(text));
            QVERIFY(Designer::field(key).palette().color(QPalette::Base) != sound);
            Designer::press("OK");
            const QStringList told = boxes.told();
            QCOMPARE(told.size(), 1);
            QVERIFY2(told.first().contains(QString::fromUtf8(part)), qPrintable(told.first()));
            QVERIFY(Designer::shown() != nullptr && Designer::field(key).isVisible());
            QCOMPARE(Designer::shown()->focusWidget(), &Designer::field(key));
            QVERIFY(dictionary_same(before, project.parameters()));
            QVERIFY(!project.manager.isChanged());

            Designer::type(key, "1"_q);
            QCOMPARE(Designer::field(key).palette().color(QPalette::Base), sound);
        }
    }

    void anAzimuthIsTypedInEitherForm()
    {
        Designer project(kGrids);
        Designer::type("calc_r_start_azi", "45.3"_q);
        QVERIFY(Designer::said().contains("45°30'00.00\""_q));
        Designer::choose("dd.dddddd");
        QCOMPARE(Designer::field("calc_r_start_azi").text(), "45.5"_q);
        QCOMPARE(Designer::field("calc_s_start_azi").text(), "90"_q);
        Designer::type("calc_r_start_azi", "359.9999999999"_q);
        Designer::choose("Send Line");
        Designer::type("calc_s_start_azi", "12.6"_q);
        project.host.events.publish(events::kAzimuthHandedOver, payload::azimuth(-0.25), 0);
        QCOMPARE(Designer::field("calc_s_start_azi").text(), "359.75"_q);
        Designer::choose("dd.mmss");
        QCOMPARE(Designer::field("calc_s_start_azi").text(), "359.45"_q);
        Designer::press("Save");
        QCOMPARE(project.stored("calc_r_start_azi"), "360.000000000"_q);
        QCOMPARE(project.stored("calc_s_start_azi"), "359.450000000"_q);
    }

    void theMapShowsBothGridsAsTheyAreTyped()
    {
        Designer project(kGrids);
        project.addDesign("1", "10001", -500, -500); // else the map follows the grids
        project.showAll();
        PointHighlight::mark(project.host, DesignPoint{"", "", 100, 100});
        const QColor receiver(Qt::cyan);
        const QColor source(Qt::darkBlue);
        QCOMPARE(project.shownAt(100, 100), QColor(Qt::red)); // the selected point stays on top
        QCOMPARE(project.shownAt(100, 150), receiver);        // the first line
        QCOMPARE(project.shownAt(200, 150), receiver);        // the last one
        QCOMPARE(project.shownAt(60, 250), source);
        QCOMPARE(project.shownAt(60, 210), source);
        QCOMPARE(project.shownAt(97, 190), receiver); // the arrow of the numbers
        QVERIFY(project.shownAt(103, 110) != receiver);
        QCOMPARE(project.shownAt(300, 150), QColor(Qt::white));
        Designer::type("r_line_dist", "100"_q);
        QCOMPARE(project.shownAt(300, 150), receiver);
        QVERIFY(project.shownAt(200, 150) != receiver);
        Designer::type("r_line_dist", "x"_q); // the other grid stays
        QCOMPARE(project.shownAt(300, 150), QColor(Qt::white));
        QCOMPARE(project.shownAt(60, 250), source);
        Designer::choose("Send Line");
        Designer::type("calc_s_start_north", "5000000"_q);
        Designer::press("Show on Map");
        QVERIFY(project.window.transform().visibleExtent().contains(QPointF(30, 5000000)));
        project.showAll();
        QTest::keyClick(Designer::shown(), Qt::Key_Escape);
        QVERIFY(Designer::shown() == nullptr);
        QCOMPARE(project.shownAt(100, 100), QColor(Qt::red));
        QCOMPARE(project.shownAt(60, 250), QColor(Qt::white));
        QCOMPARE(project.stored("r_line_dist"), "50"_q); // Escape stores nothing
    }

    void startAndAzimuthArePickedOnTheMap()
    {
        Designer project(kGrids);
        project.addDesign("7", "70001", 210.12345, 310.98765);
        project.publish(events::kRefreshDesignLayer);
        project.showAll();
        Designer::press("Pick Start on Map");
        project.clickMap(311, 210);
        QCOMPARE(Designer::field("calc_r_start_north").text(), "210.12345"_q);
        QCOMPARE(Designer::field("calc_r_start_east").text(), "310.98765"_q);
        QVERIFY(project.host.told.contains("70001"_q));
        Designer::choose("Send Line");
        Designer::press("Pick Azimuth on Map");
        project.clickMap(300, 100);
        project.clickMap(200, 100);
        QCOMPARE(Designer::field("calc_s_start_azi").text(), "270"_q);
        QCOMPARE(Designer::field("calc_r_start_azi").text(), "0"_q);
        Designer::press("Pick Azimuth on Map");
        QTest::keyClick(&project.window, Qt::Key_Escape);
        QVERIFY(Designer::shown() != nullptr);
        QCOMPARE(Designer::field("calc_s_start_azi").text(), "270"_q);
    }

    void thereIsOneDialogForOneProject()
    {
        Designer project(kGrids);
        DlgDesignLine* const first = Designer::shown();
        Designer::type("r_line_dist", "17"_q);
        project.open();
        QCOMPARE(Designer::shown(), first);
        QCOMPARE(Designer::field("r_line_dist").text(), "17"_q);
        project.setStatus(status::kProjectPath, "/b");
        project.publish(events::kUpdateSystemStatus);
        QVERIFY(Designer::shown() == nullptr);
        project.open();
        QVERIFY(Designer::shown() != nullptr);
        QCOMPARE(Designer::field("r_line_dist").text(), "50"_q);
        project.setStatus(status::kProjectOpen, "0");
        QVERIFY(!DesignSurveyLineCommand("", &project.host).isEnabled());
    }

    void enterReplacesNoDesign()
    {
        Designer project(kGrids);
        project.addDesign("1", "10001", 1, 1);
        QTest::keyClick(&Designer::field("r_line_dist"), Qt::Key_Return);
        QCOMPARE(Designer::shown()->focusWidget(), &Designer::field("r_line_start_num"));
        Designer::field("r_pt_base").setFocus();
        QTest::keyClick(&Designer::field("r_pt_base"), Qt::Key_Enter);
        QCOMPARE(Designer::shown()->focusWidget(), &Designer::field("s_line_dist"));
        QCOMPARE(project.manager.designPoints().pointCount(), std::size_t(1));
        QAbstractButton& cancel = buttonOf(*Designer::shown(), "Cancel");
        cancel.setFocus();
        QTest::keyClick(&cancel, Qt::Key_Return);
        QVERIFY(Designer::shown() == nullptr);
    }

    void binsFollowTheDirectionsOfBothGrids()
    {
        DesignGrid receivers;
        receivers.lineDistance = 200;
        receivers.pointDistance = 25;
        DesignGrid sources;
        sources.kind = GridKind::Source;
        sources.lineDistance = 300;
        sources.pointDistance = 50;
        sources.azimuth = 270;
        QCOMPARE(*DesignTexts::binSize(receivers, sources), (DesignPlace{12.5, 25}));
        sources.azimuth = 180;
        QCOMPARE(*DesignTexts::binSize(receivers, sources), (DesignPlace{12.5, 100}));
        sources.azimuth = 45;
        QVERIFY(!DesignTexts::binSize(receivers, sources));
        QVERIFY(DesignTexts::comparison(receivers, sources).contains("grids: 10,201"_q));
        sources.lineStart = 2000;
        sources.lineEnd = 3000;
        QCOMPARE(DesignTexts::comparison(receivers, sources), QString());
        sources.startNorth = 40000;
        QCOMPARE(DesignTexts::comparison(receivers, sources), QString());
        sources.startNorth = 5000000;
        sources.azimuth = 0;
        QCOMPARE(DesignTexts::comparison(receivers, sources), "The grids lie 4,997.5 km apart."_q);
        receivers.azimuth = -0.3030;
        QVERIFY(DesignTexts::direction(receivers).contains("359°29'30.00\""_q));
    }
};

QTEST_MAIN(DesignLineDialogTest)
#include "DesignLineDialogTest.moc"
