#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FilterHeader.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/DlgSurveyPoint.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TestFolder.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/DesignLineTable.h"
#include "views/tables/PointTableModel.h"
#include "views/tables/SurveyDataTable.h"

#include <QtTest>
#include <QtWidgets>

namespace {

using Button = LumMessageBox::Button;

SurveyPoint result(const std::string& line, const std::string& number, double rms = 0)
{
    SurveyPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
    point.rms = rms;
    return point;
}

DesignPoint designed(const std::string& line, const std::string& number)
{
    DesignPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
    return point;
}

constexpr const char* kOddLine = "L \"1\", 北 %1"; // a payload has to quote it

/// A table window as a user sees it.
class Seen
{
public:
    explicit Seen(QWidget& window) : m_window(window)
    {
        window.resize(900, 500);
        window.show();
    }

    [[nodiscard]] CustomTableWidget& table() const
    {
        return *m_window.findChild<CustomTableWidget*>();
    }
    [[nodiscard]] PointTableModel& model() const
    {
        return *qobject_cast<PointTableModel*>(table().model());
    }
    /// The column with this key.
    [[nodiscard]] int column(const char* key) const
    {
        for (int i = 0; i < model().columnCount(); ++i) {
            if (model().columnKey(i) == QLatin1String(key))
                return i;
        }
        return -1;
    }
    /// Line and point of each row.
    [[nodiscard]] QStringList rows() const
    {
        QStringList names;
        for (int row = 0; row < model().rowCount(); ++row)
            names << name(row);
        return names;
    }
    [[nodiscard]] QStringList selected() const
    {
        QStringList names;
        for (const int row : table().selectedRows())
            names << name(row);
        return names;
    }
    void click(int row, int column = 1, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(table().viewport(), Qt::LeftButton, keys, place(row, column));
    }
    /// Chooses an entry of the menu that a right click on a cell opens.
    void choose(const char* entry, int row, int column = 1) const
    {
        rightClick(row, column);
        chooseIn(entry);
    }
    void rightClick(int row, int column = 1) const
    {
        QWidget* const view = table().viewport();
        QTest::mousePress(view, Qt::RightButton, {}, place(row, column));
        QContextMenuEvent event(QContextMenuEvent::Mouse, place(row, column),
                                view->mapToGlobal(place(row, column)));
        QApplication::sendEvent(view, &event);
    }
    void drag(int fromRow, int toRow, int column = 1) const
    {
        QWidget* const view = table().viewport();
        QTest::mousePress(view, Qt::LeftButton, {}, place(fromRow, column));
        QMouseEvent move(QEvent::MouseMove, place(toRow, column), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(view, &move);
        QTest::mouseRelease(view, Qt::LeftButton, {}, place(toRow, column));
    }
    /// The same on the caption of a column.
    void chooseOfHeader(const char* entry, int column, const char* subEntry = nullptr) const
    {
        QHeaderView& header = *table().horizontalHeader();
        const QPoint at(header.sectionViewportPosition(column) + 15, 5);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, header.mapToGlobal(at));
        QApplication::sendEvent(header.viewport(), &event);
        chooseIn(entry, subEntry);
    }
    void filter(int column, const char* text) const
    {
        auto& header = *m_window.findChild<FilterHeader*>();
        const QPoint at(header.sectionViewportPosition(column) + 15, header.height() - 5);
        QWidget* const field = header.childAt(at);
        QTest::mouseClick(field, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, QString::fromUtf8(text));
        QTest::keyClick(field, Qt::Key_Return);
    }
    /// The text of the label, counts line included, that holds `part`; empty for none.
    [[nodiscard]] QString label(const char* part) const
    {
        for (const QLabel* const each : m_window.findChildren<QLabel*>()) {
            if (each->isVisible() && each->text().contains(QString::fromUtf8(part)))
                return each->text();
        }
        return {};
    }
    void followLink(const char* part) const
    {
        for (QLabel* const each : m_window.findChildren<QLabel*>()) {
            if (each->isVisible() && each->text().contains(QString::fromUtf8(part)))
                Q_EMIT each->linkActivated("#"_q);
        }
    }

private:
    [[nodiscard]] QPoint place(int row, int column) const
    {
        return table().visualRect(model().index(row, column)).center();
    }
    [[nodiscard]] QString name(int row) const
    {
        const QModelIndex first = model().index(row, 0);
        return first.data(262).toString() + QLatin1Char('/') + first.data(261).toString();
    }
    static void chooseIn(const char* entry, const char* subEntry = nullptr)
    {
        const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu != nullptr);
        for (QAction* const action : menu->actions()) {
            if (action->text() != QLatin1String(entry))
                continue;
            if (subEntry != nullptr)
                chooseFrom(*action->menu(), subEntry);
            else
                chooseFrom(*menu, entry);
            if (menu != nullptr)
                menu->close();
            return;
        }
        QFAIL("no such entry");
    }
    static void chooseFrom(QMenu& menu, const char* entry)
    {
        for (QAction* const action : menu.actions()) {
            if (action->text() == QLatin1String(entry)) {
                menu.popup({});
                menu.setActiveAction(action);
                QEventLoop loop; // as the program has; without one, a dialog's would end the menu
                QTimer::singleShot(0, &loop, [&] {
                    QTest::keyEvent(QTest::Press, &menu, Qt::Key_Return);
                    loop.quit();
                });
                loop.exec();
                return;
            }
        }
        QFAIL("no such entry");
    }

    QWidget& m_window;
};

/// The announcement of the point of a row.
std::string announcementOf(const Seen& seen, int row)
{
    const PointName name = seen.model().pointAt(row);
    return "pointName=" + name.point + ",lineName=" + name.line;
}

} // namespace

class PointTablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void eventsSayWhatIsShown();
    void aRowAnnouncesItsPoint();
    void aPointIsSelectedFromElsewhere();
    void aHiddenPointStaysTheSelectedOne();
    void longListsKeepTheirPlace();
    void sortsAndFiltersFromTheHeader();
    void anglesHaveRoomInEitherForm();
    void copiesRows();
    void exportsDesignRowsWithNumbersForTypeAndStatus();
    void exportsSurveyRowsOrTellsWhyNot();
    void deletesOnlyAfterAYes();
    void modifiesTheFirstOfTheSelectedRows();
    void theHeaderChoosesColumns();
    void nothingIsLeftOfAClosedProject();

private:
    void publish(const char* event, const QByteArray& payload = {})
    {
        m_host->events.publish(event, payload.isNull() ? nullptr : payload.constData(), 0);
    }
    SurveyPoints& results() { return m_manager->surveyPoints(); }
    DesignPoints& design() { return m_manager->designPoints(); }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<DataProcessDataManager> m_manager;
    QStringList m_told; ///< the texts of all boxes
    Button m_answer = Button::No;
    std::unique_ptr<LumMessageBox::Responder> m_responder;
};

void PointTablesTest::init()
{
    get_system_status_dictionary().clear();
    get_system_status_dictionary().set(status::kProjectOpen, "1");
    get_system_ini_parameter().dictionary().clear();
    m_host = std::make_unique<TestHost>();
    m_manager = std::make_unique<DataProcessDataManager>(m_host.get());
    for (const char* number : {"1", "2", "3", "4", "C10010001_0", "C10010001_1"})
        results().set(result("1001", number, number[0] == 'C' ? 9.5 : 10 + number[0] - '0'));
    results().set(result(kOddLine, "%2 \"7\""));
    for (const char* number : {"1", "2", "3"})
        design().set(designed("1001", number));
    design().set(designed("2002", "5"));
    m_told.clear();
    m_answer = Button::No;
    m_responder = std::make_unique<LumMessageBox::Responder>([this](const auto& message) {
        m_told << message.title + QLatin1Char('|') + message.text;
        return message.buttons.testFlag(m_answer) ? m_answer : Button::Ok;
    });
}

void PointTablesTest::cleanup()
{
    m_responder.reset();
    m_manager.reset();
    m_host.reset();
}

void PointTablesTest::eventsSayWhatIsShown()
{
    SurveyDataTable survey("", m_host.get());
    DesignLineTable lines("", m_host.get());
    const Seen results(survey);
    const Seen design(lines);
    const auto showsAll = [] {
        return get_system_status_dictionary().text(status::kShowAllLines) == "1";
    };
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    QCOMPARE(results.model().rowCount(), 7);
    QVERIFY(showsAll());
    publish("ON_SURVEY_LINE_SWITCHED", payload::line(QString::fromUtf8(kOddLine)));
    QCOMPARE(results.model().rowCount(), 1);
    QVERIFY(!showsAll() && results.label("No line").isEmpty());
    publish("ON_CLEAR_SURVEY_TABLE");
    QCOMPARE(results.model().rowCount(), 0);
    results.followLink("No line is shown");
    QCOMPARE(results.model().rowCount(), 7);
    QVERIFY(showsAll() && results.label("No line").isEmpty());

    publish("ON_DESIGN_LINE_SWITCHED", payload::line("2002"_q));
    QCOMPARE(design.rows(), QStringList("2002/5"_q));
    m_manager->designPoints().set(designed("2002", "6"));
    QCOMPARE(design.rows(), QStringList("/"_q)); // nobody has told the table
    publish("REFRESH_DESIGN_TABLE");
    QCOMPARE(design.rows(), (QStringList{"2002/5"_q, "2002/6"_q}));
    m_manager->designPoints().set(designed("2002", "7"));
    publish("ON_DESIGN_LINE_SWITCHED", payload::line("2002"_q)); // the tree was built anew
    QCOMPARE(design.model().rowCount(), 3);
    publish("ON_CLEAR_DESIGN_TABLE");
    QCOMPARE(design.model().rowCount(), 0);
    design.followLink("No line is shown");
    QCOMPARE(design.model().line(), "1001"_q);
}

void PointTablesTest::aRowAnnouncesItsPoint()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    const EventLog log(m_host->events, events::kSurveyPointSelected);
    seen.click(4);
    QTest::keyClick(&seen.table(), Qt::Key_Down);
    QTest::keyClick(&seen.table(), Qt::Key_Left); // the same row
    QTest::keyClick(&seen.table(), Qt::Key_Down);
    QTest::keyClick(&seen.table(), Qt::Key_Return);
    seen.click(1, 2);
    seen.click(3, 2, Qt::ControlModifier); // the first of the selected rows is told
    QStringList told;
    for (const std::string& payload : log.payloads())
        told << QString::fromStdString(payload).section(QLatin1Char(','), 0, 0);
    QCOMPARE(told, (QStringList{"pointName=C10010001_0"_q, "pointName=C10010001_1"_q,
                                "pointName=%2 \"7\""_q, "pointName=%2 \"7\""_q, "pointName=2"_q,
                                "pointName=2"_q}));
    QCOMPARE(log.payloads().front(), std::string("pointName=C10010001_0,lineName=1001"));
    QCOMPARE(seen.selected(), (QStringList{"1001/2"_q, "1001/4"_q}));
    QVERIFY(seen.label("Points: 7").endsWith("Selected: 2"_q));

    // What is selected by a drag or a right click is the point of the other windows, too.
    seen.drag(2, 4);
    QCOMPARE(seen.table().selectedRows(), (std::vector<int>{2, 3, 4}));
    QCOMPARE(log.payloads().back(), announcementOf(seen, 2));
    seen.rightClick(3); // within the selection, which stays
    QApplication::activePopupWidget()->close();
    QCOMPARE(log.payloads().back(), announcementOf(seen, 2));
    seen.rightClick(0);
    QApplication::activePopupWidget()->close();
    QCOMPARE(log.payloads().back(), announcementOf(seen, 0));
}

void PointTablesTest::aPointIsSelectedFromElsewhere()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    const EventLog log(m_host->events, events::kSurveyPointSelected);
    publish("ON_SURVEY_LINE_SWITCHED", payload::line(QString::fromUtf8(kOddLine)));
    publish("ON_SURVEY_TABLE_SELECT_POINT", payload::linePoint("1001"_q, "3"_q));
    QVERIFY(log.events.empty() && seen.selected().isEmpty()); // it is of another line
    QVERIFY(window.selectPoint("1001"_q, "3"_q));
    QCOMPARE(seen.selected(), QStringList("1001/3"_q));
    QCOMPARE(seen.model().line(), "1001"_q);
    publish("ON_SURVEY_TABLE_SELECT_POINT", payload::linePoint("1001"_q, "C10010001"_q));
    QCOMPARE(seen.selected(), QStringList("1001/C10010001_0"_q)); // found as it is shown
    QVERIFY(window.followPoint("1001"_q, "2"_q));
    QCOMPARE(seen.selected(), QStringList("1001/2"_q));
    QVERIFY(!window.followPoint("1001"_q, "99"_q) && !window.selectPoint("7"_q, "2"_q));
    QCOMPARE(seen.selected(), QStringList("1001/2"_q));
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    QCOMPARE(seen.selected(), QStringList("1001/2"_q));
    QVERIFY(window.selectPoint(QString::fromUtf8(kOddLine), "%2 \"7\""_q));
    QVERIFY(seen.model().showsAllLines());
    QCOMPARE(log.payloads().size(), 3U);
    QCOMPARE(log.payloads().at(1), std::string("pointName=C10010001_0,lineName=1001"));

    // Who follows the selection gives the answer to the table itself, too.
    struct Follower final : IEventHandler
    {
        explicit Follower(IPointList& follows) : list(follows) {}
        void handleEvent(const char* /*name*/, const char* /*payload*/, int /*reserved*/) override
        {
            list.followPoint("1001"_q, "1"_q);
        }
        IPointList& list;
    } follower(window);
    const EventSubscription subscription(follower, events::kSurveyPointSelected, m_host->events);
    seen.click(0);
    seen.click(2, 1, Qt::ControlModifier);
    QCOMPARE(seen.selected(), (QStringList{"1001/1"_q, "1001/3"_q}));
}

void PointTablesTest::aHiddenPointStaysTheSelectedOne()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    const int point = seen.column("point_num");
    seen.filter(point, "1..2");
    QCOMPARE(seen.rows(), (QStringList{"1001/1"_q, "1001/2"_q}));
    QVERIFY(!seen.label("2 of 7").isEmpty());
    const EventLog log(m_host->events, events::kSurveyPointSelected);
    QVERIFY(window.selectPoint("1001"_q, "4"_q));
    QCOMPARE(log.payloads(), std::vector<std::string>{"pointName=4,lineName=1001"});
    QVERIFY(seen.selected().isEmpty());
    seen.followLink("hide the selected point 4");
    QCOMPARE(seen.selected(), QStringList("1001/4"_q));
    QCOMPARE(seen.model().rowCount(), 7);
    QVERIFY(seen.label("hide").isEmpty());

    seen.filter(point, "nowhere");
    QVERIFY(!seen.label("No point passes").isEmpty() && !seen.label("hide").isEmpty());
    window.findChild<QToolButton*>()->click();
    QCOMPARE(seen.selected(), QStringList("1001/4"_q));
    seen.filter(point, "1..");
    QVERIFY2(seen.model().rowCount() > 0, "a filter with a fault hides nothing");
}

void PointTablesTest::longListsKeepTheirPlace()
{
    for (int number = 1000; number < 1500; ++number)
        results().set(result("5", std::to_string(number)));
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SURVEY_LINE_SWITCHED", payload::line("5"_q));
    QCoreApplication::processEvents();
    seen.table().verticalScrollBar()->setValue(200);
    seen.click(203);
    seen.click(205, 1, Qt::ControlModifier);
    const auto top = [&] { return seen.rows().at(seen.table().rowAt(0)); };
    QCOMPARE(top(), "5/1200"_q);
    for (int number = 1000; number < 1100; ++number)
        results().erase("5", std::to_string(number));
    publish("REFRESH_SURVEY_TABLE");
    QCOMPARE(top(), "5/1200"_q);
    QCOMPARE(seen.selected(), (QStringList{"5/1203"_q, "5/1205"_q}));
    QCOMPARE(seen.table().currentIndex(), seen.model().index(105, 1));
    const auto isInView = [&] {
        return seen.table().viewport()->rect().contains(
            seen.table().visualRect(seen.table().currentIndex()).center());
    };
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    QCOMPARE(seen.selected(), QStringList("5/1203"_q)); // the last that was announced
    QVERIFY(isInView());
    publish("ON_SHOW_ALL_SURVEY_TABLE"); // after a check, for example
    QCOMPARE(seen.selected(), QStringList("5/1203"_q));
    QVERIFY(window.selectPoint("1001"_q, "1"_q) && isInView());
    publish("ON_CLEAR_SURVEY_TABLE");
    QVERIFY(window.followPoint("5"_q, "1490"_q) && isInView());
    results().erase("5", "1490");
    publish("REFRESH_SURVEY_TABLE");
    QVERIFY(seen.selected().isEmpty());
}

void PointTablesTest::sortsAndFiltersFromTheHeader()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SURVEY_LINE_SWITCHED", payload::line("1001"_q));
    const int rms = seen.column("rms");
    seen.table().scrollTo(seen.model().index(0, rms));
    QHeaderView& header = *seen.table().horizontalHeader();
    const auto click = [&] {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(rms) + 15, 5});
    };
    click();
    QCOMPARE(seen.rows().front(), "1001/C10010001_0"_q); // 9.5 before 11
    click();
    QCOMPARE(seen.rows().front(), "1001/4"_q);
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    QCOMPARE(seen.rows().front(), "1001/4"_q); // the order survives a switch
    click();
    QCOMPARE(seen.rows().front(), "1001/1"_q);

    seen.choose("Filter by This Value", 1, rms);
    QCOMPARE(seen.rows(), QStringList("1001/2"_q));
    seen.filter(rms, "> 11.5");
    QCOMPARE(seen.rows(), (QStringList{"1001/2"_q, "1001/3"_q, "1001/4"_q}));
    seen.filter(rms, "> x");
    QVERIFY(!seen.label("Filter of \"").isEmpty());
    seen.filter(rms, "");
    QVERIFY(seen.label("Filter of").isEmpty());
    seen.table().scrollTo(seen.model().index(6, 0));
    seen.choose("Filter by This Value", 6, seen.column("line_num"));
    QCOMPARE(seen.rows().size(), 1); // quotes, comma and blanks of its name are taken as they are
    QVERIFY(seen.rows().front().startsWith(QString::fromUtf8(kOddLine)));
}

void PointTablesTest::anglesHaveRoomInEitherForm()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    const int latitude = seen.column("latitude");
    const int before = seen.table().columnWidth(latitude);
    get_system_status_dictionary().set(status::kDegreeFormat, "1");
    publish("ON_CLEAR_SURVEY_TABLE");
    seen.followLink("Show all lines");
    get_system_status_dictionary().remove(status::kDegreeFormat);
    QVERIFY(seen.table().columnWidth(latitude) > before);
}

void PointTablesTest::copiesRows()
{
    DesignLineTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_DESIGN_LINE_SWITCHED", payload::line("1001"_q));
    seen.click(0);
    seen.click(1, 1, Qt::ShiftModifier);
    seen.choose("copy", 1);
    const QString rows = "1\t1001\t0.000\t0.000\t0.000\t1\t0\tS\tnot surveyed\n"
                         "2\t1001\t0.000\t0.000\t0.000\t2\t0\tS\tnot surveyed\n"_q;
    QCOMPARE(QGuiApplication::clipboard()->text(), rows);
    QCOMPARE(m_told, QStringList("Success|Copied to Clipboard."_q));
    seen.choose("Copy with Headers", 1);
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY(copied.startsWith("point num\tline num\tnorth\t"_q) && copied.endsWith("\n"_q + rows));
    QGuiApplication::clipboard()->setText("before"_q);
    seen.table().clearSelection();
    QTest::keyClick(&seen.table(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "before"_q);
}

void PointTablesTest::exportsDesignRowsWithNumbersForTypeAndStatus()
{
    DesignPoint odd = designed("1001", "a,\nb");
    odd.type = 2;
    odd.status = 1;
    odd.north = 1234567.8916;
    odd.azimuth = 12.5;
    design().set(odd);
    design().find("1001", "2")->status = 3;
    DesignLineTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_DESIGN_LINE_SWITCHED", payload::line("1001"_q));
    const TestFolder folder;
    QString path = folder.path("点 a.csv");
    const FileDialog::Responder files([&](const auto& request) {
        m_told << request.title;
        return path;
    });
    seen.click(1);
    seen.click(3, 1, Qt::ControlModifier);
    seen.choose("export", 3);
    QCOMPARE(m_told.front(), "Export Selected Design Point"_q);
    QCOMPARE(TestFolder::read(path),
             QByteArray("point_num,line_num,north,east,elevation,design code,azimuth,type,status\n"
                        "2,1001,0.000,0.000,0.000,2,0,0,0\n"
                        "a, b,1001,1234567.892,0.000,0.000,a, b,12.5,1,1\n"));

    path = folder.write("project.db", "of the open project");
    get_system_status_dictionary().set(status::kProjectPath, folder.path().toStdString());
    get_system_status_dictionary().set(status::kProjectName, "project");
    m_answer = Button::Yes; // files may be replaced
    seen.choose("export", 3);
    QCOMPARE(m_told.back(), "Error|Export Failed!"_q);
    QCOMPARE(TestFolder::read(path), QByteArray("of the open project"));
}

void PointTablesTest::exportsSurveyRowsOrTellsWhyNot()
{
    m_manager->exportCaptions() = QStringList{"point num"_q, "line num"_q, "rms"_q};
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SURVEY_LINE_SWITCHED", payload::line("1001"_q));
    const TestFolder folder;
    QString path = folder.path("a.csv");
    const FileDialog::Responder files([&](const auto&) { return path; });
    seen.click(3);
    seen.click(5, 1, Qt::ControlModifier);
    seen.choose("export", 5);
    QCOMPARE(TestFolder::read(path),
             QByteArray("point num,line num,rms\n4,1001,14.0000\nC10010001,1001,9.5000\n"));
    m_manager->exportCaptions().removeFirst();
    m_answer = Button::Yes; // files may be replaced
    seen.choose("export", 5);
    QCOMPARE(m_told.back(), "Error|Export Failed!"_q);
    QVERIFY2(TestFolder::read(path).endsWith("9.5000\n"), "a file without rows replaced the old");
    m_manager->exportCaptions().prepend("point num"_q);
    m_told.clear();
    path = folder.path("folder.csv");
    QVERIFY(QDir().mkdir(path));
    seen.choose("export", 5);
    QCOMPARE(m_told.back(), "Error|Export Failed!"_q);
    path.clear(); // cancelled
    m_told.clear();
    seen.choose("export", 5);
    QVERIFY(m_told.isEmpty());
}

void PointTablesTest::deletesOnlyAfterAYes()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SURVEY_LINE_SWITCHED", payload::line("1001"_q));
    // As the tree does, which shows all lines when the points have changed.
    struct Tree final : IEventHandler
    {
        void handleEvent(const char* /*name*/, const char* /*payload*/, int /*reserved*/) override
        {
            manager->publish(events::kShowAllSurveyTable, nullptr, 0);
        }
        IEventManager* manager = nullptr;
    } tree;
    tree.manager = &m_host->events;
    const EventSubscription subscription(tree, events::kRefreshSurveyLayer, m_host->events);
    const EventLog log(m_host->events, events::kRefreshSurveyLayer);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    seen.click(1);
    seen.click(2, 1, Qt::ShiftModifier);
    QTest::keyClick(&seen.table(), Qt::Key_Delete);
    QCOMPARE(m_told, QStringList("warning|Are you sure to delete these records?"_q));
    QVERIFY(log.events.empty() && !m_manager->isChanged());
    m_answer = Button::Yes;
    seen.choose("delete", 2);
    QCOMPARE(seen.rows(),
             (QStringList{"1001/1"_q, "1001/4"_q, "1001/C10010001_0"_q, "1001/C10010001_1"_q}));
    QVERIFY(seen.selected().isEmpty() && m_manager->isChanged());
    QCOMPARE(log.events.size(), 1U);
    QTest::keyClick(&seen.table(), Qt::Key_Down);
    QCOMPARE(seen.selected(), QStringList("1001/4"_q)); // the keys go on from there
    QTest::keyClick(&seen.table(), Qt::Key_A, Qt::ControlModifier);
    seen.choose("delete", 0);
    QVERIFY(results().findLine("1001") == nullptr);
    QCOMPARE(seen.rows().size(), 1); // the line is gone; the tree's answer holds
}

void PointTablesTest::modifiesTheFirstOfTheSelectedRows()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    const EventLog log(m_host->events, events::kRefreshSurveyLayer);
    QStringList edited;
    QTimer asks;
    connect(&asks, &QTimer::timeout, this, [&] {
        auto* const dialog = qobject_cast<DlgSurveyPoint*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        edited << QString::fromStdString(dialog->point().point);
        dialog->reject();
    });
    asks.start(5);
    seen.click(4);
    seen.click(2, 1, Qt::ControlModifier);
    seen.choose("modify", 4);
    QCOMPARE(edited, QStringList("3"_q));
    QVERIFY(log.events.empty() && !m_manager->isChanged());
    QCOMPARE(seen.selected(), (QStringList{"1001/3"_q, "1001/C10010001_0"_q}));
}

void PointTablesTest::theHeaderChoosesColumns()
{
    SurveyDataTable window("", m_host.get());
    const Seen seen(window);
    const EventLog log(m_host->events, events::kSurveyColumnsChanged);
    const auto choice = [] { return columnChoice(get_system_ini_parameter().dictionary()); };
    const int mark = seen.column("point_mark");
    seen.chooseOfHeader("Hide This Column", mark);
    QVERIFY(seen.table().isColumnHidden(mark));
    QCOMPARE(choice().hidden, QStringList("point_mark"_q));
    seen.chooseOfHeader("Columns", 0, "point mark");
    QVERIFY(!seen.table().isColumnHidden(mark) && choice().hidden.isEmpty());
    seen.table().horizontalHeader()->moveSection(0, 1);
    QCOMPARE(choice().order.mid(0, 3), (QStringList{"point_num"_q, "line_num"_q, "point_mark"_q}));
    QCOMPARE(log.events.size(), 3U);
    seen.chooseOfHeader("Survey Columns...", mark); // no such command here

    ColumnChoice other = choice();
    other.hidden = other.order;
    other.hidden.removeOne("rms"_q);
    setColumnChoice(get_system_ini_parameter().dictionary(), other);
    publish("ON_SURVEY_COLUMNS_CHANGED");
    QCOMPARE(seen.table().horizontalHeader()->hiddenSectionCount(), seen.model().columnCount() - 1);
    seen.chooseOfHeader("Hide This Column", seen.column("rms")); // the last one stays
    QVERIFY(!seen.table().isColumnHidden(seen.column("rms")));
}

void PointTablesTest::nothingIsLeftOfAClosedProject()
{
    SurveyDataTable survey("", m_host.get());
    const Seen seen(survey);
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    seen.filter(seen.column("point_num"), "1");
    seen.click(0);
    m_manager->clear();
    get_system_status_dictionary().set(status::kProjectOpen, "0");
    publish("UPDATE_SYSTEM_STATUS_EVENT");
    QCOMPARE(seen.model().rowCount(), 0);
    QVERIFY(!seen.model().isFiltered() && !seen.label("No project is open").isEmpty());
    QVERIFY(!survey.selectPoint("1001"_q, "1"_q));
    m_manager.reset(); // the program ends
    publish("REFRESH_SURVEY_TABLE");
    publish("ON_SHOW_ALL_SURVEY_TABLE");
    QCOMPARE(seen.model().rowCount(), 0);
    survey.grab();
}

QTEST_MAIN(PointTablesTest)
#include "PointTablesTest.moc"
