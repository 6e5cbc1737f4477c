#include "design/ui/CountAzimuthCommand.h"
#include "design/ui/CountAzimuthDlg.h"
#include "protocol/Events.h"
#include "tests/map/ui/TestMap.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Widgets.h"

namespace {

/// Opens the design dialog of a test: nothing.
class DesignCommand final : public CommandExecuterxBase
{
public:
    explicit DesignCommand(IDesktopHost* host) : CommandExecuterxBase("", host) {}
    [[nodiscard]] bool isEnabled() const override { return isPossible; }
    void execute() override {}

    bool isPossible = true;
};

/// The calculator over the map of an open project with a design point at N 200.5, E 100.25.
class Calculator : public TestMap
{
public:
    Calculator()
    {
        host.document.name = "demo"_q;
        host.frame = &m_frame;
        host.commandList.commands.insert("Generate Lines"_q, &design);
        addDesign("1001", "10015001", 200.5, 100.25);
        publish(events::kRefreshDesignLayer);
        showAll();
        CountAzimuthCommand("", &host).execute();
    }
    ~Calculator() { m_frame.hide(); }

    [[nodiscard]] CountAzimuthDlg& dialog() { return *m_frame.findChild<CountAzimuthDlg*>(); }
    /// The fields in the order of the keyboard: N, E, N, E; then azimuth and length.
    [[nodiscard]] QList<QLineEdit*> fields()
    {
        QList<QLineEdit*> inputs;
        QList<QLineEdit*> outputs;
        for (QLineEdit* const edit : dialog().findChildren<QLineEdit*>())
            (edit->isReadOnly() ? outputs : inputs) << edit;
        return inputs + outputs;
    }
    void type(const QStringList& texts)
    {
        for (int i = 0; i < texts.size(); ++i) {
            fields()[i]->clear();
            QTest::keyClicks(fields()[i], texts[i]);
        }
    }
    [[nodiscard]] QStringList texts()
    {
        QStringList all;
        for (const QLineEdit* const edit : fields())
            all << edit->text();
        return all;
    }
    [[nodiscard]] QAbstractButton& button(const char* text) { return buttonOf(dialog(), text); }
    void press(const char* text) { ::press(dialog(), text); }
    void choose(const QString& format)
    {
        for (QRadioButton* const each : dialog().findChildren<QRadioButton*>()) {
            if (each->text().contains(format))
                each->click();
        }
    }
    [[nodiscard]] QString note()
    {
        for (const QLabel* const label : dialog().findChildren<QLabel*>()) {
            if (label->wordWrap())
                return label->text();
        }
        return {};
    }

    DesignCommand design{&host};
    EventLog handed{host.events, events::kAzimuthHandedOver};
    Boxes boxes;

private:
    QWidget m_frame;
};

} // namespace

class AzimuthDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TestMap::registerComponents(); }

    void calculatesAndChangesTheForm()
    {
        Calculator project;
        QCOMPARE(project.dialog().windowTitle(), "Calculate Azimuth"_q);
        project.dialog().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&project.dialog()));
        for (QLineEdit* const each : project.fields().mid(0, 4)) { // by the keyboard
            QVERIFY(each->hasFocus());
            QTest::keyClick(each, Qt::Key_Tab);
        }
        project.type({"5000000"_q, " 400000 "_q, "5000004"_q, "399997"_q});
        QTest::keyClick(project.fields()[3], Qt::Key_Return);
        QCOMPARE(project.texts().mid(4), (QStringList{"-36.521163"_q, "5.000000"_q}));
        project.choose("dd.mmss"_q); // chosen already
        QCOMPARE(project.texts()[4], "-36.521163"_q);
        project.choose("ddd.dddddd"_q);
        QCOMPARE(project.texts()[4], "-36.869897"_q);
        project.choose("dd.mmss"_q);
        QCOMPARE(project.texts()[4], "-36.521163"_q);
        project.press("Clear");
        QCOMPARE(project.texts(), (QStringList{"5000000"_q, " 400000 "_q, "5000004"_q, "399997"_q,
                                               QString(), QString()}));
        project.choose("ddd.dddddd"_q);
        QCOMPARE(project.texts()[4], QString());
        project.press("Calculate");
        QCOMPARE(project.texts()[4], "-36.869897"_q);
        project.type({"1"_q}); // the result is of another start
        QCOMPARE(project.texts().mid(4), (QStringList{QString(), QString()}));
        QVERIFY(project.boxes.told().isEmpty());
    }

    void aMissingOrWrongCoordinateGivesNoResult()
    {
        Calculator project;
        const QColor sound = project.fields()[1]->palette().color(QPalette::Text);
        for (int empty = 0; empty < 4; ++empty) {
            QStringList texts{"1"_q, "2"_q, "3"_q, "4"_q};
            texts[empty] = "  "_q;
            project.type(texts);
            project.press("Calculate");
            QCOMPARE(project.boxes.told(), QStringList{"Error|Calculate Msg Not Enough"_q});
            QCOMPARE(project.dialog().focusWidget(), project.fields()[empty]);
        }
        project.type({"1"_q, "12,5"_q, "3"_q, "4"_q});
        QVERIFY(project.fields()[1]->palette().color(QPalette::Text) != sound);
        QVERIFY(project.note().startsWith("E of Start"_q) && project.note().contains("12,5"_q));
        project.press("Calculate");
        QCOMPARE(project.texts().mid(4), (QStringList{QString(), QString()}));
        QCOMPARE(project.dialog().focusWidget(), project.fields()[1]);
        project.type({"3"_q, "4"_q, "3"_q, "4"_q});
        QCOMPARE(project.fields()[1]->palette().color(QPalette::Text), sound);
        project.press("Calculate");
        QCOMPARE(project.texts().mid(4), (QStringList{"0.000000"_q, "0.000000"_q}));
        QVERIFY(project.note().contains("no direction"_q));
        QVERIFY(project.boxes.told().isEmpty());
    }

    void takesPlacesOfTheMap()
    {
        Calculator project;
        project.press("Pick on the Map"); // the first is that of the start
        QVERIFY(project.button("Pick on the Map").isChecked());
        project.click(100, 100);
        QVERIFY(!project.button("Pick on the Map").isChecked());
        QCOMPARE(project.texts().mid(0, 3), (QStringList{"200.5"_q, "100.25"_q, QString()}));
        QVERIFY(project.note().contains("10015001"_q));
        QVERIFY(project.boxes.told().isEmpty()); // that more is missing
        project.press("Pick Both on the Map");
        project.click(300, 200);
        project.click(200, 200);
        QCOMPARE(project.texts(),
                 (QStringList{"100"_q, "300"_q, "100"_q, "200"_q, "-90.000000"_q, "100.000000"_q}));

        project.press("Pick Both on the Map");
        QTest::keyClick(&project.dialog(), Qt::Key_Escape); // ends the pick alone
        QVERIFY(project.dialog().isVisible());
        QCOMPARE(project.texts()[4], "-90.000000"_q);
        project.host.document = {};
        project.publish(events::kUpdateSystemStatus);
        QVERIFY(!project.button("Pick on the Map").isEnabled());
    }

    void handsItsAzimuthToTheDesign()
    {
        Calculator project;
        QVERIFY(!project.button("Design Lines with It").isEnabled());
        project.type({"0"_q, "0"_q, "1"_q, "-1"_q});
        project.press("Calculate");
        project.press("Design Lines with It");
        QCOMPARE(project.host.commandList.executed, QStringList{"Generate Lines"_q});
        QCOMPARE(project.handed.payloads(), std::vector<std::string>{"azimuth=315"});
        project.type({"1"_q});
        QVERIFY(!project.button("Design Lines with It").isEnabled());
        project.press("Calculate");
        project.design.isPossible = false; // the project was closed
        project.publish(events::kUpdateSystemStatus);
        QVERIFY(!project.button("Design Lines with It").isEnabled());
    }
};

QTEST_MAIN(AzimuthDialogTest)
#include "AzimuthDialogTest.moc"
