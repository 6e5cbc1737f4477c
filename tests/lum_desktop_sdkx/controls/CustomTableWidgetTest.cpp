#include "lum_desktop_sdkx/controls/CustomTableWidget.h"

#include "tests/support/Literals.h"

#include <QtTest>
#include <QtWidgets>

namespace {

/// A model of many rows without data of its own. It remembers the lowest row that was read.
class WideModel : public QAbstractTableModel
{
public:
    WideModel(int rows, int columns) : m_rows(rows), m_columns(columns) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : m_columns;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        deepestRow = std::max(deepestRow, index.row());
        return QString::number(index.row()) + QLatin1Char('/') + QString::number(index.column());
    }
    void reset(int rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }

    mutable int deepestRow = -1;

private:
    int m_rows;
    int m_columns;
};

void fill(QStandardItemModel& model)
{
    model.setHorizontalHeaderLabels({"point"_q, "secret"_q, "height"_q, "remarks"_q});
    const auto row = [&model](const char* point, double height, const char* remarks) {
        auto* const number = new QStandardItem;
        number->setData(height, Qt::DisplayRole);
        model.appendRow({new QStandardItem(QString::fromUtf8(point)), new QStandardItem("x"_q),
                         number, new QStandardItem(QString::fromUtf8(remarks))});
    };
    row("A", 1.5, "树 tree");
    row("B", 2.5, "two\tcells\nor lines");
    row("C", 3.5, "");
}

} // namespace

class CustomTableWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesTheSelectedRowsAsTheyAreShown()
    {
        QStandardItemModel model;
        fill(model);
        QSortFilterProxyModel sorted;
        sorted.setSourceModel(&model);
        sorted.sort(0, Qt::DescendingOrder); // C, B, A
        CustomTableWidget table;
        table.setLocale(QLocale(QLocale::German));
        table.setModel(&sorted);
        table.setHiddenColumns({"secret"_q});
        table.horizontalHeader()->moveSection(2, 0); // height in front
        table.show();

        table.selectRow(2);
        table.selectionModel()->select(sorted.index(1, 3),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        table.selectionModel()->select(sorted.index(2, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);

        QCOMPARE(QGuiApplication::clipboard()->text(),
                 "2,5\tB\ttwo cells or lines\n1,5\tA\t树 tree\n"_q);
    }

    void leavesTheClipboardWithoutASelection()
    {
        WideModel model(3, 2);
        CustomTableWidget table;
        QGuiApplication::clipboard()->setText("before"_q);
        table.copySelection();
        table.setModel(&model);
        table.copySelection();
        QCOMPARE(QGuiApplication::clipboard()->text(), "before"_q);
    }

    void copiesHundredsOfThousandsOfRows()
    {
        WideModel model(200'000, 2);
        CustomTableWidget table;
        table.setModel(&model);
        table.selectAll();
        const QString text = table.selectedRowsText();
        QCOMPARE(text.count(QLatin1Char('\n')), 200'000);
        QVERIFY(text.endsWith("\n199999/0\t199999/1\n"_q));
    }

    void fitsColumnsFromTheFirstRowsAndOnlyOnce()
    {
        WideModel model(0, 2);
        CustomTableWidget table;
        table.setModel(&model);
        const int empty = table.columnWidth(1);
        table.setFont(QFont(table.font().family(), 30)); // now the cells are wider than the caption
        model.reset(500'000);
        QVERIFY(table.columnWidth(1) > empty);
        QVERIFY(model.deepestRow < 100);

        table.setColumnWidth(1, 333);
        model.reset(1000);
        QCOMPARE(table.columnWidth(1), 333);
    }

    void hidesColumnsByCaptionAlsoAfterAReset()
    {
        QStandardItemModel model;
        fill(model);
        CustomTableWidget table;
        table.setHiddenColumns({"height"_q, "no such"_q});
        table.setModel(&model);
        QVERIFY(table.isColumnHidden(2) && !table.isColumnHidden(1));
        model.clear();
        fill(model);
        QVERIFY(table.isColumnHidden(2) && !table.isColumnHidden(1));
        table.setHiddenColumns({"secret"_q});
        QVERIFY(!table.isColumnHidden(2) && table.isColumnHidden(1));
    }

    void bringsARowIntoViewWithoutMovingSideways()
    {
        WideModel model(500'000, 43);
        CustomTableWidget table;
        table.resize(300, 200);
        table.setModel(&model);
        table.show();
        table.horizontalScrollBar()->setValue(700);

        for (const int row : {499'999, 250'000}) {
            table.showRow(row);
            const QRect place = table.visualRect(model.index(row, 0));
            QVERIFY(place.top() >= 0 && place.bottom() < table.viewport()->height());
            QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
            QCOMPARE(table.currentIndex().row(), row);
            QCOMPARE(table.horizontalScrollBar()->value(), 700);
        }
        table.showRow(500'000);
        table.showRow(-1);
        QCOMPARE(table.currentIndex().row(), 250'000);
    }

    void asksForAMenuOnACell()
    {
        WideModel model(2, 2);
        CustomTableWidget table;
        table.resize(300, 300);
        table.setModel(&model);
        table.show();
        const QSignalSpy asked(&table, &CustomTableWidget::contextMenuRequestedAt);
        const auto rightClick = [&table](const QPoint& place) {
            QTest::mousePress(table.viewport(), Qt::RightButton, {}, place);
            QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                    table.viewport()->mapToGlobal(place));
            QApplication::sendEvent(table.viewport(), &event);
        };
        const QPoint place = table.visualRect(model.index(1, 1)).center();
        rightClick(place);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(asked.at(0).at(0).toModelIndex(), model.index(1, 1));
        QCOMPARE(asked.at(0).at(1).toPoint(), table.viewport()->mapToGlobal(place));
        QVERIFY(table.selectionModel()->isRowSelected(1, {}));
        rightClick(table.viewport()->rect().bottomRight() - QPoint(5, 5)); // below the last row
        QCOMPARE(asked.count(), 1);
    }
};

QTEST_MAIN(CustomTableWidgetTest)
#include "CustomTableWidgetTest.moc"
