#pragma once

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "tests/project/OpenProject.h"
#include "tests/support/PopupMenu.h"
#include "views/tables/PointTableModel.h"

/// A table window on the screen, driven by mouse and keys.
template <class Window>
class ShownTable
{
public:
    /// `event` chooses what it shows.
    explicit ShownTable(OpenProject& project, const char* event = nullptr,
                        const QByteArray& payload = {})
        : window("", &project.host), table(*window.template findChild<CustomTableWidget*>()),
          model(*qobject_cast<PointTableModel*>(table.model()))
    {
        window.resize(900, 500);
        window.show();
        if (event != nullptr)
            project.publish(event, payload);
    }

    /// The column with this key.
    [[nodiscard]] int column(const char* key) const
    {
        int column = 0;
        while (column < model.columnCount() && model.columnKey(column) != QLatin1String(key))
            ++column;
        return column;
    }
    /// LINE/POINT of each row.
    [[nodiscard]] QStringList rows() const
    {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names << name(row);
        return names;
    }
    [[nodiscard]] QStringList selected() const
    {
        QStringList names;
        for (const int row : table.selectedRows())
            names << name(row);
        return names;
    }
    [[nodiscard]] bool isInView(const QModelIndex& cell) const
    {
        return table.viewport()->rect().contains(table.visualRect(cell).center());
    }

    void click(int row, int column = 1, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, keys, place(row, column));
    }
    void drag(int fromRow, int toRow) const
    {
        QWidget* const view = table.viewport();
        QTest::mousePress(view, Qt::LeftButton, {}, place(fromRow, 1));
        QMouseEvent move(QEvent::MouseMove, place(toRow, 1), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(view, &move);
        QTest::mouseRelease(view, Qt::LeftButton, {}, place(toRow, 1));
    }
    QMenu* rightClick(int row, int column = 1) const
    {
        QTest::mousePress(table.viewport(), Qt::RightButton, {}, place(row, column));
        return openMenuAt(*table.viewport(), place(row, column));
    }
    /// Chooses an entry of the menu of a cell.
    void choose(const char* entry, int row, int column = 1) const
    {
        closing(rightClick(row, column),
                [&](QMenu& menu) { chooseFrom(&menu, QLatin1String(entry)); });
    }
    /// The same of the caption of a column. The menu may lead to another one.
    void chooseOfHeader(int column, const char* entry, const char* subEntry = nullptr) const
    {
        QHeaderView& header = *table.horizontalHeader();
        const QPoint place(header.sectionViewportPosition(column) + 15, 5);
        closing(openMenuAt(*header.viewport(), place), [&](QMenu& menu) {
            for (QAction* const action : menu.actions()) {
                if (subEntry != nullptr && action->text() == QLatin1String(entry))
                    return chooseFrom(action->menu(), QLatin1String(subEntry));
            }
            chooseFrom(&menu, QLatin1String(entry));
        });
    }
    void filter(int column, const char* text) const
    {
        auto& header = *window.template findChild<FilterHeader*>();
        QWidget* const field =
            header.childAt({header.sectionViewportPosition(column) + 15, header.height() - 5});
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, QString::fromUtf8(text));
        QTest::keyClick(field, Qt::Key_Return);
    }

    /// The label that holds `part`; null when none is seen.
    [[nodiscard]] QLabel* label(const char* part) const
    {
        for (QLabel* const each : window.template findChildren<QLabel*>()) {
            if (each->isVisible() && each->text().contains(QString::fromUtf8(part)))
                return each;
        }
        return nullptr;
    }
    void followLink(const char* part) const
    {
        QVERIFY2(label(part) != nullptr, part);
        Q_EMIT label(part)->linkActivated(QStringLiteral("#"));
    }

    Window window;
    CustomTableWidget& table;
    PointTableModel& model;

private:
    [[nodiscard]] QPoint place(int row, int column) const
    {
        return table.visualRect(model.index(row, column)).center();
    }
    [[nodiscard]] QString name(int row) const
    {
        const QModelIndex first = model.index(row, 0);
        return first.data(PointTableModel::kLineNumberRole).toString() + QLatin1Char('/') +
               first.data(PointTableModel::kPointNumberRole).toString();
    }
    template <class Choose>
    static void closing(const QPointer<QMenu>& menu, const Choose& choose)
    {
        QVERIFY(menu != nullptr);
        choose(*menu);
        if (menu != nullptr)
            menu->close();
    }
};
