#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_sdk/Text.h"
#include "project/PointCorrection.h"
#include "project/ui/DlgSurveyPoint.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "quality/ui/DataInspectionCommand.h"
#include "quality/ui/DlgRepeatPtCheck.h"
#include "quality/ui/EmptyPointCheckCommand.h"
#include "quality/ui/RepeatPointCheckCommand.h"
#include "quality/ui/ReSurveyPointCheckCommand.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Points.h"
#include "tests/support/TestFolder.h"
#include "views/AttributeControl.h"
#include "views/find/FindBar.h"
#include "views/problems/ProblemTableModel.h"
#include "views/problems/ProblemWindow.h"
#include "views/SelectionFollower.h"
#include "views/tables/DesignLineTable.h"
#include "views/tables/PointTableModel.h"
#include "views/tables/SurveyDataTable.h"
#include "views/trees/DesignLineControl.h"
#include "views/trees/SurveyDataControl.h"

#include <QAbstractItemModelTester>
#include <QtTest>
#include <QtWidgets>

#include <random>

namespace {

constexpr int kSteps = 1200;
constexpr int kLines = 9;
constexpr int kPointsPerLine = 12;

std::string name(int number)
{
    // Among them numbers that sort oddly, and names that no file would have.
    static const std::string kNames[kLines] = {
        "1001", "10", "9", "线一", "L \"1\", north", "%1", "1e3", " 10 ", std::string(1000, '%')};
    return number < kLines ? kNames[number] : std::to_string(1000 + number);
}

template <class Command>
void execute(IDesktopHost& host)
{
    Command("", &host).execute();
}

/// The windows of the working place, and their points.
struct Place : OpenProject
{
    Place()
    {
        const std::pair<const char*, IWindow*> kWindows[] = {
            {"DataMap", &map},
            {"DesignLineTable", &designTable},
            {"Design Data List", &designTable},
            {"SurveyDataTable", &surveyTable},
            {"Survey Data List", &surveyTable},
            {"Design Lines", &designTree},
            {"Survey Lines", &surveyTree},
            {"Problems List", &problems},
        };
        for (const auto& [title, window] : kWindows)
            host.windowRegistry.windows[QString::fromLatin1(title)] = window;
        host.frame = &frame;
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&frame, &map, &designTable, &surveyTable, &designTree,
                                             &surveyTree, &attributes, &problems}) {
            widget->resize(600, 300);
            widget->show();
        }
        FindBar::of(host)->open();
    }
    ~Place()
    {
        closeResults();
        host.frame = nullptr;
    }

    void closeResults()
    {
        if (found != nullptr)
            found->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QMainWindow frame;
    QPointer<ResultList> found; ///< by a check
    MapWindow map{"name=DataMap", &host};
    DesignLineTable designTable{"", &host};
    SurveyDataTable surveyTable{"", &host};
    DesignLineControl designTree{"", &host};
    SurveyDataControl surveyTree{"", &host};
    AttributeControl attributes{"", &host};
    ProblemWindow problems{"", &host};
    SelectionFollower follower{host};
};

} // namespace

/// A random walk over the windows of the working place, while the points change below them, with
/// the event that tells of it and without. What a row holds must be the project's, or nothing; the
/// sanitizers see the rest.
class WorkingPlaceWalkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noRowPointsToNothing_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 3; ++seed)
            QTest::newRow(std::to_string(seed).c_str()) << seed;
    }

    void noRowPointsToNothing()
    {
        QFETCH(unsigned, seed);
        m_random.seed(seed);
        const LumMessageBox::Responder answers([this](const auto& message) {
            if (anyOf(2) == 0)
                disturb();
            return anyOf(2) == 0 && message.buttons & LumMessageBox::Button::Yes
                       ? LumMessageBox::Button::Yes
                       : LumMessageBox::Button::No;
        });
        const FileDialog::Responder noFile([](const auto& /*request*/) { return QString(); });
        m_place = std::make_unique<Place>();
        watchModels();
        static constexpr Step kWalk[] = {
            &WorkingPlaceWalkTest::addPoints,     &WorkingPlaceWalkTest::addPoints,
            &WorkingPlaceWalkTest::openProject,   &WorkingPlaceWalkTest::removeQuietly,
            &WorkingPlaceWalkTest::check,         &WorkingPlaceWalkTest::correct,
            &WorkingPlaceWalkTest::showSomething, &WorkingPlaceWalkTest::selectByEvent,
            &WorkingPlaceWalkTest::clickRow,      &WorkingPlaceWalkTest::deleteRows,
            &WorkingPlaceWalkTest::importFile,    &WorkingPlaceWalkTest::clickResult,
            &WorkingPlaceWalkTest::chooseOfMenu,  &WorkingPlaceWalkTest::chooseOfMenu,
            &WorkingPlaceWalkTest::editAttribute, &WorkingPlaceWalkTest::find,
            &WorkingPlaceWalkTest::sortRows,      &WorkingPlaceWalkTest::filterRows,
            &WorkingPlaceWalkTest::clickTree,     &WorkingPlaceWalkTest::deleteLine,
            &WorkingPlaceWalkTest::pressKeys,     &WorkingPlaceWalkTest::walkProblems};
        for (int step = 0; step < kSteps && !QTest::currentTestFailed(); ++step) {
            if (step == 100)
                m_testers.clear();
            if (anyOf(60) == 0)
                closeProject();
            else if (anyOf(200) == 0)
                renewManager();
            else
                (this->*kWalk[anyOf(int(std::size(kWalk)))])();
            if (anyOf(3) == 0) {
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            look(m_place->designTable, true);
            look(m_place->surveyTable, false);
        }
        m_testers.clear();
        m_place->manager.reset(); // as at the program's end, before the windows
        m_place.reset();
    }

private:
    using Step = void (WorkingPlaceWalkTest::*)();

    int anyOf(int count) { return std::uniform_int_distribution<int>(0, count - 1)(m_random); }
    PointName anyPoint() { return {name(anyOf(kLines + 1)), name(anyOf(kPointsPerLine + 1))}; }

    PointTableWindow& anyTable()
    {
        if (anyOf(2) == 0)
            return m_place->designTable;
        return m_place->surveyTable;
    }

    CustomTableWidget& rowsOf(PointTableWindow& table)
    {
        return *table.findChild<CustomTableWidget*>();
    }

    QTreeWidget& treeOf(bool isDesign)
    {
        QWidget& window =
            isDesign ? static_cast<QWidget&>(m_place->designTree) : m_place->surveyTree;
        return *window.findChild<QTreeWidget*>();
    }

    void tellNewPoints()
    {
        m_place->publish(events::kRefreshDesignLayer);
        m_place->publish(events::kRefreshSurveyLayer);
    }

    void addPoints()
    {
        for (int i = anyOf(40); i > 0; --i) {
            const PointName at = anyPoint();
            m_place->design().set(designPoint(at.line, at.point, anyOf(2)));
            const int kind = anyOf(4);
            SurveyPoint result = surveyPoint(at.line, kind == 0   ? 'C' + at.point
                                                      : kind == 1 ? at.point + 'F'
                                                                  : at.point);
            result.north = anyOf(1000);
            result.pdop = anyOf(20);
            m_place->results().set(std::move(result));
        }
        if (anyOf(3) != 0)
            tellNewPoints();
    }

    void openProject()
    {
        OpenProject::status().set(status::kProjectOpen, "1");
        OpenProject::status().set(status::kProjectPath, std::to_string(anyOf(3)));
        m_place->publish(events::kUpdateSystemStatus);
        tellNewPoints();
    }

    void closeProject()
    {
        m_place->manager->clear();
        OpenProject::status().set(status::kProjectOpen, "0");
        if (anyOf(2) == 0)
            tellNewPoints();
        m_place->publish(events::kUpdateSystemStatus);
    }

    void renewManager()
    {
        m_place->manager.reset();
        look(m_place->designTable, true);
        look(m_place->surveyTable, false);
        if (anyOf(2) == 0)
            tellNewPoints();
        m_place->manager = std::make_unique<DataProcessDataManager>(&m_place->host);
    }

    /// Nobody tells the windows.
    void removeQuietly()
    {
        const PointName at = anyPoint();
        m_place->manager->designPoints().erase(at.line, at.point);
        m_place->manager->surveyPoints().eraseLine(anyPoint().line);
        if (anyOf(10) == 0)
            m_place->manager->surveyPoints() = SurveyPoints();
    }

    void importFile()
    {
        const QString path = m_folder.write(
            "results.csv", "line num,point num,pdop\n1001,10,3\n1001,10,4\n%1,%1,5\n线一,9,1\n");
        m_place->manager->importSurveyCsv(path);
        tellNewPoints();
    }

    /// What may happen while the user thinks.
    void disturb()
    {
        static constexpr Step kWays[] = {
            &WorkingPlaceWalkTest::removeQuietly, &WorkingPlaceWalkTest::addPoints,
            &WorkingPlaceWalkTest::correct, &WorkingPlaceWalkTest::closeProject};
        if (anyOf(2) == 0)
            (this->*kWays[anyOf(int(std::size(kWays)))])();
    }

    void check()
    {
        static constexpr void (*kChecks[])(IDesktopHost & host) = {
            execute<DataInspectionCommand>, execute<EmptyPointCheckCommand>,
            execute<ReSurveyPointCheckCommand>, execute<RepeatPointCheckCommand>};
        m_place->closeResults();
        kChecks[anyOf(int(std::size(kChecks)))](m_place->host);
        m_place->found = m_place->frame.findChild<ResultList*>();
        QVERIFY(m_place->found != nullptr);
    }

    void clickResult()
    {
        auto* const list =
            m_place->found == nullptr ? nullptr : m_place->found->findChild<CustomTableWidget*>();
        if (list == nullptr || list->model()->rowCount() == 0)
            return;
        const QModelIndex cell = list->model()->index(anyOf(list->model()->rowCount()), 0);
        list->scrollTo(cell);
        const QPoint at = list->visualRect(cell).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        if (anyOf(3) == 0)
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
        if (anyOf(2) != 0 || qobject_cast<DlgRepeatPtCheck*>(m_place->found) == nullptr)
            return;
        disturb();
        if (m_place->found == nullptr || !m_place->found->isVisible()) // its project was closed
            return;
        QContextMenuEvent request(QContextMenuEvent::Mouse, at, list->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(list->viewport(), &request);
        if (QWidget* const menu = QApplication::activePopupWidget()) {
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return); // deletes
        }
    }

    void correct()
    {
        SurveyCorrection correction;
        correction.antennaHeightM = anyOf(3);
        if (anyOf(2) == 0)
            correction.lineNumber = "moved";
        m_place->manager->correctSurveyPoint(anyPoint(), correction);
        m_place->manager->correctDesignPoint(anyPoint(),
                                             {.elevationM = anyOf(9), .azimuthDeg = {}});
        m_place->publish(anyOf(2) == 0 ? events::kRefreshSurveyTable : events::kRefreshSurveyLayer);
    }

    void showSomething()
    {
        const QByteArray line = payload::line(lum::toQString(anyPoint().line));
        static constexpr const char* kEvents[] = {
            events::kDesignLineSwitched, events::kSurveyLineSwitched, events::kShowAllSurveyTable,
            events::kShowAllSurveyTable, events::kClearDesignTable,   events::kClearSurveyTable};
        m_place->publish(kEvents[anyOf(6)], line);
    }

    void selectByEvent()
    {
        const PointName at = anyPoint();
        const QString line = lum::toQString(at.line);
        const QString point = lum::toQString(at.point);
        const QByteArray table = payload::linePoint(line, point);
        const QByteArray map = payload::selectedPoint(point, line);
        switch (anyOf(6)) {
        case 0:
            return m_place->publish(events::kDesignTableSelectPoint, table);
        case 1:
            return m_place->publish(events::kSurveyTableSelectPoint, table);
        case 2:
            return m_place->publish(events::kDesignPointSelected, map);
        case 3:
            return m_place->publish(events::kSurveyPointSelected, map);
        case 4:
            static_cast<void>(m_place->designTable.selectPoint(line, point));
            return;
        default:
            static_cast<void>(m_place->surveyTable.selectPoint(line, point));
        }
    }

    void clickRow()
    {
        CustomTableWidget& rows = rowsOf(anyTable());
        if (rows.model()->rowCount() == 0)
            return;
        const QModelIndex cell = rows.model()->index(anyOf(rows.model()->rowCount()), anyOf(3));
        rows.scrollTo(cell);
        const auto modifiers = anyOf(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
        if (anyOf(10) == 0)
            QTest::keyClick(&rows, Qt::Key_A, Qt::ControlModifier);
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, modifiers,
                          rows.visualRect(cell).center());
        if (anyOf(4) == 0)
            QTest::mouseDClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(cell).center());
    }

    void pressKeys()
    {
        CustomTableWidget& rows = rowsOf(anyTable());
        QTest::keyClick(&rows, anyOf(2) == 0 ? Qt::Key_Down : Qt::Key_Up,
                        anyOf(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        QTest::keyClick(&rows, anyOf(4) == 0 ? Qt::Key_A : Qt::Key_C, Qt::ControlModifier);
    }

    void deleteRows()
    {
        clickRow();
        QTest::keyClick(&rowsOf(m_place->surveyTable), Qt::Key_Delete);
    }

    /// Any entry of the menu of a table or a tree, while the menu is open and things change.
    void chooseOfMenu()
    {
        clickRow();
        clickTree();
        const bool isTable = anyOf(3) != 0;
        QAbstractItemView* const view =
            isTable ? &rowsOf(m_place->surveyTable)
                    : static_cast<QAbstractItemView*>(&treeOf(anyOf(2) == 0));
        const QPoint at = view->visualRect(view->currentIndex()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view->viewport()->mapToGlobal(at));
        QApplication::sendEvent(view->viewport(), &event);
        const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr)
            return;
        disturb();
        QTimer::singleShot(0, this, &WorkingPlaceWalkTest::answerEditor);
        menu->actions().at(anyOf(menu->actions().size()))->trigger();
        if (menu != nullptr)
            menu->close();
        QCoreApplication::processEvents();
    }

    void answerEditor()
    {
        auto* const editor = qobject_cast<DlgSurveyPoint*>(QApplication::activeModalWidget());
        if (editor == nullptr)
            return;
        disturb();
        const QList<QLineEdit*> fields = editor->findChildren<QLineEdit*>();
        fields.at(anyOf(fields.size()))->setText(lum::toQString(anyPoint().line).left(20));
        editor->grab();
        QTest::keyClick(editor, anyOf(3) == 0 ? Qt::Key_Escape : Qt::Key_Return);
        if (editor->isVisible()) // what it was given is refused
            editor->reject();
    }

    void editAttribute()
    {
        for (QTreeView* const grid : m_place->attributes.findChildren<QTreeView*>()) {
            if (!grid->isVisible() || grid->model()->rowCount() == 0)
                continue;
            const QModelIndex group = grid->model()->index(anyOf(grid->model()->rowCount()), 0);
            const QModelIndex row = grid->model()->index(anyOf(6), 1, group);
            grid->scrollTo(row);
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(row).center());
            const QPointer<QLineEdit> editor = grid->findChild<QLineEdit*>();
            if (editor == nullptr)
                continue;
            editor->setText(QString::number(anyOf(12)));
            disturb();
            if (editor != nullptr)
                QTest::keyClick(editor, anyOf(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
            QCoreApplication::processEvents(); // the editor enters its text later
        }
    }

    void find()
    {
        FindBar& bar = *FindBar::of(m_place->host);
        bar.findChild<QLineEdit*>()->setText(lum::toQString(anyPoint().point));
        disturb();
        bar.step(anyOf(2) == 0);
        bar.grab();
    }

    void sortRows()
    {
        auto& model = static_cast<PointTableModel&>(*rowsOf(anyTable()).model());
        model.sortBy(anyOf(model.columnCount() + 1) - 1,
                     anyOf(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
    }

    void filterRows()
    {
        static const char* const kFilters[] = {"", "> 300", "1001..1004", "!1", "> x", "线"};
        auto& model = static_cast<PointTableModel&>(*rowsOf(anyTable()).model());
        model.setFilter(anyOf(model.columnCount()), QString::fromUtf8(kFilters[anyOf(6)]));
        if (anyOf(3) == 0)
            model.clearFilters();
    }

    /// Uses the list of problems in any way, be it old or not.
    void walkProblems()
    {
        ProblemWindow& window = m_place->problems;
        auto& model = *window.findChild<ProblemTableModel*>();
        if (anyOf(2) == 0)
            window.find();
        if (anyOf(4) == 0)
            model.sortBy(anyOf(model.columnCount()), Qt::DescendingOrder);
        if (anyOf(4) == 0)
            model.setSearch(lum::toQString(name(anyOf(kLines))));
        for (int i = anyOf(4); i > 0; --i)
            window.step(anyOf(3) != 0);
        if (anyOf(3) == 0)
            disturb();
        const QList<QAction*> actions = window.findChildren<QAction*>();
        QTimer::singleShot(0, this, [] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        actions.at(anyOf(actions.size()))->trigger();
        QCoreApplication::processEvents();
        if (anyOf(3) == 0)
            window.grab();
    }

    void clickTree()
    {
        QTreeWidget& tree = treeOf(anyOf(2) == 0);
        QTreeWidgetItem* item = tree.topLevelItem(0);
        for (int steps = anyOf(kLines + 3); item != nullptr && steps > 0; --steps)
            item = tree.itemBelow(item);
        if (item == nullptr)
            return;
        tree.scrollToItem(item);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
    }

    void deleteLine()
    {
        clickTree();
        QTest::keyClick(&treeOf(false), Qt::Key_Delete);
    }

    /// For a while: a tester looks at every cell again and again.
    void watchModels()
    {
        for (PointTableWindow* const table :
             std::initializer_list<PointTableWindow*>{&m_place->designTable, &m_place->surveyTable})
            m_testers.push_back(std::make_unique<QAbstractItemModelTester>(
                rowsOf(*table).model(), QAbstractItemModelTester::FailureReportingMode::QtTest));
    }

    /// Reads what the table shows, as its view does, and compares its rows with the project.
    void look(PointTableWindow& table, bool isDesign)
    {
        CustomTableWidget& rows = rowsOf(table);
        auto& model = static_cast<PointTableModel&>(*rows.model());
        if (anyOf(3) == 0)
            table.grab();
        QVERIFY(model.rowCount() <= model.unfilteredCount());
        for (int row = 0; row < model.rowCount(); ++row) {
            for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole),
                                   int(Qt::BackgroundRole), PointTableModel::kPointNumberRole})
                static_cast<void>(model.index(row, row % model.columnCount()).data(role));
            const PointName at = model.pointAt(row);
            if (at.line.empty())
                continue; // the points have changed, and nobody has told the table
            QVERIFY(m_place->manager != nullptr);
            const bool isThere =
                isDesign ? m_place->manager->designPoints().find(at.line, at.point) != nullptr
                         : m_place->manager->surveyPoints().find(at.line, at.point) != nullptr;
            QVERIFY2(isThere, (at.line + '/' + at.point).c_str());
            QCOMPARE(model.rowOf(at), row);
        }
    }

    TestFolder m_folder;
    std::unique_ptr<Place> m_place;
    std::vector<std::unique_ptr<QAbstractItemModelTester>> m_testers;
    std::mt19937 m_random;
};

QTEST_MAIN(WorkingPlaceWalkTest)
#include "WorkingPlaceWalkTest.moc"
