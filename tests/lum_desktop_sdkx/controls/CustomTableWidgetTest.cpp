#include "lum_desktop_sdkx/controls/CustomTableWidget.h"

#include "lum_desktop_sdkx/controls/FilterHeader.h"
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
        ++reads;
        return QString::number(index.row()) + QLatin1Char('/') + QString::number(index.column());
    }
    void reset(int rows)
    {
        beginResetModel();
        m_rows = rows;
        endResetModel();
    }

    mutable int deepestRow = -1;
    mutable int reads = 0;

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

QString clipboardText()
{
    return QGuiApplication::clipboard()->text();
}

/// A table of 20 rows and 4 columns that can be seen as a whole.
struct WideTable
{
    WideTable() : model(20, 4)
    {
        table.setModel(&model);
        table.resize(600, 600);
        for (int column = 0; column < 4; ++column)
            table.setColumnWidth(column, 100);
        table.show();
    }
    [[nodiscard]] QPoint at(int row, int column) const
    {
        return table.visualRect(model.index(row, column)).center();
    }
    void drag(const QPoint& from, const QList<QPoint>& over)
    {
        QWidget* const view = table.viewport();
        QTest::mousePress(view, Qt::LeftButton, {}, from);
        for (const QPoint& place : over) {
            QMouseEvent move(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(view, &move);
        }
        QTest::mouseRelease(view, Qt::LeftButton, {}, over.back());
    }

    WideModel model;
    CustomTableWidget table;
};

/// The field that shows its column at a place of the strip, from the left; null for none.
QLineEdit* fieldAt(const FilterHeader& header, int x)
{
    return qobject_cast<QLineEdit*>(header.childAt(x, header.height() - 5));
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
        for (const int row : {2, 1, 2})
            table.selectionModel()->select(sorted.index(row, 3),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);

        QCOMPARE(clipboardText(), "2,5\tB\ttwo cells or lines\n1,5\tA\t树 tree\n"_q);
    }

    void fitsColumnsFromSomeRowsAndOnlyOnce()
    {
        WideModel model(0, 2);
        CustomTableWidget table;
        table.setModel(&model);
        const int empty = table.columnWidth(1);
        table.setFont(QFont(table.font().family(), 30)); // now the cells are wider than the caption
        model.reset(500'000);
        QVERIFY(table.columnWidth(1) > empty);
        QVERIFY(model.reads <= 2 * 50);
        QVERIFY2(model.deepestRow > 400'000, "long texts may stand far below");

        table.setColumnWidth(1, 333);
        model.reset(1000);
        QCOMPARE(table.columnWidth(1), 333);
    }

    void aDragSelectsRowsInItsColumnAndElseARectangle()
    {
        WideTable wide;
        wide.drag(wide.at(2, 1), {wide.at(3, 1), wide.at(4, 1)});
        QTest::keyClick(&wide.table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboardText(), "2/0\t2/1\t2/2\t2/3\n3/0\t3/1\t3/2\t3/3\n"
                                  "4/0\t4/1\t4/2\t4/3\n"_q);

        wide.table.horizontalHeader()->moveSection(2, 1); // 0 2 1 3
        wide.drag(wide.at(6, 2), {wide.at(7, 1), wide.at(7, 3)});
        QTest::keyClick(&wide.table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboardText(), "6/2\t6/1\t6/3\n7/2\t7/1\t7/3\n"_q);
        QTest::keyClick(&wide.table, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(clipboardText(), "3\t2\t4\n6/2\t6/1\t6/3\n7/2\t7/1\t7/3\n"_q);
        QCOMPARE(wide.table.selectedRows(), (std::vector<int>{6, 7}));
        QCOMPARE(wide.table.selectedRowsText(), "6/0\t6/2\t6/1\t6/3\n7/0\t7/2\t7/1\t7/3\n"_q);

        wide.drag(wide.at(6, 2), {wide.at(7, 1), wide.at(7, 2)}); // there and back
        QVERIFY(wide.table.selectionModel()->isRowSelected(7, {}));
        QTest::keyClick(&wide.table, Qt::Key_Down);
        QCOMPARE(wide.table.selectedRows(), std::vector<int>{8});
        QVERIFY(wide.table.selectionModel()->isRowSelected(8, {}));
        QTest::keyClick(&wide.table, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(wide.table.selectedRowCount(), 20);
    }

    void aCaptionSortsUpDownAndNotAtAll()
    {
        WideTable wide;
        QHeaderView& header = *wide.table.horizontalHeader();
        QStringList asked;
        connect(&wide.table, &CustomTableWidget::orderRequested, this,
                [&](int column, Qt::SortOrder order) {
                    asked << QString::number(column) +
                                 (order == Qt::AscendingOrder ? " up"_q : " down"_q);
                    QCOMPARE(header.sortIndicatorSection(), column);
                    QCOMPARE(header.sortIndicatorOrder(), order);
                });
        const auto click = [&](int column) {
            QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                              {header.sectionViewportPosition(column) + 20, 5});
            QVERIFY(!wide.table.selectionModel()->hasSelection());
        };
        click(1);
        QVERIFY2(asked.isEmpty(), "without sorting a click on a caption does nothing");
        wide.table.enableSorting();
        QCOMPARE(header.sortIndicatorSection(), -1);
        for (const int column : {1, 1, 1, 1, 2})
            click(column);
        QCOMPARE(asked, (QStringList{"1 up"_q, "1 down"_q, "-1 up"_q, "1 up"_q, "2 up"_q}));
    }

    void filterFieldsKeepToTheirColumns()
    {
        WideTable wide;
        FilterHeader& header = wide.table.addFilterRow();
        wide.table.resize(250, 300);
        QCoreApplication::processEvents();
        const auto widths = [&](int column) { return header.sectionSize(column); };
        header.resizeSection(0, 120);
        QLineEdit* const first = fieldAt(header, 60);
        QVERIFY(first != nullptr && qAbs(first->width() - widths(0)) < 5);
        QVERIFY(first->mapTo(&wide.table, QPoint()).y() < wide.table.viewport()->y());
        header.moveSection(0, 1);
        QLineEdit* const second = fieldAt(header, 10);
        QVERIFY(second != first && fieldAt(header, widths(1) + 60) == first);
        wide.table.setHiddenColumns({"2"_q}); // column 1
        QCOMPARE(fieldAt(header, 10), first);
        QVERIFY(!second->isVisible());

        first->setFocus();
        QTest::keyClick(first, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // to the last, beyond the edge
        QWidget* const last = QApplication::focusWidget();
        QVERIFY(qobject_cast<QLineEdit*>(last) != nullptr && last != first);
        QVERIFY(wide.table.horizontalScrollBar()->value() > 0);
        QVERIFY(last->mapTo(&header, last->rect().topRight()).x() <= header.viewport()->width());
        QTest::keyClick(last, Qt::Key_Down);
        QVERIFY(wide.table.hasFocus());
    }

    void filterFieldsAnnounceWhatIsTyped()
    {
        WideTable wide;
        FilterHeader& header = wide.table.addFilterRow();
        QCoreApplication::processEvents();
        QStringList heard;
        connect(&header, &FilterHeader::filterEdited, this, [&](int column, const QString& text) {
            heard << QString::number(column) + QLatin1Char(':') + text;
        });
        QLineEdit* const first = fieldAt(header, 10);
        QLineEdit* const second = fieldAt(header, header.sectionSize(0) + 10);
        first->setFocus();
        QTest::keyClicks(first, "> 5"_q);
        QVERIFY(heard.isEmpty());
        QTRY_COMPARE(heard, QStringList("0:> 5"_q)); // once, after the last key
        QTest::keyClicks(first, "0"_q);
        second->setFocus();
        QTest::keyClicks(second, "a"_q);
        QTest::keyClick(second, Qt::Key_Return);
        QCOMPARE(heard, (QStringList{"0:> 5"_q, "0:> 50"_q, "1:a"_q}));
        header.setFault(1, "no number"_q);
        QCOMPARE(second->toolTip(), "no number"_q);
        QVERIFY(second->palette().color(QPalette::Text) != first->palette().color(QPalette::Text));
        QTest::keyClick(second, Qt::Key_Escape);
        QCOMPARE(heard.back(), "1:"_q);
        QVERIFY(second->text().isEmpty() && second->hasFocus());
        QTest::keyClick(second, Qt::Key_Escape);
        QVERIFY(wide.table.hasFocus());
        QTest::keyClicks(first, "1"_q);
        header.setFilter(0, "other"_q); // the program was faster than the delay
        QTest::qWait(300);
        QCOMPARE(header.filter(0), "other"_q);
        QVERIFY(!heard.contains("0:other"_q));
    }
};

QTEST_MAIN(CustomTableWidgetTest)
#include "CustomTableWidgetTest.moc"
