#include "views/tables/ColumnListModel.h"

#include "tests/support/Literals.h"

#include <QAbstractItemModelTester>
#include <QtTest>

class ColumnListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOrderAndAChoiceAreTaken();
    void rowsAreMoved();
    void whatIsNeededAndTheLastOneStayChecked();
};

namespace {

/// Columns a, b, c ...; the first of them are needed.
std::vector<ColumnListModel::Column> columns(int count, int needed = 0)
{
    std::vector<ColumnListModel::Column> all;
    for (int i = 0; i < count; ++i)
        all.push_back({QString(QChar(u'a' + i)), "column %1"_q.arg(i), i < needed});
    return all;
}

QString order(const ColumnListModel& model)
{
    return model.allKeys().join(QString());
}

} // namespace

void ColumnListModelTest::anOrderAndAChoiceAreTaken()
{
    ColumnListModel model(columns(6, 1));
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.checkedKeys().size(), 6);
    QCOMPARE(model.index(2).data().toString(), "column 2"_q);
    model.set({"e"_q, "gone"_q, "c"_q}, {"c"_q, "gone"_q, "d"_q});
    QCOMPARE(order(model), "ecabdf"_q);
    QCOMPARE(model.checkedKeys().join(QString()), "cad"_q);
    QCOMPARE(model.uncheckedKeys().join(QString()), "ebf"_q);
    model.reset();
    QCOMPARE(model.checkedKeys().join(QString()), "abcdef"_q);
}

void ColumnListModelTest::rowsAreMoved()
{
    ColumnListModel model(columns(6));
    const QAbstractItemModelTester tester(&model);
    QVERIFY(model.moveRows({}, 1, 2, {}, 5)); // down
    QCOMPARE(order(model), "adebcf"_q);
    QVERIFY(model.moveRows({}, 3, 2, {}, 1)); // up again
    QCOMPARE(order(model), "abcdef"_q);
    QVERIFY(model.moveRow({}, 0, {}, 6));
    QCOMPARE(order(model), "bcdefa"_q);
    for (const auto& [from, count, to] :
         {std::tuple(-1, 1, 3), std::tuple(5, 2, 0), std::tuple(3, 2, 4), std::tuple(3, 0, 5),
          std::tuple(3, 1, 7), std::tuple(6, 1, 0)})
        QVERIFY(!model.moveRows({}, from, count, {}, to));
}

void ColumnListModelTest::whatIsNeededAndTheLastOneStayChecked()
{
    ColumnListModel model(columns(3, 1));
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(model.index(0), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!(model.index(0).flags() & Qt::ItemIsUserCheckable));
    QVERIFY(changes.isEmpty());
    QVERIFY(model.setData(model.index(1), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(changes.size(), 1);

    ColumnListModel free(columns(2));
    QVERIFY(free.setData(free.index(1), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!free.setData(free.index(0), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(free.checkedKeys(), QStringList("a"_q));
}

QTEST_MAIN(ColumnListModelTest)
#include "ColumnListModelTest.moc"
