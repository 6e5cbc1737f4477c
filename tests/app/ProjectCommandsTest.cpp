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

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
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

/// The names of the events that a program of this kind publishes, in order.
class Heard final : public IEventHandler
{
public:
    explicit Heard(IEventManager& manager)
        : m_subscription(*this,
                         "REFRESH_DESIGN_LAYER,REFRESH_SURVEY_LAYER,UPDATE_SYSTEM_STATUS_EVENT,"
                         "ON_PROJECT_CHANGED,ON_SETTING_VIEW_FINISHED,REFRESH_SURVEY_TABLE,"
                         "ON_CLEAR_SURVEY_TABLE",
                         manager)
    {
    }
    void handleEvent(const char* name, const char* /*payload*/, int /*reserved*/) override
    {
        m_names << QString::fromLatin1(name);
    }
    QStringList take() { return std::exchange(m_names, {}); }

private:
    QStringList m_names;
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

void type(QDialog& dialog, const char* field, const QString& text)
{
    auto* const edit = dialog.findChild<QLineEdit*>(QString::fromUtf8(field));
    edit->selectAll();
    edit->insert(text); // key events are Latin
}

} // namespace

/// The life of a project through the commands of a whole frame.
class ProjectCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void everyCommandStandsInAMenu();
    void makesAProject();
    void refusesBadNamesWhileTheyAreTyped();
    void keepsAFolderWithFiles();
    void aFailureSaysWhy();
    void opensSavesAndCloses();
    void aFailedOpenChangesNothing();
    void keepsTheOpenProjectWhenAskedTo();
    void doesNotLoseWhatCannotBeSaved();
    void changesTheSettingsOfTheOpenProject();
    void listsRecentProjects();
    void opensADroppedFile();
    void choosesATimeZone();
    void choosesACoordinateFormat();

private:
    void run(const char* command)
    {
        QVERIFY(m_host->commands().execute(QString::fromUtf8(command)));
    }
    void makeProject(const char* name);
    [[nodiscard]] QString projectFile(const char* name) const
    {
        return ProjectPlace::planned(m_folder->path(), QString::fromUtf8(name)).file;
    }
    void open(const char* name)
    {
        QVERIFY(m_frame->openFile(projectFile(name)));
        QVERIFY(isOpen());
        m_asked.clear();
        m_heard->take();
    }
    static bool isOpen() { return status(status::kProjectOpen) == QLatin1String("1"); }
    static QString status(const char* key)
    {
        const std::string_view text = get_system_status_dictionary().text(key);
        return QString::fromUtf8(text.data(), int(text.size()));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DesktopHost> m_host;
    std::unique_ptr<MainFrame> m_frame;
    std::unique_ptr<Heard> m_heard;
    QStringList m_asked; ///< "title: text" of each message box
    QStringList m_details;
    QHash<QString, Button> m_answers; ///< by text; Yes, else Ok
    QString m_chosenFile;
    std::unique_ptr<LumMessageBox::Responder> m_messages;
    std::unique_ptr<FileDialog::Responder> m_files;
};

void ProjectCommandsTest::initTestCase()
{
    registerFrameComponents();
    registerMapComponents();
}

void ProjectCommandsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    get_system_status_dictionary().clear();
    get_system_ini_parameter().dictionary().clear();
    const basalt::Dictionary none;
    get_project_coord_transform().initialise(none, none);
    m_host = std::make_unique<DesktopHost>();
    m_frame = std::make_unique<MainFrame>(*m_host, installedMenus());
    m_frame->setTitle(QStringLiteral("Program"));
    m_heard = std::make_unique<Heard>(m_host->eventManager());
    m_asked.clear();
    m_details.clear();
    m_answers.clear();
    m_chosenFile.clear();
    m_messages = std::make_unique<LumMessageBox::Responder>([this](const auto& message) {
        m_asked << message.title + QStringLiteral(": ") + message.text;
        m_details << message.details;
        return m_answers.value(message.text,
                               message.buttons & Button::Yes ? Button::Yes : Button::Ok);
    });
    m_files = std::make_unique<FileDialog::Responder>([this](const auto&) { return m_chosenFile; });
}

void ProjectCommandsTest::everyCommandStandsInAMenu()
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

void ProjectCommandsTest::cleanup()
{
    m_files.reset();
    m_messages.reset();
    m_heard.reset();
    m_frame.reset();
    m_host.reset();
}

void ProjectCommandsTest::makeProject(const char* name)
{
    const ProjectPlace place = ProjectPlace::planned(m_folder->path(), QString::fromUtf8(name));
    QVERIFY(QDir().mkpath(place.folder));
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    QCOMPARE(ProjectCreator::create(place, project), QString());
}

void ProjectCommandsTest::makesAProject()
{
    whenDialog("DlgNewProject", [&](QDialog& dialog) {
        type(dialog, "name", QStringLiteral("测区 7"));
        type(dialog, "path", m_folder->path());
        whenDialog("DlgProjectSet", [&](QDialog& settings) {
            QCOMPARE(settings.windowTitle(), QStringLiteral("Project Settings"));
            auto* const pages = settings.findChild<QListWidget*>();
            pages->setCurrentRow(1);
            auto* const search = settings.findChild<QLineEdit*>();
            QTest::keyClicks(search, QStringLiteral("32650"));
            QTest::keyClick(search, Qt::Key_Down);
            QTest::keyClick(search, Qt::Key_Return);
            press(settings, "Apply");
        });
        press(dialog, "OK");
    });
    run("New Project");
    QVERIFY(isOpen());
    QCOMPARE(status(status::kProjectPath), m_folder->filePath(QStringLiteral("测区 7")));
    QCOMPARE(status(status::kProjectName), QStringLiteral("测区 7"));
    QCOMPARE(m_frame->windowTitle(), QStringLiteral("测区 7 - Program"));
    QVERIFY(get_project_coord_transform().parameters().text("coord_param_id") == "EPSG:32650");
    QCOMPARE(m_heard->take(), (QStringList{QStringLiteral("ON_PROJECT_CHANGED"),
                                           QStringLiteral("ON_SETTING_VIEW_FINISHED"),
                                           QStringLiteral("REFRESH_DESIGN_LAYER"),
                                           QStringLiteral("REFRESH_SURVEY_LAYER"),
                                           QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")}));
    QVERIFY(m_asked.isEmpty());
}

void ProjectCommandsTest::refusesBadNamesWhileTheyAreTyped()
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
        type(dialog, "name", QStringLiteral("good"));
        type(dialog, "path", m_folder->filePath(QStringLiteral("missing")));
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

void ProjectCommandsTest::keepsAFolderWithFiles()
{
    makeProject("old");
    whenDialog("DlgNewProject", [&](QDialog& dialog) {
        type(dialog, "name", QStringLiteral("old"));
        type(dialog, "path", m_folder->path());
        whenDialog("DlgProjectSet", [](QDialog& settings) { press(settings, "Apply"); });
        press(dialog, "OK");
    });
    run("New Project");
    QVERIFY(isOpen());
    QCOMPARE(m_asked, QStringList(QStringLiteral("information: project path exist, override?")));
    const QDir folder(QFileInfo(projectFile("old")).path());
    QCOMPARE(folder.entryList({QStringLiteral("old.db.2*")}, QDir::Files).size(), 1);
}

void ProjectCommandsTest::aFailureSaysWhy()
{

    makeProject("busy");
    DesktopHost otherHost;
    DataProcessDataManager other(&otherHost);
    QVERIFY(other.openProject(ProjectPlace::ofFile(projectFile("busy"))).isDone);
    whenDialog("DlgNewProject", [&](QDialog& dialog) {
        type(dialog, "name", QStringLiteral("busy"));
        type(dialog, "path", m_folder->path());
        whenDialog("DlgProjectSet", [](QDialog& settings) { press(settings, "Apply"); });
        press(dialog, "OK");
    });
    run("New Project");
    QVERIFY(!isOpen());
    QCOMPARE(m_asked.last(), QStringLiteral("Error: Failed to create project file!"));
    QVERIFY(m_details.last().contains(QStringLiteral("another program")));
}

void ProjectCommandsTest::opensSavesAndCloses()
{
    makeProject("a");
    QVERIFY(!m_host->commands().action(QStringLiteral("Save Project"))->isEnabled());
    m_chosenFile = projectFile("a");
    run("Open Project");
    QVERIFY(isOpen());
    QCOMPARE(m_heard->take(), (QStringList{QStringLiteral("REFRESH_DESIGN_LAYER"),
                                           QStringLiteral("REFRESH_SURVEY_LAYER"),
                                           QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")}));
    QVERIFY(m_host->commands().action(QStringLiteral("Save Project"))->isEnabled());

    DataProcessDataManager& manager = *DataProcessDataManager::instance();
    manager.designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
    run("Close Project");
    QCOMPARE(m_asked, (QStringList{QStringLiteral("information: save project?"),
                                   QStringLiteral("success: Save project success!")}));
    QVERIFY(!isOpen());
    QCOMPARE(status(status::kProjectOpen), QStringLiteral("0"));
    QCOMPARE(m_frame->windowTitle(), QStringLiteral("Program"));
    QVERIFY(manager.designPoints().empty());
    QCOMPARE(m_heard->take(), (QStringList{QStringLiteral("REFRESH_DESIGN_LAYER"),
                                           QStringLiteral("REFRESH_SURVEY_LAYER"),
                                           QStringLiteral("UPDATE_SYSTEM_STATUS_EVENT")}));
    open("a");
    QVERIFY(manager.designPoints().find("1001", "10015001") != nullptr);
    m_answers[QStringLiteral("save project?")] = Button::No;
    manager.designPoints().clear();
    run("Close Project");
    open("a");
    QVERIFY2(!manager.designPoints().empty(), "the user did not want to save");
}

void ProjectCommandsTest::aFailedOpenChangesNothing()
{
    makeProject("a");
    QVERIFY(QFile::remove(ProjectPlace::ofFile(projectFile("a")).database()));
    m_chosenFile = projectFile("a");
    RecentProjects::add(m_chosenFile);
    run("Open Project");
    QVERIFY(!isOpen());
    QCOMPARE(m_asked, QStringList(QStringLiteral("failed: failed to open project!")));
    QVERIFY(m_details.last().contains(QStringLiteral("a.db")));
    QVERIFY(m_heard->take().isEmpty());
    QVERIFY(RecentProjects::list().isEmpty());
}

void ProjectCommandsTest::keepsTheOpenProjectWhenAskedTo()
{
    makeProject("a");
    makeProject("b");
    open("a");
    m_answers[QStringLiteral("close current project?")] = Button::No;
    m_chosenFile = projectFile("b");
    for (const char* command : {"Open Project", "New Project", "Recent Project 1"}) {
        run(command);
        QCOMPARE(m_asked.takeLast(), QStringLiteral("information: close current project?"));
    }
    QCOMPARE(status(status::kProjectName), QStringLiteral("a"));
    QVERIFY(m_heard->take().isEmpty());

    m_answers.clear();
    run("Open Project");
    QCOMPARE(status(status::kProjectName), QStringLiteral("b"));
}

void ProjectCommandsTest::doesNotLoseWhatCannotBeSaved()
{
    makeProject("a");
    open("a");
    DataProcessDataManager& manager = *DataProcessDataManager::instance();
    manager.designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
    QVERIFY(QDir(QFileInfo(projectFile("a")).path()).removeRecursively());
    m_answers[QStringLiteral("The project could not be saved. Close it all the same "
                             "and lose the changes?")] = Button::No;
    run("Close Project");
    QCOMPARE(m_asked.value(1), QStringLiteral("failed: Save project failed!"));
    QVERIFY(!m_details.value(1).isEmpty());
    QVERIFY(isOpen());
    QVERIFY(!manager.designPoints().empty());
    m_answers.clear();
    run("Close Project");
    QVERIFY(!isOpen());
}

void ProjectCommandsTest::changesTheSettingsOfTheOpenProject()
{
    makeProject("a");
    open("a");
    SurveyPoint point;
    point.lineNumber = "1";
    point.pointNumber = "2";
    point.elevation = 4;
    DataProcessDataManager& manager = *DataProcessDataManager::instance();
    manager.surveyPoints().set(point);
    whenDialog("DlgProjectSet", [](QDialog& settings) {
        settings.findChild<QListWidget*>()->setCurrentRow(1);
        auto* const search = settings.findChild<QLineEdit*>();
        QTest::keyClicks(search, QStringLiteral("21417"));
        QTest::keyClick(search, Qt::Key_Down);
        QTest::keyClick(search, Qt::Key_Return);
        press(settings, "Apply");
    });
    run("Project Settings");
    QVERIFY(get_project_coord_transform().parameters().text("coord_param_id") != "Undefined");
    QCOMPARE(manager.surveyPoints().find("1", "2")->seaHeight, 4.0);
    QCOMPARE(m_heard->take(), (QStringList{QStringLiteral("ON_PROJECT_CHANGED"),
                                           QStringLiteral("ON_SETTING_VIEW_FINISHED")}));
    const std::string chosen(get_project_coord_transform().parameters().text("org_lon"));
    run("Close Project"); // saves
    open("a");
    QCOMPARE(QString::fromStdString(
                 std::string(get_project_coord_transform().parameters().text("org_lon"))),
             QString::fromStdString(chosen));
}

void ProjectCommandsTest::listsRecentProjects()
{
    QAction* const first = m_host->commands().action(QStringLiteral("Recent Project 1"));
    QAction* const second = m_host->commands().action(QStringLiteral("Recent Project 2"));
    m_host->commands().refresh();
    QVERIFY(first->isVisible() && !first->isEnabled() && !second->isVisible());
    makeProject("a");
    makeProject("b&c");
    open("a");
    open("b&c");
    QCOMPARE(first->text(), QStringLiteral("&1  ") +
                                projectFile("b&c").replace(QLatin1Char('&'), QStringLiteral("&&")));
    QVERIFY(second->isVisible());
    run("Close Project");
    run("Recent Project 2");
    QCOMPARE(status(status::kProjectName), QStringLiteral("a"));
    QVERIFY(first->text().contains(projectFile("a")));
}

void ProjectCommandsTest::opensADroppedFile()
{
    makeProject("a");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(projectFile("a"))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_frame.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_frame.get(), &drop);
    QTRY_VERIFY(isOpen());

    QMimeData text;
    text.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.txt"))});
    QDragEnterEvent other(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(m_frame.get(), &other);
    QVERIFY(!other.isAccepted());
    QVERIFY(!m_frame->openFile(QStringLiteral("/a.txt")));
}

void ProjectCommandsTest::choosesATimeZone()
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
    QVERIFY(m_heard->take().isEmpty());
    QCOMPARE(choose(1, 5, "确认"), 0);
    QCOMPARE(m_heard->take(), QStringList(QStringLiteral("REFRESH_SURVEY_TABLE")));
    QCOMPARE(choose(2, 3, "确认"), -9);
    QCOMPARE(choose(0, 3, "确认"), 8);
}

void ProjectCommandsTest::choosesACoordinateFormat()
{
    run("Degree Format");
    QVERIFY2(m_heard->take().isEmpty(), "it is in use already");
    run("Degree-minute-second Format");
    QCOMPARE(status(status::kDegreeFormat), QStringLiteral("1"));
    QCOMPARE(m_heard->take(), QStringList(QStringLiteral("REFRESH_SURVEY_TABLE")));
    QVERIFY(m_host->commands().action(QStringLiteral("Degree-minute-second Format"))->isChecked());
    get_system_status_dictionary().set(status::kShowAllLines, "1");
    run("Degree Format");
    QCOMPARE(m_heard->take(), QStringList(QStringLiteral("ON_CLEAR_SURVEY_TABLE")));
}

QTEST_MAIN(ProjectCommandsTest)
#include "ProjectCommandsTest.moc"
