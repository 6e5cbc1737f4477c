#include "project/ui/StartPage.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/RecentProjects.h"
#include "project/ui/ProjectState.h"
#include "tests/support/TestFolder.h"

#include <QCommandLinkButton>
#include <QtTest>

#include <optional>

namespace {

using Button = LumMessageBox::Button;

constexpr const char* kLayout = R"(<main_frame>
  <assistant class="DataProcess5"/>
  <menu caption="Project">
    <command class="OpenProjectCommand" name="Open Project"/>
    <command class="SaveProjectCommand" name="Save Project"/>
    <command class="CloseProjectCommand" name="Close Project"/>
    <command class="DemoSurveyCommand" name="Demo Survey"/>
  </menu>
  <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
</main_frame>)";

FrameLayout testLayout()
{
    FrameLayout layout;
    if (!desktop::readFrameLayout(kLayout, layout).isEmpty())
        qFatal("the test's layout is broken");
    return layout;
}

} // namespace

/// What stands in the map's place while no project is open.
class StartPageTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<DesktopHost> m_host;
    std::unique_ptr<MainFrame> m_frame;
    QStringList m_asked;
    std::optional<Button> m_answer = Button::Yes; ///< none presses Enter
    int m_filesAsked = 0;
    std::unique_ptr<LumMessageBox::Responder> m_messages;
    std::unique_ptr<FileDialog::Responder> m_files;

    [[nodiscard]] StartPage* page() const { return m_frame->findChild<StartPage*>(); }
    [[nodiscard]] QWidget* map() const
    {
        return m_host->windows().find(QStringLiteral("DataMap"))->widget();
    }
    /// The captions of the page's buttons without their marks, in their order.
    [[nodiscard]] QStringList offered() const
    {
        QStringList captions;
        for (const auto* button : page()->findChildren<QCommandLinkButton*>())
            captions << button->text().remove(QLatin1Char('&'));
        return captions;
    }
    [[nodiscard]] QString focused() const
    {
        const auto* const button = qobject_cast<QCommandLinkButton*>(m_frame->focusWidget());
        return button != nullptr ? button->text().remove(QLatin1Char('&')) : QString();
    }
    void startProgram()
    {
        m_host = std::make_unique<DesktopHost>();
        m_frame = std::make_unique<MainFrame>(*m_host, testLayout());
        m_frame->resize(900, 600);
        m_frame->show();
        m_frame->activateWindow();
        QTRY_VERIFY(m_frame->isActiveWindow());
    }

    void key(Qt::Key key) { QTest::keyClick(m_frame->focusWidget(), key); }

private Q_SLOTS:
    void initTestCase()
    {
        registerFrameComponents();
        registerMapComponents();
    }

    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        qputenv("HOME", m_folder->path().toUtf8());
        get_system_status_dictionary().clear();
        get_system_ini_parameter().dictionary().clear();
        m_asked.clear();
        m_filesAsked = 0;
        m_messages = std::make_unique<LumMessageBox::Responder>([this](const auto& message) {
            m_asked << message.text;
            return message.buttons & Button::Yes
                       ? m_answer.value_or(message.defaultButton.value_or(Button::Cancel))
                       : Button::Ok;
        });
        m_files = std::make_unique<FileDialog::Responder>([this](const auto&) {
            ++m_filesAsked;
            return QString();
        });
    }

    void cleanup()
    {
        m_files.reset();
        m_messages.reset();
        m_frame.reset();
        m_host.reset();
    }

    void isWalkedAndUsedByTheKeyboard()
    {
        RecentProjects::add(m_folder->path("测区 & B.kelx"));
        startProgram();
        QCOMPARE(page()->size(), map()->size());
        QCOMPARE(offered(),
                 QStringList({QStringLiteral("Open Project..."), QStringLiteral("Demo Survey..."),
                              QStringLiteral("1  测区  B")}));
        QTRY_COMPARE(focused(), QStringLiteral("Open Project..."));
        key(Qt::Key_Return);
        QCOMPARE(m_filesAsked, 1);
        key(Qt::Key_Down);
        key(Qt::Key_Tab);
        QCOMPARE(focused(), QStringLiteral("1  测区  B"));
        key(Qt::Key_Return); // the file is gone: that is said, and the list forgets it
        QCOMPARE(m_asked.size(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(offered().size(), 2);
        QVERIFY(!page()->isHidden());
        m_frame->resize(700, 500);
        QCOMPARE(page()->size(), map()->size());
    }

    void theDemoSurveyIsMadeOpenedAndFoundAgain()
    {
        startProgram();
        m_answer = Button::Cancel;
        QVERIFY(m_host->commands().execute(QStringLiteral("Demo Survey")));
        QVERIFY2(m_asked.value(0).contains(QStringLiteral("Documents")), qPrintable(m_asked[0]));
        QVERIFY(!ProjectState::isOpen());

        m_answer = Button::No; // another place, and then none
        QVERIFY(m_host->commands().execute(QStringLiteral("Demo Survey")));
        QCOMPARE(m_filesAsked, 1);
        QVERIFY(!ProjectState::isOpen());

        m_answer.reset();
        QVERIFY(m_host->commands().execute(QStringLiteral("Demo Survey")));
        QVERIFY(ProjectState::isOpen());
        QVERIFY(page()->isHidden());
        const ProjectPlace place = ProjectState::place();
        QCOMPARE(place.folder, m_folder->path("Documents/Demo Survey"));
        const DataProcessDataManager& manager = DataProcessDataManager::instance();
        std::size_t points = 0;
        for (const auto& [number, line] : DataProcessDataManager::instance().designPoints())
            points += line.size();
        QCOMPARE(points, std::size_t(4000));
        QVERIFY(!manager.isSaveOwed());
        QVERIFY(QFile::exists(place.folder + QStringLiteral("/csv/faults.csv")));

        m_asked.clear();
        QVERIFY(m_host->commands().execute(QStringLiteral("Demo Survey")));
        QCOMPARE(m_asked, QStringList(QStringLiteral("The demo survey is open already.")));

        QVERIFY(m_host->commands().execute(QStringLiteral("Close Project")));
        QVERIFY(!page()->isHidden());
        QCOMPARE(offered().last(), QStringLiteral("1  Demo Survey"));
        m_asked.clear();
        QVERIFY(m_host->commands().execute(QStringLiteral("Demo Survey")));
        QVERIFY(ProjectState::isOpen());
        QVERIFY2(m_asked.isEmpty(), "what was made before is opened without a question");
        QVERIFY(m_host->commands().execute(QStringLiteral("Close Project")));
    }

    void aDemoSurveyThatCannotBeMadeLeavesNothing()
    {
        QVERIFY(QDir().mkpath(m_folder->path("Documents")));
        m_folder->write("Documents/Demo Survey", "a file in the way of the folder");
        startProgram();
        m_answer = Button::Yes;
        QVERIFY(m_host->commands().execute(QStringLiteral("Demo Survey")));
        QCOMPARE(m_asked.last(), QStringLiteral("The demo survey could not be made."));
        QVERIFY(!ProjectState::isOpen());
        QVERIFY(!page()->isHidden());
        QVERIFY(RecentProjects::list().isEmpty());
    }
};

QTEST_MAIN(StartPageTest)
#include "StartPageTest.moc"
