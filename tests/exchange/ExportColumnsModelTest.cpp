#include "exchange/ExportColumnsModel.h"

#include "basalt_utilities/Dictionary.h"
#include "exchange/ExportColumns.h"
#include "model/SurveyColumns.h"

#include <QAbstractItemModelTester>
#include <QtTest>

class ExportColumnsModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theChoiceComesBackFromTheSettings();
    void rowsAreMoved();
    void lineAndPointNumberStay();
};

namespace {

QStringList keys(const ExportColumnsModel& model)
{
    QStringList all;
    for (int row = 0; row < model.rowCount(); ++row)
        all << model.index(row).data(Qt::UserRole).toString();
    return all;
}

} // namespace

void ExportColumnsModelTest::theChoiceComesBackFromTheSettings()
{
    ExportColumnsModel model;
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.chosenKeys().size(), surveyCaptions().size());
    QCOMPARE(model.index(2).data().toString(), QStringLiteral("point mark"));
    for (int row = 5; row < model.rowCount(); ++row)
        QVERIFY(model.setData(model.index(row), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(model.moveRow({}, 4, {}, 0));
    QVERIFY(model.moveRow({}, 20, {}, 1)); // unchecked: its place does not count
    basalt::Dictionary settings;
    model.store(settings);
    QCOMPARE(settings.text("survey_export_columns"),
             std::string_view("longitude,line_num,point_num,point_mark,latitude"));

    ExportColumnsModel again;
    again.load(settings);
    QCOMPARE(again.chosenKeys(), model.chosenKeys());
    QCOMPARE(keys(again).mid(4, 3),
             QStringList({QStringLiteral("latitude"), QStringLiteral("altitude"),
                          QStringLiteral("north")}));
    QCOMPARE(exportCaptions(exportColumns(settings)).first(), QStringLiteral("longitude"));
    again.reset();
    QCOMPARE(again.chosenKeys(), ExportColumnsModel().chosenKeys());

    settings.set("survey_export_columns", " north ,gone,point_num,north,,line_num");
    QCOMPARE(exportColumns(settings).join(QLatin1Char(',')),
             QStringLiteral("north,point_num,line_num"));
    settings.set("survey_export_columns", "gone");
    QCOMPARE(exportColumns(settings), again.chosenKeys());
}

void ExportColumnsModelTest::rowsAreMoved()
{
    ExportColumnsModel model;
    const QAbstractItemModelTester tester(&model);
    const QStringList before = keys(model);
    QVERIFY(model.moveRows({}, 1, 2, {}, 5)); // down
    QCOMPARE(keys(model).mid(0, 5),
             QStringList({before[0], before[3], before[4], before[1], before[2]}));
    QVERIFY(model.moveRows({}, 3, 2, {}, 1)); // up again
    QCOMPARE(keys(model), before);
    const int end = model.rowCount();
    QVERIFY(model.moveRow({}, 0, {}, end));
    QCOMPARE(keys(model).last(), before.first());
    for (const auto& [from, count, to] :
         {std::tuple(-1, 1, 3), std::tuple(end - 1, 2, 0), std::tuple(3, 2, 4), std::tuple(3, 0, 9),
          std::tuple(3, 1, end + 1), std::tuple(end, 1, 0)})
        QVERIFY(!model.moveRows({}, from, count, {}, to));
}

void ExportColumnsModelTest::lineAndPointNumberStay()
{
    ExportColumnsModel model;
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(model.index(0), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(!(model.index(1).flags() & Qt::ItemIsUserCheckable));
    QVERIFY(changes.isEmpty());
    QVERIFY(model.setData(model.index(2), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(changes.size(), 1);

    basalt::Dictionary settings;
    settings.set("survey_export_columns", "north");
    model.load(settings);
    QCOMPARE(model.chosenKeys().size(), 3);
}

QTEST_MAIN(ExportColumnsModelTest)
#include "ExportColumnsModelTest.moc"
