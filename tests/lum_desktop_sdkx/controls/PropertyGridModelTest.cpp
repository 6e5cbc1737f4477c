#include "lum_desktop_sdkx/controls/PropertyGridModel.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace {

const QByteArray kGrid = "<property_grid>"
                         "<group caption='Limits'>"
                         "<row key='dist' caption='Distance' editor='number' min='0' max='10'"
                         " decimals='2' unit='m' default='3'/>"
                         "<row key='count' caption='Count' editor='integer'/></group>"
                         "<group caption='Empty'/>"
                         "<group caption='Other'>"
                         "<row key='on' caption='On' editor='flag'/>"
                         "<row key='path' caption='Path' read_only='1' editor='number' min='0'/>"
                         "</group></property_grid>";

PropertyGridLayout layout(const QByteArray& xml = kGrid)
{
    PropertyGridLayout result;
    const QString fault = readPropertyGridLayout(xml, result);
    Q_ASSERT_X(fault.isEmpty(), "layout", qPrintable(fault));
    return result;
}

} // namespace

class PropertyGridModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheRulesOfAModel();
    void keepsEveryByteThatCameIn();
    void marksStoredFaultsThatTheUserCanMend();
    void aMarkGivesWayToWhatIsTyped();
    void showsAnExponentAsItIsTyped();
    void showsADefaultWithoutStoringIt();
    void tellsEditsButNotProgrammaticChanges();
};

void PropertyGridModelTest::keepsTheRulesOfAModel()
{
    PropertyGridModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setLayout(layout());
    basalt::Dictionary values;
    values.set("dist", "5");
    model.setValues(values);
    QVERIFY(model.setData(model.indexOfKey(QStringLiteral("dist")), QStringLiteral("bad"),
                          Qt::EditRole));
    model.setLayout(layout("<property_grid><group caption='G'/></property_grid>"));
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(!model.indexOfKey(QStringLiteral("dist")).isValid());
}

void PropertyGridModelTest::keepsEveryByteThatCameIn()
{
    basalt::Dictionary values;
    values.set("dist", "5.0000000000000001"); // more decimals than may be typed
    values.set("path", std::string_view("a\xff\0b", 4));
    values.set("no row", "\xe7\x82");
    values.set("count", "007");

    PropertyGridModel model;
    model.setLayout(layout());
    model.setValues(values);
    QVERIFY(!model.hasFaults());
    const QModelIndex count = model.indexOfKey(QStringLiteral("count"));
    QVERIFY(!model.setData(count, count.data(Qt::EditRole), Qt::EditRole));
    QVERIFY(model.setData(model.indexOfKey(QStringLiteral("on")), Qt::Checked, Qt::CheckStateRole));

    const basalt::Dictionary& after = model.values();
    QCOMPARE(after.size(), values.size() + 1);
    for (std::size_t i = 0; i < values.size(); ++i) {
        QVERIFY(after.keyAt(i) == values.keyAt(i));
        QVERIFY(after.valueAt(i) == values.valueAt(i));
    }
    QVERIFY(after.text("on") == "1");
}

void PropertyGridModelTest::marksStoredFaultsThatTheUserCanMend()
{
    basalt::Dictionary values;
    values.set("dist", "-2.5");
    values.set("path", "-1"); // below its limit, but read-only
    values.set("count", "");  // never filled in
    PropertyGridModel model;
    model.setLayout(layout());
    model.setValues(values);

    const QModelIndex dist = model.indexOfKey(QStringLiteral("dist"));
    QCOMPARE(model.fault(dist), QStringLiteral("Enter a number from 0 m to 10 m."));
    QVERIFY(model.fault(model.indexOfKey(QStringLiteral("path"))).isEmpty());
    QVERIFY(model.fault(model.indexOfKey(QStringLiteral("count"))).isEmpty());
    QVERIFY(model.values().text("dist") == "-2.5");

    model.setValue(QStringLiteral("dist"), QStringLiteral("2.5"));
    QVERIFY(!model.hasFaults());
}

void PropertyGridModelTest::aMarkGivesWayToWhatIsTyped()
{
    PropertyGridModel model;
    model.setLayout(layout());
    model.setValues(basalt::Dictionary());
    const QString distKey = QStringLiteral("dist");
    const QString countKey = QStringLiteral("count");
    const QString reason = QStringLiteral("Too far for so few.");
    const QModelIndex dist = model.indexOfKey(distKey);
    const QModelIndex count = model.indexOfKey(countKey);

    QVERIFY(model.setData(count, QStringLiteral("1"), Qt::EditRole));
    model.mark(countKey, reason);
    QCOMPARE(model.firstFault(), count);
    QCOMPARE(count.data(Qt::ToolTipRole).toString(), reason);
    model.mark(distKey, reason);
    QVERIFY(model.fault(count).isEmpty());
    QCOMPARE(dist.data().toString(), QStringLiteral("3 m")); // the value stays as it is shown

    QVERIFY(model.setData(dist, QStringLiteral("11"), Qt::EditRole));
    model.mark(distKey, reason);
    QCOMPARE(model.fault(dist), QStringLiteral("Enter a number from 0 m to 10 m."));
    model.mark({}, {});
    QVERIFY(model.hasFaults()); // what was typed is still there

    QVERIFY(model.setData(dist, QStringLiteral("4"), Qt::EditRole));
    model.mark(distKey, reason);
    QVERIFY(model.setData(dist, QStringLiteral("5"), Qt::EditRole));
    QVERIFY(!model.hasFaults() && !model.firstFault().isValid());
}

void PropertyGridModelTest::showsAnExponentAsItIsTyped()
{
    basalt::Dictionary values;
    PropertyGridModel model;
    model.setLayout(layout("<property_grid><group caption='G'>"
                           "<row key='east' caption='East' editor='number' unit='m'/>"
                           "<row key='a3' caption='a3' editor='number'/>"
                           "<row key='note' caption='Note'/></group></property_grid>"));
    values.set("east", "-2.5e+06");
    values.set("a3", "1.5e-09");
    values.set("note", "2e6");
    model.setValues(values);
    const QModelIndex east = model.indexOfKey(QStringLiteral("east"));
    QCOMPARE(east.data().toString(), QStringLiteral("-2500000 m"));
    QVERIFY(!model.setData(east, east.data(Qt::EditRole), Qt::EditRole));
    QVERIFY(model.values().text("east") == "-2.5e+06");
    model.setUnit(QStringLiteral("east"), QStringLiteral("ft"));
    QCOMPARE(east.data().toString(), QStringLiteral("-2500000 ft"));
    QCOMPARE(model.indexOfKey(QStringLiteral("a3")).data().toString(), QStringLiteral("1.5e-09"));
    QCOMPARE(model.indexOfKey(QStringLiteral("note")).data().toString(), QStringLiteral("2e6"));
}

void PropertyGridModelTest::showsADefaultWithoutStoringIt()
{
    PropertyGridModel model;
    model.setLayout(layout());
    model.setValues(basalt::Dictionary());
    const QModelIndex dist = model.indexOfKey(QStringLiteral("dist"));
    QCOMPARE(dist.data().toString(), QStringLiteral("3 m"));
    QVERIFY(!model.values().contains("dist"));
}

void PropertyGridModelTest::tellsEditsButNotProgrammaticChanges()
{
    PropertyGridModel model;
    model.setLayout(layout());
    model.setValues(basalt::Dictionary());
    const QSignalSpy edited(&model, &PropertyGridModel::valueEdited);
    const QModelIndex dist = model.indexOfKey(QStringLiteral("dist"));

    model.setValue(QStringLiteral("dist"), QStringLiteral("4"));
    QVERIFY(model.setData(dist, QStringLiteral("11"), Qt::EditRole));
    QVERIFY(model.setData(dist, QStringLiteral("4"), Qt::EditRole)); // back to the good value
    QCOMPARE(edited.count(), 0);
    QVERIFY(!model.hasFaults());

    QVERIFY(model.setData(dist, QStringLiteral("5"), Qt::EditRole));
    QCOMPARE(edited.count(), 1);
    const QModelIndex path = model.indexOfKey(QStringLiteral("path"));
    QVERIFY(!model.setData(path, QStringLiteral("5"), Qt::EditRole));
}

QTEST_GUILESS_MAIN(PropertyGridModelTest)
#include "PropertyGridModelTest.moc"
