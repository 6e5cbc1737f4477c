#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Paths.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "quality/QualityLimits.h"
#include "quality/ui/DlgQCParamSet.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

/// The dialog of the limits.
class QualityDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesAGoodCodeAndRefusesABadOne()
    {
        Boxes boxes;
        basalt::Dictionary parameters;
        parameters.set("kept", "x");
        DlgQCParamSet dialog(nullptr, parameters);
        QCOMPARE(dialog.windowTitle(), "Quality Specification"_q);
        dialog.show();
        enter(dialog, "pdop_max", "4");
        enter(dialog, "re_code", "c");
        pressOk(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(boxes.told(), QStringList("提示|请确认输入的复测代码是不为' C '的单个字母"_q));
        QCOMPARE(parameters.size(), std::size_t(1));
        enter(dialog, "re_code", "g");
        pressOk(dialog);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(parameters.text("re_code") == "G");
        QVERIFY(parameters.text("pdop_max") == "4");
        QVERIFY(parameters.text("kept") == "x");
    }

    void asksToMendAFileEditedByHand()
    {
        basalt::Dictionary parameters; // without a resurvey code: the dialog shows its default
        for (const QualityParameter& parameter : kQualityParameters) {
            if (parameter.largest > 0)
                parameters.set(parameter.key, "-2"); // a minus is allowed
        }
        parameters.set("pdop_max", "many");
        DlgQCParamSet dialog(nullptr, parameters);
        dialog.show();
        pressOk(dialog);
        QVERIFY(dialog.isVisible());
        QVERIFY(parameters.text("pdop_max") == "many");
        enter(dialog, "pdop_max", "3");
        pressOk(dialog);
        QVERIFY(!dialog.isVisible());
        QVERIFY(parameters.text("re_code") == "F");
        QVERIFY(parameters.text("pdop_max") == "3");
        QVERIFY(parameters.text("ant_height_max") == "-2");
    }

    /// The control file of the dialog allows the same values as the table that the command line
    /// uses.
    void asksForWhatTheToolAccepts()
    {
        const QByteArray file = TestFolder::read(QString::fromStdString(basalt::resolvedPath(
            "$(APP_DIR)/../etc/Tarvona/config/Skyquill/ControlXml/DataProcess5/"
            "QCParam.xml")));
        PropertyGridLayout layout;
        QCOMPARE(readPropertyGridLayout(file, layout), QString());
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

    void notesLimitsThatAreHardlyMeant()
    {
        basalt::Dictionary parameters;
        QCOMPARE(qualityParameterNote(parameters, "hdop_max"), QString());
        for (const auto& [key, value] : {std::pair("hdop_min", "7"), {"pdop_max", "-2.5"}})
            parameters.set(key, value);
        QVERIFY(!qualityParameterNote(parameters, "hdop_max").isEmpty());
        QVERIFY(!qualityParameterNote(parameters, "pdop_max").isEmpty()); // the minus is nothing
    }

    void keepsTheLimitsOfBothPages()
    {
        basalt::Dictionary parameters;
        parameters.set("rms_max", "-1"); // only a file edited by hand has it
        DlgQCParamSet dialog(nullptr, parameters);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        enter(dialog, "pdop_max", "4");
        pressOk(dialog);
        QVERIFY(dialog.isVisible());
        auto* const pages = dialog.findChild<QTabWidget*>();
        QCOMPARE(pages->currentIndex(), 1); // where the bad value is

        const auto* const view = pages->currentWidget()->findChild<QTreeView*>();
        const auto type = [&](const char* caption, const char* value) {
            const QModelIndex cell = cellOf(*view, caption);
            QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                              view->visualRect(cell).center());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(value));
        };
        type("RMS, max.", "0.05");
        type("Epochs, min.", "7"); // its editor stays open
        QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {},
                          pages->tabBar()->tabRect(0).center());
        pressOk(dialog);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(parameters.text("pdop_max") == "4");
        QVERIFY(parameters.text("rms_max") == "0.05");
        QVERIFY(parameters.text("epoch_num_min") == "7");
        QVERIFY2(!parameters.contains("occupation_min"),
                 "a limit that nobody has set is not stored");
    }

private:
    static void enter(DlgQCParamSet& dialog, const char* key, const char* value)
    {
        dialog.findChild<PropertyGridCtrl*>()->setValue(QLatin1String(key), QLatin1String(value));
    }
    /// The value of the row with this caption.
    static QModelIndex cellOf(const QTreeView& view, const char* caption)
    {
        const QAbstractItemModel& model = *view.model();
        const auto found = model.match(model.index(0, 0), Qt::DisplayRole, QLatin1String(caption),
                                       1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.value(0).siblingAtColumn(1);
    }
    static void pressOk(DlgQCParamSet& dialog)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    }
};

QTEST_MAIN(QualityDialogsTest)
#include "QualityDialogsTest.moc"
