#include "project/ui/StartPage.h"

#include "lum_desktop_sdkx/IWindow.h"
#include "project/DataProcessDataManager.h"
#include "project/RecentProjects.h"
#include "project/ui/ProjectState.h"
#include "tests/app/FrameTest.h"

namespace {

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

} // namespace

/// What stands in the map's place while no project is open.
class StartPageTest : public FrameTest
{
    Q_OBJECT

    [[nodiscard]] StartPage* page() const { return m_frame->findChild<StartPage*>(); }
    [[nodiscard]] QWidget* map() const { return m_host->windows().find("DataMap"_q)->widget(); }
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
    void key(Qt::Key key) { QTest::keyClick(m_frame->focusWidget(), key); }
    void start() { showProgram(layoutOf(kLayout)); }

private Q_SLOTS:
    void init() { prepare(); }
    void cleanup() { endProgram(); }

    void isWalkedAndUsedByTheKeyboard()
    {
        RecentProjects::add(m_folder->path("测区 & B.kelx"));
        start();
        QCOMPARE(page()->size(), map()->size());
        QCOMPARE(offered(), QStringList({"Open Project..."_q, "Demo Survey..."_q, "1  测区  B"_q}));
        QTRY_COMPARE(focused(), "Open Project..."_q);
        key(Qt::Key_Return);
        QCOMPARE(m_filesAsked, 1);
        key(Qt::Key_Down);
        key(Qt::Key_Tab);
        QCOMPARE(focused(), "1  测区  B"_q);
        key(Qt::Key_Return); // the file is gone: that is said, and the list forgets it
        QCOMPARE(m_boxes->told().size(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(offered().size(), 2);
        QVERIFY(!page()->isHidden());
        m_frame->resize(700, 500);
        QCOMPARE(page()->size(), map()->size());
    }

    void theDemoSurveyIsMadeOpenedAndFoundAgain()
    {
        start();
        m_boxes->answer = Button::Cancel;
        run("Demo Survey");
        QVERIFY(m_boxes->last.text.contains("Documents"_q));
        QVERIFY(!ProjectState::isOpen());

        m_boxes->answer = Button::No; // another place, and then none
        run("Demo Survey");
        QCOMPARE(m_filesAsked, 1);
        QVERIFY(!ProjectState::isOpen());

        m_boxes->answer.reset();
        run("Demo Survey");
        QVERIFY(ProjectState::isOpen());
        QVERIFY(page()->isHidden());
        const ProjectPlace place = ProjectState::place();
        QCOMPARE(place.folder, m_folder->path("Documents/Demo Survey"));
        DataProcessDataManager& manager = DataProcessDataManager::instance();
        QCOMPARE(manager.designPoints().pointCount(), std::size_t(4000));
        QVERIFY(!manager.isSaveOwed());
        QVERIFY(QFile::exists(place.folder + "/csv/faults.csv"_q));

        m_boxes->told();
        run("Demo Survey");
        QCOMPARE(m_boxes->last.text, "The demo survey is open already."_q);

        run("Close Project");
        QVERIFY(!page()->isHidden());
        QCOMPARE(offered().last(), "1  Demo Survey"_q);
        m_boxes->told();
        run("Demo Survey");
        QVERIFY(ProjectState::isOpen());
        expectAsked(""); // what was made before is opened without a question
        run("Close Project");
    }

    void aDemoSurveyThatCannotBeMadeLeavesNothing()
    {
        QVERIFY(QDir().mkpath(m_folder->path("Documents")));
        m_folder->write("Documents/Demo Survey", "a file in the way of the folder");
        start();
        m_boxes->answer = Button::Yes;
        run("Demo Survey");
        QCOMPARE(m_boxes->last.text, "The demo survey could not be made."_q);
        QVERIFY(!ProjectState::isOpen());
        QVERIFY(!page()->isHidden());
        QVERIFY(RecentProjects::list().isEmpty());
    }
};

QTEST_MAIN(StartPageTest)
#include "StartPageTest.moc"
