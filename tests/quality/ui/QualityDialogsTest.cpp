#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Paths.h"
#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "quality/QualityLimits.h"
#include "quality/ui/DlgQCParamSet.h"
#include "tests/support/TestFolder.h"

#include <QPushButton>
#include <QtTest>

/// The dialog of the limits.
class QualityDialogsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesAGoodCodeAndRefusesABadOne();
    void asksToMendAFileEditedByHand();
    void asksForWhatTheToolAccepts();

private:
    static void enter(DlgQCParamSet& dialog, const char* key, const char* value)
    {
        dialog.findChild<PropertyGridCtrl*>()->setValue(QLatin1String(key), QLatin1String(value));
    }
    static void pressOk(DlgQCParamSet& dialog)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>(), Qt::LeftButton);
    }
};

void QualityDialogsTest::takesAGoodCodeAndRefusesABadOne()
{
    QStringList told;
    const LumMessageBox::Responder responder([&](const auto& message) {
        told << message.title << message.text;
        return LumMessageBox::Button::Ok;
    });
    basalt::Dictionary parameters;
    parameters.set("kept", "x");
    DlgQCParamSet dialog(nullptr, parameters);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Quality Specification"));
    dialog.show();
    enter(dialog, "pdop_max", "4");
    enter(dialog, "re_code", "c");
    pressOk(dialog);
    QVERIFY(dialog.isVisible());
    QCOMPARE(told, (QStringList{QStringLiteral("提示"),
                                QStringLiteral("请确认输入的复测代码是不为' C '的单个字母")}));
    QCOMPARE(parameters.size(), std::size_t(1));
    enter(dialog, "re_code", "g");
    pressOk(dialog);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(parameters.text("re_code") == "G");
    QVERIFY(parameters.text("pdop_max") == "4");
    QVERIFY(parameters.text("kept") == "x");
}

void QualityDialogsTest::asksToMendAFileEditedByHand()
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

/// The control file of the dialog allows the same values as the table that the command line uses.
void QualityDialogsTest::asksForWhatTheToolAccepts()
{
    const QByteArray file = TestFolder::read(QString::fromStdString(
        basalt::resolvedPath("$(APP_DIR)/../etc/Tarvona/config/Skyquill/ControlXml/DataProcess5/"
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

QTEST_MAIN(QualityDialogsTest)
#include "QualityDialogsTest.moc"
