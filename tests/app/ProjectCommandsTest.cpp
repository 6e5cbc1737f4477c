#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectFile.h"
#include "project/RecentProjects.h"
#include "project/ui/ProjectState.h"
#include "protocol/StatusKeys.h"
#include "tests/app/FrameTest.h"
#include "tests/support/OnEvent.h"
#include "tests/support/Points.h"

namespace {

constexpr const char* kLayout =
    SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml";

/// The menus and tool bars as they are installed, without the windows.
FrameLayout installedMenus()
{
    FrameLayout layout = layoutOf(TestFolder::read(QString::fromUtf8(kLayout)));
    layout.windows.clear();
    return layout;
}

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

/// An event of this name as it is heard now.
QByteArray heardNow(const char* name, const QWidget& frame)
{
    const IDictionary& values = get_system_status_dictionary();
    const QByteArray folder = std::string(values.text(status::kProjectPath)).c_str();
    return name + QByteArray(" ") + QByteArray::number(values.integer(status::kProjectOpen)) + '|' +
           folder.mid(folder.lastIndexOf('/') + 1) + '|' +
           std::string(values.text(status::kProjectName)).c_str() + '|' +
           frame.windowTitle().toUtf8() + '\n';
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
class ProjectCommandsTest : public FrameTest
{
    Q_OBJECT

    QByteArray m_heard;
    std::unique_ptr<OnEvent> m_listener;

    [[nodiscard]] ProjectPlace place(const char* name) const
    {
        return ProjectPlace::planned(m_folder->path(), QString::fromUtf8(name));
    }
    void makeProject(const char* name) const { FrameTest::makeProject(place(name)); }
    void open(const char* name)
    {
        QVERIFY(m_frame->openFile(place(name).file));
        QVERIFY(isOpen());
        m_boxes->told();
        m_heard.clear();
    }
    void openNew(const char* name)
    {
        makeProject(name);
        open(name);
    }
    void changeSettings(std::function<void(QDialog&)> act)
    {
        whenDialog("DlgProjectSet", act);
        run("Project Settings");
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
            QCOMPARE(dialog.windowTitle(), "Save a Copy As"_q);
            type(dialog, "path", location);
            press(dialog, "OK");
        });
        run("Save a Copy As");
    }
    void answerNo(const char* question)
    {
        m_boxes->answers[QString::fromUtf8(question)] = Button::No;
    }
    void expectHeard(const QByteArray& lines) { QCOMPARE(std::exchange(m_heard, {}), lines); }
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
    void init()
    {
        const basalt::Dictionary none;
        get_project_coord_transform().initialise(none, none);
        prepare();
        startProgram(installedMenus());
        m_boxes->answer = Button::Yes;
        m_frame->setTitle("Program"_q);
        m_heard.clear();
        m_listener = std::make_unique<OnEvent>(
            m_host->eventManager(),
            "REFRESH_DESIGN_LAYER,REFRESH_SURVEY_LAYER,UPDATE_SYSTEM_STATUS_EVENT,"
            "ON_PROJECT_CHANGED,ON_SETTING_VIEW_FINISHED",
            [this](const char* name) { m_heard += heardNow(name, *m_frame); });
    }

    void cleanup()
    {
        m_listener.reset();
        endProgram();
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

    void takesChangesBackByKeysButNotWhileTextIsTyped()
    {
        openNew("steps");
        for (const char* number : {"1", "2", "3"})
            manager().surveyPoints().set(surveyPoint("R1", number));
        const auto results = [] { return manager().surveyPoints().pointCount(); };
        m_frame->show();
        QVERIFY(QTest::qWaitForWindowActive(m_frame.get()));
        manager().deleteSurveyPoints({PointName{"R1", "1"}, PointName{"R1", "2"}});
        manager().deleteSurveyPoints(std::vector{PointName{"R1", "3"}});
        QCoreApplication::processEvents();
        QCOMPARE(action("Undo")->text(), "&Undo Delete a result"_q);
        auto* const field = new QLineEdit(m_frame.get());
        field->show();
        field->setFocus();
        QTest::keyClicks(field, "word"_q);
        for (int i = 0; i < 3; ++i) // also when the field has nothing more to take back
            QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(field->text(), QString());
        QCOMPARE(results(), std::size_t(0));
        delete field;
        QTest::keyClick(m_frame.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(results(), std::size_t(1));
        QCOMPARE(action("Undo")->text(), "&Undo Delete 2 results"_q);
        QCOMPARE(action("Redo")->text(), "&Redo Delete a result"_q);
        QTest::keyClick(m_frame.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(results(), std::size_t(0));
        run("Undo");
        run("Undo");
        QVERIFY(!action("Undo")->isEnabled() && !manager().isChanged());
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
            type(dialog, "name", "a/b"_q);
            QVERIFY(isRefused());
            type(dialog, "name", "Block 3.2"_q);
            press(dialog, "Use \"Block 3-2\"");
            QCOMPARE(dialog.findChild<QLineEdit*>("name"_q)->text(), "Block 3-2"_q);
            type(dialog, "name", "good"_q);
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
        expectAsked("information|project path exist, override?\n"
                    "Coordinate System|No coordinate system is chosen. Make the project without "
                    "one?");
        const QDir folder(place("old").folder);
        QCOMPARE(folder.entryList({"old.db.2*"_q}, QDir::Files).size(), 1);
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
        expectHeard(heard({"ON_PROJECT_CHANGED", "ON_SETTING_VIEW_FINISHED"}, "") + changeTo("a"));
    }

    void whatWouldBeStoredNowhereCannotBeChanged()
    {
        makeProject("a");
        QString reason;
        const auto isEditable = [&](const char* row) {
            QModelIndexList found;
            Qt::ItemFlags flags;
            changeSettings([&](QDialog& settings) {
                const QAbstractItemModel& rows = *settings.findChild<QWidget*>("CommInfoSet"_q)
                                                      ->findChild<QTreeView*>()
                                                      ->model();
                found = rows.match(rows.index(0, 0), Qt::DisplayRole, QString::fromUtf8(row), 1,
                                   Qt::MatchStartsWith | Qt::MatchRecursive);
                flags = found.value(0).siblingAtColumn(1).flags();
                const auto* const label = settings.findChild<QLabel*>("reason"_q);
                reason = label->isVisible() ? label->text() : QString();
                press(settings, "Cancel");
            });
            return !found.isEmpty() && (flags & Qt::ItemIsEditable) != 0;
        };
        open("a");
        QVERIFY(isEditable("Crew"));
        QCOMPARE(reason, QString());
        run("Close Project");
        m_folder->write("a/a.kelx", "no dictionary");
        open("a");
        QVERIFY(!isEditable("Crew"));
        QVERIFY(reason.contains(place("a").file));
        QVERIFY2(isEditable("Coordinate unit"), "a setting of the program");
    }

    void aFailureSaysWhyAndChangesNothing()
    {
        makeProject("a");
        DataProcessDataManager other(m_host.get());
        QVERIFY(other.openProject(place("a")).isDone());
        newProject("a");
        QCOMPARE(m_boxes->told().last(), "Error|Failed to create project file!"_q);
        QVERIFY(m_boxes->last.details.contains("another program"_q));
        other.clear();
        m_boxes->told();
        m_heard.clear();

        QVERIFY(QFile::remove(place("a").database()));
        m_chosenFile = place("a").file;
        RecentProjects::add(m_chosenFile);
        run("Open Project");
        QVERIFY(!isOpen());
        expectAsked("failed|failed to open project!");
        QVERIFY(m_boxes->last.details.contains("a.db"_q));
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
        expectAsked("information|save project?\nsuccess|Save project success!");
        QVERIFY(manager().designPoints().empty());
        expectHeard(changeTo(""));
        open("a");
        QVERIFY(manager().designPoints().find("1001", "10015001") != nullptr);
        manager().designPoints().clear();
        m_boxes->answers["save project?"_q] = Button::Cancel;
        run("Close Project");
        expectAsked("information|save project?");
        QVERIFY(!m_frame->close());
        expectAsked("information|save project?"); // and not whether to leave the program
        QVERIFY(isOpen("a"));
        answerNo("save project?");
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
            expectAsked("information|close current project?");
        }
        m_frame->openWhenFree({place("b").file}); // from outside
        expectAsked("information|close current project?");
        m_frame->openWhenFree({place("a").file}); // it is open already
        expectAsked("");
        QVERIFY(isOpen("a"));
        expectHeard("");
        m_boxes->answers.clear();
        run("Open Project");
        QVERIFY(isOpen("b"));
        m_frame->openWhenFree({place("a").file});
        QVERIFY(isOpen("a"));
    }

    /// The title has an asterisk as long as something is not saved.
    void marksUnsavedChanges()
    {
        openNew("a");
        const auto expectMark = [&](bool isExpected) {
            QCOMPARE(m_frame->isWindowModified(), isExpected);
            run("Save Project");
            QVERIFY(!m_frame->isWindowModified());
        };
        changeSettings(apply);
        expectMark(false);
        changeSettings([](QDialog& settings) { applySystem(settings, "21417"); });
        expectMark(true);
        const auto fileHas = [this](const std::string& meridian) {
            basalt::Dictionary project;
            return ProjectFile::read(place("a").file, project).isDone() &&
                   project.text("org_lon") == meridian;
        };
        const std::string meridian = coordParameter("org_lon");
        changeSettings([](QDialog& settings) { applySystem(settings, "32650"); });
        QVERIFY(m_frame->isWindowModified() && coordParameter("org_lon") != meridian);
        run("Undo");
        QVERIFY(!m_frame->isWindowModified());
        expectMark(false);
        QVERIFY(fileHas(meridian));
        run("Redo");
        expectMark(true);
        QVERIFY(fileHas(coordParameter("org_lon")) && !fileHas(meridian));
        whenDialog("DlgQCParamSet", [](QDialog& limits) { press(limits, "OK"); });
        run("Quality Limits");
        expectMark(false);
        whenDialog("DlgQCParamSet", [](QDialog& limits) {
            limits.findChild<PropertyGridCtrl*>()->setValue("pdop_max"_q, "4"_q);
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
        openNew("a");
        manager().designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
        QVERIFY(QDir(place("a").folder).removeRecursively());
        answerNo("The project could not be saved. Close it all the same and lose the changes?");
        run("Close Project");
        QCOMPARE(m_boxes->told().mid(0, 2),
                 (QStringList{"information|save project?"_q, "failed|Save project failed!"_q}));
        QCOMPARE(m_boxes->last.defaultButton.value_or(Button::Ok), Button::No);
        QVERIFY(isOpen() && m_frame->isWindowModified());
        QVERIFY(!manager().designPoints().empty());
        run("Save Project");
        QVERIFY(m_boxes->last.details.contains("Save a Copy As"_q));
        m_boxes->told();
        answerNo("save project?");
        answerNo("是否退出程序？");
        QVERIFY(!m_frame->close());
        QCOMPARE(m_boxes->last.defaultButton.value_or(Button::Ok), Button::No);
        expectAsked("information|save project?\n提示|是否退出程序？"); // nothing has failed now
        m_boxes->answers.clear();
        run("Close Project");
        QVERIFY(!isOpen());
    }

    void savesACopyAndKeepsTheProject()
    {
        openNew("a");
        manager().designPoints().set({"1001", "10015001", 1, 2, 3, 4, 1, 0});
        const QString elsewhere = m_folder->path("elsewhere");
        QVERIFY(QDir().mkpath(elsewhere));
        whenDialog("DlgProjectPlace", [&](QDialog& dialog) {
            type(dialog, "path", m_folder->path());
            QTest::keyClick(&dialog, Qt::Key_Return); // the open project is there
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.findChild<QLineEdit*>("name"_q)->text(), "a 2"_q);
            type(dialog, "name", "a"_q);
            type(dialog, "path", elsewhere);
            press(dialog, "OK");
        });
        run("Save a Copy As");
        const ProjectPlace copy = ProjectPlace::planned(elsewhere, "a"_q);
        expectAsked("Save a Copy As|The copy is in \"" + copy.folder.toUtf8() + "\".");
        QVERIFY(m_boxes->last.details.contains(place("a").folder));
        QVERIFY(isOpen("a"));
        expectHeard("");
    }

    void goesOnWithTheCopyOfAProjectWhoseFolderIsGone()
    {
        openNew("a");
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
            expectAsked("Save a Copy As|" + question(name));
            QVERIFY(m_boxes->last.details.contains(gone));
        };
        answerNo(question("1"));
        copyTo("1");
        expectHeard("");
        copyTo("2");
        expectHeard(changeTo("a"));
        QCOMPARE(ProjectState::place().folder, m_folder->path("2/a"));
        QCOMPARE(manager().designPoints().pointCount(), 1U);
        run("Save Project");
        expectAsked("information|save project?\nsuccess|Save project success!");
    }

    void changesTheSettingsOfTheOpenProject()
    {
        openNew("a");
        manager().surveyPoints().set({}).elevation = 4;
        changeSettings([](QDialog& settings) { applySystem(settings, "21417"); });
        QVERIFY(coordParameter("coord_param_id") != "Undefined");
        QCOMPARE(manager().surveyPoints().find("", "")->seaHeight, 4.0);
        expectHeard(heard({"ON_PROJECT_CHANGED", "ON_SETTING_VIEW_FINISHED"}, "a"));
        const QByteArray question =
            "This project holds points (designed: 0, survey results: 1). Change its coordinate "
            "system?";
        expectAsked("Coordinate System|" + question);
        const std::string chosen = coordParameter("org_lon");
        answerNo(question);
        changeSettings([this](QDialog& settings) {
            applySystem(settings, "32037");
            QVERIFY(settings.isVisible());
            QVERIFY(m_boxes->last.details.contains("what is m now will count as ftUS"_q));
            press(settings, "Cancel");
        });
        m_boxes->told();
        changeSettings(apply); // nothing is changed, and nothing asked
        expectAsked("");
        QVERIFY(coordParameter("org_lon") == chosen);
        run("Close Project"); // saves
        open("a");
        QVERIFY(coordParameter("org_lon") == chosen);
    }

    void opensADroppedFile()
    {
        makeProject("a");
        QMimeData files;
        const auto enter = [&](const QStringList& paths) {
            QList<QUrl> urls;
            for (const QString& path : paths)
                urls << QUrl::fromLocalFile(path);
            files.setUrls(urls);
            QDragEnterEvent event({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
            event.ignore();
            QApplication::sendEvent(m_frame.get(), &event);
            return event.isAccepted();
        };
        const auto drop = [&] {
            QDropEvent event({5, 5}, Qt::CopyAction, &files, Qt::LeftButton, {});
            QApplication::sendEvent(m_frame.get(), &event);
        };
        QVERIFY(!enter({"/a.txt"_q}));
        QVERIFY(!m_frame->openFile("/a.txt"_q));
        QVERIFY(enter({place("a").file}));
        drop();
        QTRY_VERIFY(isOpen());

        const QByteArray rows = "1,L,1,2,3,4,1,0\n";
        QVERIFY(enter({m_folder->write("1.csv", rows), m_folder->write("2.CSV", "2" + rows)}));
        drop();
        QTRY_COMPARE(manager().designPoints().pointCount(), std::size_t(2));
        expectAsked("Success|Import Success!\nSuccess|Import Success!");
    }

    // Last: the program quits, and every later dialog would end at once.
    void theProgramClosesItsProjectFirst()
    {
        openNew("a");
        answerNo("是否退出程序？");
        QVERIFY(!m_frame->close());
        expectAsked("information|save project?\nsuccess|Save project success!\n"
                    "提示|是否退出程序？");
        QVERIFY(isOpen("a") && DataProcessDataManager::hasInstance());
        m_boxes->answers.clear();
        QVERIFY(m_frame->close());
        expectHeard(changeTo(""));
        QVERIFY(!isOpen() && !DataProcessDataManager::hasInstance());
        m_boxes->told();
        QVERIFY(m_frame->close()); // without a project and its manager
        expectAsked("提示|是否退出程序？");
    }
};

QTEST_MAIN(ProjectCommandsTest)
#include "ProjectCommandsTest.moc"
