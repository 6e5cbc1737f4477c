#pragma once

#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "project/DBAdapter.h"
#include "project/history/HistoryAuthor.h"
#include "project/PointCorrection.h"
#include "project/ProjectCreator.h"
#include "project/ui/EditSteps.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "tests/project/OpenProject.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/PopupMenu.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"
#include "views/history/DlgHistory.h"
#include "views/history/HistoryCommand.h"
#include "views/history/HistoryFilterBar.h"

#include <QAbstractItemModelTester>

/// Goes after the manager, which has a lock in it.
struct ProjectFolder
{
    TestFolder root;
};

/// A saved project with the results 1 to 9 of line 1001, and the history window's command.
struct HistoryProject : ProjectFolder, OpenProject
{
    HistoryProject()
    {
        QDir().mkpath(place.folder);
        basalt::Dictionary project;
        ProjectCreator::describe(place, project);
        isOpen =
            ProjectCreator::create(place, project).isDone() && manager->openProject(place).isDone();
        QByteArray rows = "line num,point num,remarks,surveyor\n";
        for (const char number : std::string("123456789"))
            rows += QByteArray("1001,") + number + ",dry,Li\n";
        manager->importSurveyCsv(root.write("points.csv", rows));
        save();
    }
    ~HistoryProject()
    {
        tellProject(""); // closes the window
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void save() { isOpen = manager->saveProject(place).isDone() && isOpen; }
    void remark(const char* number, const char* text)
    {
        SurveyCorrection correction;
        correction.remarks = text;
        manager->correctSurveyPoint({"1001", number}, correction);
    }
    void remove(std::initializer_list<const char*> numbers)
    {
        std::vector<PointName> names;
        for (const char* number : numbers)
            names.push_back({"1001", number});
        manager->deleteSurveyPoints(names);
    }
    [[nodiscard]] std::string remarksOf(const char* number)
    {
        const SurveyPoint* const point = results().find("1001", number);
        return point == nullptr ? "(gone)" : point->remarks;
    }

    ProjectPlace place = ProjectPlace::planned(root.path(), "测区 1"_q);
    bool isOpen = false;
    EditSteps steps{host};
    HistoryCommand command{"", &host};
};

/// The window, driven by mouse and keys.
struct Shown
{
    explicit Shown(HistoryProject& project)
    {
        project.command.execute();
        window = findWindow<DlgHistory>();
    }
    [[nodiscard]] CustomTableWidget& table(const char* name) const
    {
        return *window->findChild<CustomTableWidget*>(QLatin1String(name));
    }
    /// Cells of columns, row by row: "a|b".
    [[nodiscard]] QStringList cells(const char* name, const std::vector<int>& columns) const
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents(); // a step is announced later, and shown then
        const QAbstractItemModel& model = *table(name).model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList texts;
            for (const int column : columns)
                texts << model.index(row, column).data().toString();
            rows << texts.join(QLatin1Char('|'));
        }
        return rows;
    }
    [[nodiscard]] QStringList actions() const
    {
        return cells("actions", {HistoryActionModel::Action, HistoryActionModel::State});
    }
    [[nodiscard]] QStringList changes() const
    {
        return cells("items",
                     {HistoryItemModel::Point, HistoryItemModel::Change, HistoryItemModel::Field,
                      HistoryItemModel::Before, HistoryItemModel::After});
    }
    void click(const char* name, int row, int column, Qt::KeyboardModifiers keys = {}) const
    {
        CustomTableWidget& view = table(name);
        const QModelIndex cell = view.model()->index(row, column);
        view.scrollTo(cell);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, view.visualRect(cell).center());
    }
    void choose(int action) const { click("actions", action, HistoryActionModel::Action); }
    void select(int change, Qt::KeyboardModifiers keys = {}) const
    {
        click("items", change, HistoryItemModel::Change, keys);
    }
    void press(const char* button) const
    {
        ::press(*window, button);
        QCoreApplication::processEvents();
    }
    static constexpr int kTyped = 400; ///< milliseconds until a filter is used
    void typePoint(const char* text) const
    {
        auto* const field =
            window->findChild<HistoryFilterBar*>()->findChild<QLineEdit*>(QStringLiteral("point"));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(text));
        QTest::qWait(kTyped);
    }
    /// Right-clicks a cell.
    [[nodiscard]] QMenu* menuAt(const char* name, int row) const
    {
        CustomTableWidget& view = table(name);
        return openMenuAt(*view.viewport(), {5, view.rowViewportPosition(row) + 3});
    }
    [[nodiscard]] QString label(const char* name) const
    {
        return window->findChild<QLabel*>(QLatin1String(name))->text();
    }

    QPointer<DlgHistory> window;
};
