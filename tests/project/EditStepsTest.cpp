#include "project/ui/EditSteps.h"

#include "project/edits/Edit.h"
#include "project/PointCorrection.h"
#include "project/ui/DlgEditSteps.h"
#include "protocol/Events.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/EventLog.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/Widgets.h"

#include <QtTest>
#include <QtWidgets>

/// The steps of an open project, as the menu and the list of steps use them.
class EditStepsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project.emplace();
        m_boxes.emplace();
        for (int i = 0; i < 100; ++i)
            m_project->results().set(surveyPoint("R1", std::to_string(100 + i), "dry"));
        keepSteps(EditSteps::kMostBytes);
    }
    void cleanup()
    {
        m_steps.reset();
        m_boxes.reset();
        m_project.reset();
    }

    void saysWhatWouldBeTakenBack()
    {
        QVERIFY(!m_steps->canUndo() && !m_steps->canRedo() && m_steps->undoTitle().isEmpty());
        remove(0, 2);
        remark(50, "wet");
        QCOMPARE(m_steps->titles(), QStringList({"Delete 2 results"_q, "Correct a result"_q}));
        QCOMPARE(m_steps->undoTitle(), "Correct a result"_q);
        m_steps->undo();
        QCOMPARE(m_project->host.told, "Taken back: Correct a result"_q);
        QCOMPARE(remarkOf(50), std::string("dry"));
        m_steps->undo();
        QCOMPARE(m_project->results().pointCount(), std::size_t(100));
        QVERIFY(!m_steps->canUndo() && !m_project->manager->isChanged());
        QCOMPARE(m_steps->redoTitle(), "Delete 2 results"_q);
        m_steps->redo();
        QCOMPARE(m_project->host.told, "Done again: Delete 2 results"_q);
        QCOMPARE(m_project->results().pointCount(), std::size_t(98));
        m_project->publish(events::kProjectModified); // it was saved
        QCOMPARE(m_project->host.told, QString());
        m_project->host.tell("Points restored: 1."_q); // by somebody else
        remark(51, "new");                             // what was taken back cannot be done again
        QVERIFY(!m_steps->canRedo());
        QCOMPARE(m_steps->titles().size(), 2);
        QCOMPARE(m_project->host.told, "Points restored: 1."_q);
        m_steps->undo();
        remark(51, "newer");
        QCOMPARE(m_project->host.told, QString());
    }

    void showsTheWindowsAWholeWayOnce()
    {
        for (int i = 0; i < 5; ++i)
            remark(i, "wet");
        basalt::Dictionary limits;
        limits.set("hor_accu_max", "1");
        m_project->manager->setQualityParameters(limits);
        QCoreApplication::processEvents();
        const EventLog log(m_project->host.events,
                           "REFRESH_DESIGN_LAYER,REFRESH_DESIGN_TABLE,REFRESH_SURVEY_LAYER,"
                           "REFRESH_SURVEY_TABLE,ON_PROJECT_CHANGED");
        m_steps->goTo(0);
        QCOMPARE(log.names(),
                 (std::vector<std::string>{"REFRESH_SURVEY_TABLE", "REFRESH_SURVEY_LAYER"}));
        QCOMPARE(m_project->host.told, "Taken back: 6 steps"_q);
        m_steps->goTo(0);
        QCOMPARE(log.events.size(), std::size_t(2));
        m_steps->goTo(6);
        QCOMPARE(log.events.size(), std::size_t(4));
        QCOMPARE(m_project->manager->qualityParameters().text("hor_accu_max"),
                 std::string_view("1"));
    }

    void theOldestGoWhenTheMemoryIsFull()
    {
        keepSteps(20 * 1000);
        for (int i = 0; i < 60; ++i)
            remark(i, "wet");
        const int kept = m_steps->titles().size();
        QVERIFY2(kept > 5 && kept < 40, QByteArray::number(kept));
        QCOMPARE(m_steps->done(), kept);
        m_steps->goTo(0);
        QVERIFY(!m_steps->canUndo() && m_steps->undoTitle().isEmpty());
        QCOMPARE(remarkOf(59 - kept), std::string("wet"));
        QCOMPARE(remarkOf(60 - kept), std::string("dry"));
        m_steps->undo();
        QCOMPARE(remarkOf(59 - kept), std::string("wet"));
        m_steps->goTo(kept);
        QCOMPARE(remarkOf(59), std::string("wet"));
        QVERIFY(m_boxes->told().isEmpty());
    }

    void aStepThatIsTooLargeIsAskedAbout()
    {
        keepSteps(10 * 1000);
        remark(99, "wet");
        m_boxes->answer = Boxes::Button::Yes;
        remove(0, 50);
        QVERIFY(m_boxes->told().isEmpty()); // not before the command has told what it did
        QCoreApplication::processEvents();
        const QStringList told = m_boxes->told();
        QVERIFY(told.size() == 1 && told[0].contains("\"Delete 50 results\" can be taken back"_q));
        QVERIFY(told[0].endsWith("cannot be taken back later either: 1. Take it back?"_q));
        QCOMPARE(m_project->results().pointCount(), std::size_t(100));
        QCOMPARE(m_steps->titles(), QStringList("Correct a result"_q));
        QVERIFY(m_steps->canUndo() && !m_steps->canRedo());

        m_boxes->answer = Boxes::Button::No; // as Escape gives it
        remove(0, 50);
        QCoreApplication::processEvents();
        QCOMPARE(m_boxes->told().size(), 1);
        QVERIFY(!m_boxes->last.defaultButton); // Enter keeps it, too
        QCOMPARE(m_project->results().pointCount(), std::size_t(50));
        QVERIFY(!m_steps->canUndo() && m_steps->titles().isEmpty());
        remark(98, "wet");
        QCoreApplication::processEvents();
        m_steps->undo();
        QCOMPARE(remarkOf(98), std::string("dry"));
        QVERIFY(m_boxes->told().isEmpty());
    }

    void endWithTheProject()
    {
        remark(1, "wet");
        QSignalSpy changed(&*m_steps, &EditSteps::changed);
        m_project->publish("UPDATE_SYSTEM_STATUS_EVENT");
        QVERIFY(m_steps->canUndo()); // it is still the same project
        m_project->tellProject("");
        QVERIFY(!m_steps->canUndo() && !changed.isEmpty());
        m_project->tellProject("/b");
        remark(2, "wet");
        QVERIFY(m_steps->canUndo());
        m_project->tellProject("/c");
        QVERIFY(!m_steps->canUndo());
    }

    void aDoubleClickGoesToAStep()
    {
        for (int i = 0; i < 4; ++i)
            remark(i, "wet");
        DlgEditSteps::open(m_project->host, *m_steps);
        const QPointer<QWidget> dialog = findWindow<DlgEditSteps>();
        QVERIFY(dialog != nullptr);
        auto* const list = dialog->findChild<QListWidget*>();
        QCOMPARE(list->count(), 5);
        QCOMPARE(list->currentRow(), 4);
        const QPoint second = list->visualItemRect(list->item(2)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(m_steps->done(), 2);
        QCOMPARE(remarkOf(1), std::string("wet"));
        QCOMPARE(remarkOf(2), std::string("dry"));
        QCOMPARE(list->currentRow(), 2);
        QTest::keyClick(list, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dialog == nullptr);
        QCOMPARE(m_steps->done(), 2);
    }

private:
    void keepSteps(std::size_t mostBytes)
    {
        m_steps.reset();
        m_steps.emplace(m_project->host, mostBytes);
    }
    void remove(int from, int to)
    {
        std::vector<PointName> names;
        for (int i = from; i < to; ++i)
            names.push_back({"R1", std::to_string(100 + i)});
        QCOMPARE(m_project->manager->deleteSurveyPoints(names), names.size());
    }
    void remark(int place, const char* text)
    {
        SurveyCorrection correction;
        correction.remarks = text;
        QCOMPARE(
            m_project->manager->correctSurveyPoint({"R1", std::to_string(100 + place)}, correction),
            1);
    }
    std::string remarkOf(int place)
    {
        const SurveyPoint* const point =
            m_project->results().find("R1", std::to_string(100 + place));
        return point == nullptr ? "(none)" : point->remarks;
    }
    std::optional<OpenProject> m_project;
    std::optional<Boxes> m_boxes;
    std::optional<EditSteps> m_steps;
};

QTEST_MAIN(EditStepsTest)
#include "EditStepsTest.moc"
