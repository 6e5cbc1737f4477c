#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectCreator.h"
#include "project/ProjectPlace.h"
#include "project/RecentProjects.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "tests/support/TestFolder.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>
#include <QtTest>

namespace {

constexpr const char* kLayout =
    SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml";

/// The menus and tool bars as they are installed, without the windows.
FrameLayout installedMenus()
{
    FrameLayout layout;
    QFile file(QString::fromUtf8(kLayout));
    if (!file.open(QIODevice::ReadOnly) ||
        !desktop::readFrameLayout(file.readAll(), layout).isEmpty())
        qFatal("no layout in %s", kLayout);
    layout.windows.clear();
    return layout;
}

using Button = LumMessageBox::Button;

/// Events of these names as they are heard: a line each, with the state that their handlers see,
/// the status keys and the title of the frame. `project` is the open one; none when it is empty.
QByteArray heard(std::initializer_list<const char*> names, const QByteArray& project)
{
    QByteArray lines;
    for (const char* name : names)
        lines += name + (project.isEmpty()
                             ? QByteArray(" 0|||Program\n")
                             : " 1|" + project + '|' + project + '|' + project + "[*] - Program\n");
    return lines;
}

/// What is heard when a project is opened or, with an empty name, closed.
QByteArray changeTo(const QByteArray& project)
{
    return heard({"REFRESH_DESIGN_LAYER", "REFRESH_SURVEY_LAYER", "UPDATE_SYSTEM_STATUS_EVENT"},
                 project);
}

class Heard final : public IEventHandler
{
public:
    Heard(IEventManager& manager, const QWidget& frame)
        : m_frame(frame),
          m_subscription(*this,
                         "REFRESH_DESIGN_LAYER,REFRESH_SURVEY_LAYER,UPDATE_SYSTEM_STATUS_EVENT,"
                         "ON_PROJECT_CHANGED,ON_SETTING_VIEW_FINISHED,REFRESH_SURVEY_TABLE,"
                         "ON_CLEAR_SURVEY_TABLE",
                         manager)
    {
    }
    void handleEvent(const char* name, const char* /*payload*/, int /*reserved*/) override
    {
        const IDictionary& values = get_system_status_dictionary();
        const std::string folder(values.text(status::kProjectPath));
        lines += name + QByteArray(" ") +
                 std::to_string(values.integer(status::kProjectOpen)).c_str() + '|' +
                 folder.substr(folder.rfind('/') + 1).c_str() + '|' +
                 std::string(values.text(status::kProjectName)).c_str() + '|' +
                 m_frame.windowTitle().toUtf8() + '\n';
    }
    QByteArray lines;

private:
    const QWidget& m_frame;
    EventSubscription m_subscription;
};

/// The dialog that stands in front, once there is one; then `act` is called with it.
void whenDialog(const char* className, std::function<void(QDialog&)> act)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || qstrcmp(dialog->metaObject()->className(), className) != 0)
            return;
        timer->deleteLater();
        timer->stop();
        act(*dialog);
    });
    timer->start(5);
}

void press(QDialog& dialog, const char* text)
{
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == QString::fromUtf8(text)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(text);
}

void apply(QDialog& settings)
{
    press(settings, "Apply");
}

/// Chooses a system of the register on the second page of the project settings, and applies.
void applySystem(QDialog& settings, const char* code)
{
    settings.findChild<QListWidget*>()->setCurrentRow(1);
    auto* const search = settings.findChild<QLineEdit*>();
    QTest::keyClicks(search, QString::fromLatin1(code));
    QTest::keyClick(search, Qt::Key_Down);
    QTest::keyClick(search, Qt::Key_Return);
    apply(settings);
}

void type(QDialog& dialog, const char* field, const QString& text)
{
    auto* const edit = dialog.findChild<QLineEdit*>(QString::fromUtf8(field));
    edit->selectAll();
    edit->insert(text); // key events are Latin
}

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

std::string coordParameter(const char* key)
{
    return std::string(get_project_coord_transform().parameters().text(key));
}

} // namespace

/// The life of a project through the commands of a whole frame.
class ProjectCommandsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<DesktopHost> m_host;
    std::unique_ptr<MainFrame> m_frame;
    std::unique_ptr<Heard> m_heard;
    QByteArray m_asked;               ///< a line "title: text" for each message box
    QString m_details;                ///< of the last one
    Button m_onEnter = Button::Ok;    ///< its default button; Ok without a named one
    QHash<QString, Button> m_answers; ///< by text; Yes, else Ok
    QString m_chosenFile;
    std::unique_ptr<LumMessageBox::Responder> m_messages;
    std::unique_ptr<FileDialog::Responder> m_files;

    void run(const char* command)
    {
        QVERIFY(m_host->commands().execute(QString::fromUtf8(command)));
    }
    [[nodiscard]] ProjectPlace place(const char* name) const
    {
        return ProjectPlace::planned(m_folder->path(), QString::fromUtf8(name));
    }
    void makeProject(const char* name) const
    {
        QVERIFY(QDir().mkpath(place(name).folder));
        basalt::Dictionary project;
        ProjectCreator::describe(place(name), project);
        QVERIFY(ProjectCreator::create(place(name), project).isDone());
    }
    void open(const char* name)
    {
        QVERIFY(m_frame->openFile(place(name).file));
        QVERIFY(isOpen());
        m_asked.clear();
        m_heard->lines.clear();
    }
    void newProject(const char* name, std::function<void(QDialog&)> inSettings = apply)
    {
        whenDialog("DlgNewProject", [&](QDialog& dialog) {
            type(dialog, "name", QString::fromUtf8(name));
            type(dialog, "path", m_folder->path());
            whenDialog("DlgProjectSet", inSettings);
            press(dialog, "OK");
        });
        run("New Project");
    }
    /// Saves a copy into `location` under the name that the dialog shows.
    void saveCopy(const QString& location)
    {
        whenDialog("DlgProjectPlace", [&](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Save a Copy As"));
            type(dialog, "path", location);
            press(dialog, "OK");
        });
        run("Save a Copy As");
    }
    void answerNo(const char* question) { m_answers[QString::fromUtf8(question)] = Button::No; }
    void expectAsked(const char* lines) { QCOMPARE(std::exchange(m_asked, {}), QByteArray(lines)); }
    void expectHeard(const QByteArray& lines)
    {
        QCOMPARE(std::exchange(m_heard->lines, {}), lines);
    }
    [[nodiscard]] QAction* action(const char* command) const
    {
        return m_host->commands().action(QString::fromUtf8(command));
    }
    /// \param name  of the open project; any when it is empty
    static bool isOpen(std::string_view name = {})
    {
        const IDictionary& values = get_system_status_dictionary();
        return values.text(status::kProjectOpen) == "1" &&
               (name.empty() || values.text(status::kProjectName) == name);
    }

private Q_SLOTS:
    void initTestCase()
    {
        registerFrameComponents();
        registerMapComponents();
    }

    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        get_system_status_dictionary().clear();
        get_system_ini_parameter().dictionary().clear();
        const basalt::Dictionary none;
        get_project_coord_transform().initialise(none, none);
        m_host = std::make_unique<DesktopHost>();
        m_frame = std::make_unique<MainFrame>(*m_host, installedMenus());
        m_frame->setTitle(QStringLiteral("Program"));
        m_heard = std::make_unique<Heard>(m_host->eventManager(), *m_frame);
        m_asked.clear();
        m_answers.clear();
        m_messages = std::make_unique<LumMessageBox::Responder>([this](const auto& message) {
            m_asked += (message.title + QStringLiteral(": ") + message.text).toUtf8() + '\n';
            m_details = message.details;
            m_onEnter = message.defaultButton.value_or(Button::Ok);
            return m_answers.value(message.text,
                                   message.buttons & Button::Yes ? Button::Yes : Button::Ok);
        });
        m_files =
            std::make_unique<FileDialog::Responder>([this](const auto&) { return m_chosenFile; });
    }

    void cleanup()
    {
        m_files.reset();
        m_messages.reset();
        m_heard.reset();
        m_frame.reset();
        m_host.reset();
    }

    void everyCommandStandsInAMenu()
    {
        QStringList classes;
        const auto collect = [&](const auto& self, const FrameLayout::Menu& menu) -> void {
            for (const FrameLayout::MenuItem& item : menu.items) {
                classes << item.command.className;
                for (const FrameLayout::Menu& submenu : item.submenu)
                    self(self, submenu);
            }
        };
        for (const FrameLayout::Menu& menu : installedMenus().menus)
            collect(collect, menu);
        for (const auto& [name, caption] : extensible_factory_ICommandExecuterx().captions())
            QVERIFY2(classes.contains(QString::fromStdString(name)), name.c_str());
    }

    void makesAProject()
    {
        newProject("测区 7", [](QDialog& settings) {
            QCOMPARE(settings.windowTitle(), QStringLiteral("Project Settings"));
            applySystem(settings, "32650");
        });
        QVERIFY(coordParameter("coord_param_id") == "EPSG:32650");
        expectHeard(heard({"ON_PROJECT_CHANGED", "ON_SETTING_VIEW_FINISHED"}, "") +
                    changeTo("测区 7"));
        expectAsked("");
    }

    void refusesBadNamesWhileTheyAreTyped()
    {
        whenDialog("DlgNewProject", [&](QDialog& dialog) {
            const auto isRefused = [&] {
                QTest::keyClick(&dialog, Qt::Key_Return);
                return dialog.isVisible();
            };
            type(dialog, "path", m_folder->path());
            QVERIFY(isRefused()); // no name
            type(dialog, "name", QStringLiteral("a/b"));
            QVERIFY(isRefused());
            type(dialog, "name", QStringLiteral("Block 3.2"));
            press(dialog, "Use \"Block 3-2\"");
            QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("name"))->text(),
                     QStringLiteral("Block 3-2"));
            type(dialog, "name", QStringLiteral("good"));
            type(dialog, "path", m_folder->path("missing"));
            QVERIFY(isRefused());
            m_chosenFile = m_folder->path();
            press(dialog, "browse");
            whenDialog("DlgProjectSet", [](QDialog& settings) { press(settings, "Cancel"); });
            press(dialog, "OK");
        });
        run("New Project");
        QVERIFY(!isOpen());
        QVERIFY2(QDir(m_folder->path()).isEmpty(), "given up before anything was written");
    }

    void keepsAFolderWithFiles()
    {
        makeProject("old");
        newProject("old");
        QVERIFY(isOpen("old"));
        expectAsked("information: project path exist, override?\n"
                    "Coordinate System: No coordinate system is chosen. Make the project without "
                    "one?\n");
        const QDir folder(place("old").folder);
        QCOMPARE(folder.entryList({QStringLiteral("old.db.2*")}, QDir::Files).size(), 1);
    }

    void withoutASystemAProjectIsMadeOnlyWhenTheUserWantsIt()
    {
        answerNo("No coordinate system is chosen. Make the project without one?");
        newProject("a", [](QDialog& settings) {
            apply(settings);
            QVERIFY(settings.isVisible());
            QCOMPARE(settings.findChild<QListWidget*>()->currentRow(), 1);
            applySystem(settings, "32650");
        });
        QVERIFY(isOpen("a"));
        QVERIFY(coordParameter("coord_param_id") == "EPSG:32650");
    }

    void opensProjectFilesAlone()
    {
        makeProject("a");
        m_chosenFile = place("a").database();
        run("Open Project");
        QVERIFY(!isOpen());
        expectAsked("failed: failed to open project!\n");
        QVERIFY(m_details.contains(QStringLiteral("is no project file")));
        QVERIFY(m_details.contains(place("a").file));
        QVERIFY(RecentProjects::list().isEmpty());
        get_system_ini_parameter().dictionary().set("recent_project_1", m_chosenFile.toStdString());
        QVERIFY(RecentProjects::list().isEmpty());
    }

    void whatWouldBeStoredNowhereCannotBeChanged()
    {
        makeProject("a");
        const auto isEditable = [&](const char* row) {
            bool isFound = false;
            Qt::ItemFlags flags;
            whenDialog("DlgProjectSet", [&](QDialog& settings) {
                const QAbstractItemModel& rows =
                    *settings.findChild<QWidget*>(QStringLiteral("CommInfoSet"))
                         ->findChild<QTreeView*>()
                         ->model();
                for (int group = 0; group < rows.rowCount(); ++group) {
                    const QModelIndex first = rows.index(0, 0, rows.index(group, 0));
                    for (const QModelIndex& found :
                         rows.match(first, Qt::DisplayRole, QString::fromUtf8(row))) {
                        isFound = true;
                        flags = found.siblingAtColumn(1).flags();
                    }
                }
                const auto* const reason = settings.findChild<QLabel*>(QStringLiteral("reason"));
                m_details = reason->isVisible() ? reason->text() : QString();
                press(settings, "Cancel");
            });
            run("Project Settings");
            return isFound && (flags & Qt::ItemIsEditable) != 0;
        };
        open("a");
        QVERIFY(isEditable("Crew"));
        QCOMPARE(m_details, QString());
        run("Close Project");
        QFile file(place("a").file);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no dictionary") > 0);
        file.close();
        open("a");
        QVERIFY(!isEditable("Crew"));
        QVERIFY(m_details.contains(place("a").file));
        QVERIFY2(isEditable("Coordinate unit"), "a setting of the program");
    }

    void aFailureSaysWhyAndChangesNothing()
    {
        makeProject("a");
        DataProcessDataManager other(m_host.get());
        QVERIFY(other.openProject(place("a")).isDone());
        newProject("a");
        QVERIFY(m_asked.endsWith("\nError: Failed to create project file!\n"));
        QVERIFY(m_details.contains(QStringLiteral("another program")));
        other.clear();
        m_asked.clear();
        m_heard->lines.clear();

        QVERIFY(QFile::remove(place("a").database()));
        m_chosenFile = place("a").file;
        RecentProjects::add(m_chosenFile);
        run("Open Project");
        QVERIFY(!isOpen());
        expectAsked("failed: failed to open project!\n");
        QVERIFY(m_details.contains(QStringLiteral("a.db")));
        expectHeard("");
        QVERIFY(RecentProjects::list().isEmpty());
    }

    void opensSavesAndCloses()
    {
        makeProject("a");
        QVERIFY(!action("Save Project")->isEnabled());
        m_chosenFile = place("a").file;
        run("Open Project");
        expectHeard(changeTo("a"));
        QVERIFY(action("Save Project")->isEnabled());

        manager().designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
        run("Close Project");
        expectAsked("information: save project?\nsuccess: Save project success!\n");
        QVERIFY(manager().designPoints().empty());
        expectHeard(changeTo(""));
        open("a");
        QVERIFY(manager().designPoints().find("1001", "10015001") != nullptr);
        answerNo("save project?");
        manager().designPoints().clear();
        run("Close Project");
        open("a");
        QVERIFY2(!manager().designPoints().empty(), "the user did not want to save");
    }

    void keepsTheOpenProjectWhenAskedTo()
    {
        makeProject("a");
        makeProject("b");
        open("a");
        answerNo("close current project?");
        m_chosenFile = place("b").file;
        for (const char* command : {"Open Project", "New Project", "Recent Project 1"}) {
            run(command);
            expectAsked("information: close current project?\n");
        }
        QVERIFY(isOpen("a"));
        expectHeard("");
        m_answers.clear();
        run("Open Project");
        QVERIFY(isOpen("b"));
    }

    void staysWhenTheQuestionIsCancelled()
    {
        makeProject("a");
        open("a");
        manager().markChanged();
        m_answers[QStringLiteral("save project?")] = Button::Cancel;
        run("Close Project");
        expectAsked("information: save project?\n");
        QVERIFY(!m_frame->close());
        expectAsked("information: save project?\n"); // and not whether to leave the program
        QVERIFY(isOpen("a"));
    }

    /// The title has an asterisk as long as something is not saved.
    void marksUnsavedChanges()
    {
        makeProject("a");
        open("a");
        const auto expectMark = [&](bool isExpected) {
            QCOMPARE(m_frame->isWindowModified(), isExpected);
            run("Save Project");
            QVERIFY(!m_frame->isWindowModified());
        };
        whenDialog("DlgProjectSet", apply);
        run("Project Settings");
        expectMark(false);
        whenDialog("DlgProjectSet", [](QDialog& settings) { applySystem(settings, "21417"); });
        run("Project Settings");
        expectMark(true);
        whenDialog("DlgQCParamSet", [](QDialog& limits) { press(limits, "OK"); });
        run("Quality Limits");
        expectMark(false);
        whenDialog("DlgQCParamSet", [](QDialog& limits) {
            limits.findChild<PropertyGridCtrl*>()->setValue(QStringLiteral("pdop_max"),
                                                            QStringLiteral("4"));
            press(limits, "OK");
        });
        run("Quality Limits");
        expectMark(true);
        manager().markChanged();
        answerNo("save project?");
        run("Close Project");
        QVERIFY(!m_frame->isWindowModified());
    }

    void doesNotLoseWhatCannotBeSaved()
    {
        makeProject("a");
        open("a");
        manager().designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
        QVERIFY(QDir(place("a").folder).removeRecursively());
        answerNo("The project could not be saved. Close it all the same and lose the changes?");
        run("Close Project");
        QVERIFY(m_asked.startsWith("information: save project?\nfailed: Save project failed!\n"));
        QCOMPARE(m_onEnter, Button::No);
        QVERIFY(isOpen() && m_frame->isWindowModified());
        QVERIFY(!manager().designPoints().empty());
        run("Save Project");
        QVERIFY(m_details.contains(QStringLiteral("Save a Copy As")));
        m_asked.clear();
        answerNo("save project?");
        answerNo("是否退出程序？");
        QVERIFY(!m_frame->close());
        QCOMPARE(m_onEnter, Button::No);
        expectAsked("information: save project?\n提示: 是否退出程序？\n"); // nothing has failed now
        m_answers.clear();
        run("Close Project");
        QVERIFY(!isOpen());
    }

    void savesACopyAndKeepsTheProject()
    {
        makeProject("a");
        open("a");
        manager().designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
        const QString elsewhere = m_folder->path("elsewhere");
        QVERIFY(QDir().mkpath(elsewhere));
        whenDialog("DlgProjectPlace", [&](QDialog& dialog) {
            type(dialog, "path", m_folder->path());
            QTest::keyClick(&dialog, Qt::Key_Return); // the open project is there
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.findChild<QLineEdit*>(QStringLiteral("name"))->text(),
                     QStringLiteral("a 2"));
            type(dialog, "name", QStringLiteral("a"));
            type(dialog, "path", elsewhere);
            press(dialog, "OK");
        });
        run("Save a Copy As");
        const ProjectPlace copy = ProjectPlace::planned(elsewhere, QStringLiteral("a"));
        expectAsked("Save a Copy As: The copy is in \"" + copy.folder.toUtf8() + "\".\n");
        QVERIFY(m_details.contains(place("a").folder));
        QVERIFY(isOpen("a"));
        expectHeard("");
        DataProcessDataManager other(m_host.get());
        QVERIFY(other.openProject(copy).isDone());
        QCOMPARE(other.designPoints().pointCount(), 1U);
        QVERIFY(other.openProject(place("a"), ProjectAccess::Look).isDone());
        QCOMPARE(other.designPoints().pointCount(), 0U);
    }

    void goesOnWithTheCopyOfAProjectWhoseFolderIsGone()
    {
        makeProject("a");
        open("a");
        manager().designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
        const QString gone = place("a").folder;
        QVERIFY(QDir(gone).removeRecursively());
        const auto question = [&](const char* name) {
            return "The copy is in \"" + m_folder->path(name).toUtf8() +
                   "/a\". Go on with the copy?";
        };
        const auto copyTo = [&](const char* name) {
            QDir(m_folder->path()).mkdir(QString::fromUtf8(name));
            saveCopy(m_folder->path(name));
            expectAsked("Save a Copy As: " + question(name) + '\n');
            QVERIFY(m_details.contains(gone));
        };
        answerNo(question("1"));
        copyTo("1");
        expectHeard("");
        copyTo("2");
        expectHeard(changeTo("a"));
        QCOMPARE(QString::fromStdString(
                     std::string(get_system_status_dictionary().text(status::kProjectPath))),
                 m_folder->path("2/a"));
        QCOMPARE(manager().designPoints().pointCount(), 1U);
        run("Save Project");
        expectAsked("information: save project?\nsuccess: Save project success!\n");
    }

    void changesTheSettingsOfTheOpenProject()
    {
        makeProject("a");
        open("a");
        SurveyPoint point;
        point.elevation = 4;
        manager().surveyPoints().set(point);
        whenDialog("DlgProjectSet", [](QDialog& settings) { applySystem(settings, "21417"); });
        run("Project Settings");
        QVERIFY(coordParameter("coord_param_id") != "Undefined");
        QCOMPARE(manager().surveyPoints().find("", "")->seaHeight, 4.0);
        expectHeard(heard({"ON_PROJECT_CHANGED", "ON_SETTING_VIEW_FINISHED"}, "a"));
        const QByteArray question =
            "This project holds points (designed: 0, survey results: 1). Change its coordinate "
            "system?";
        expectAsked("Coordinate System: " + question + '\n');
        const std::string chosen = coordParameter("org_lon");
        answerNo(question);
        whenDialog("DlgProjectSet", [this](QDialog& settings) {
            applySystem(settings, "32037");
            QVERIFY(settings.isVisible());
            QVERIFY(m_details.contains(QStringLiteral("what is m now will count as ftUS")));
            press(settings, "Cancel");
        });
        run("Project Settings");
        whenDialog("DlgProjectSet", apply); // nothing is changed, and nothing asked
        m_asked.clear();
        run("Project Settings");
        expectAsked("");
        QVERIFY(coordParameter("org_lon") == chosen);
        run("Close Project"); // saves
        open("a");
        QVERIFY(coordParameter("org_lon") == chosen);
    }

    void listsRecentProjects()
    {
        const QAction* const first = action("Recent Project 1");
        const QAction* const second = action("Recent Project 2");
        m_host->commands().refresh();
        QVERIFY(first->isVisible() && !first->isEnabled() && !second->isVisible());
        makeProject("a");
        makeProject("b&c");
        open("a");
        open("b&c");
        QCOMPARE(first->text(),
                 QStringLiteral("&1  ") +
                     place("b&c").file.replace(QLatin1Char('&'), QStringLiteral("&&")));
        QVERIFY(second->isVisible());
        run("Close Project");
        run("Recent Project 2");
        QVERIFY(isOpen("a"));
        QVERIFY(first->text().contains(place("a").file));
    }

    void opensADroppedFile()
    {
        makeProject("a");
        const auto enter = [&](const QString& file) {
            QMimeData files;
            files.setUrls({QUrl::fromLocalFile(file)});
            QDragEnterEvent event(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, {});
            event.ignore();
            QApplication::sendEvent(m_frame.get(), &event);
            return event.isAccepted();
        };
        QVERIFY(!enter(QStringLiteral("/a.txt")));
        QVERIFY(!m_frame->openFile(QStringLiteral("/a.txt")));
        QVERIFY(enter(place("a").file));
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(place("a").file)});
        QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, {});
        QApplication::sendEvent(m_frame.get(), &drop);
        QTRY_VERIFY(isOpen());

        const QByteArray rows = "1,L,1,2,3,4,1,0\n";
        QVERIFY(enter(m_folder->path("1.csv")));
        files.setUrls({QUrl::fromLocalFile(m_folder->write("1.csv", rows)),
                       QUrl::fromLocalFile(m_folder->write("2.CSV", "2" + rows))});
        QDropEvent points(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, {});
        QApplication::sendEvent(m_frame.get(), &points);
        QTRY_COMPARE(manager().designPoints().pointCount(), std::size_t(2));
        expectAsked("Success: Import Success!\nSuccess: Import Success!\n");
    }

    void aFileFromOutsideAsksAsTheCommandDoes()
    {
        makeProject("a");
        makeProject("b");
        open("a");
        m_frame->openWhenFree({place("a").file});
        expectAsked(""); // it is open already
        answerNo("close current project?");
        m_frame->openWhenFree({place("b").file});
        expectAsked("information: close current project?\n");
        QVERIFY(isOpen("a"));
        m_answers.clear();
        m_frame->openWhenFree({place("b").file});
        QVERIFY(isOpen("b"));
    }

    void choosesATimeZone()
    {
        const auto choose = [&](int radio, int index, const char* button) {
            whenDialog("TimeZomeDlg", [=](QDialog& dialog) {
                QCOMPARE(dialog.windowTitle(), QStringLiteral("时区修改"));
                const auto radios = dialog.findChildren<QRadioButton*>();
                auto* const list = dialog.findChild<QComboBox*>();
                QCOMPARE(list->count(), 25);
                QCOMPARE(list->itemText(0), QStringLiteral("UTC-12"));
                QCOMPARE(list->itemText(12), QStringLiteral("UTC"));
                QCOMPARE(list->itemText(24), QStringLiteral("UTC+12"));
                QTest::mouseClick(radios[radio], Qt::LeftButton, {}, QPoint(8, 8));
                QCOMPARE(list->isEnabled(), radio == 2);
                list->setCurrentIndex(index);
                press(dialog, button);
            });
            run("Time Zone");
            return get_system_ini_parameter().dictionary().integer(settings::kTimeZone, -99);
        };
        QCOMPARE(choose(0, 5, "取消"), -99);
        expectHeard("");
        QCOMPARE(choose(1, 5, "确认"), 0);
        expectHeard(heard({"REFRESH_SURVEY_TABLE"}, ""));
        QCOMPARE(choose(2, 3, "确认"), -9);
        QCOMPARE(choose(0, 3, "确认"), 8);
    }

    void choosesACoordinateFormat()
    {
        run("Degree Format"); // is in use already
        expectHeard("");
        run("Degree-minute-second Format");
        QCOMPARE(get_system_status_dictionary().integer(status::kDegreeFormat), 1);
        expectHeard(heard({"REFRESH_SURVEY_TABLE"}, ""));
        QVERIFY(action("Degree-minute-second Format")->isChecked());
        get_system_status_dictionary().set(status::kShowAllLines, "1");
        run("Degree Format");
        expectHeard(heard({"ON_CLEAR_SURVEY_TABLE"}, ""));
    }

    // Last: the program quits, and every later dialog would end at once.
    void theProgramClosesItsProjectFirst()
    {
        makeProject("a");
        open("a");
        answerNo("是否退出程序？");
        QVERIFY(!m_frame->close());
        expectAsked("information: save project?\nsuccess: Save project success!\n"
                    "提示: 是否退出程序？\n");
        QVERIFY(isOpen("a") && DataProcessDataManager::hasInstance());
        m_answers.clear();
        QVERIFY(m_frame->close());
        expectHeard(changeTo(""));
        QVERIFY(!isOpen() && !DataProcessDataManager::hasInstance());
        m_asked.clear();
        QVERIFY(m_frame->close()); // without a project and its manager
        expectAsked("提示: 是否退出程序？\n");
    }
};

QTEST_MAIN(ProjectCommandsTest)
#include "ProjectCommandsTest.moc"
