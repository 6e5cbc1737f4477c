#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "project/ui/EditSteps.h"
#include "protocol/Events.h"
#include "quality/ui/DlgRepeatChoice.h"
#include "tests/support/Boxes.h"
#include "tests/support/PopupMenu.h"
#include "tests/support/TestFolder.h"
#include "tests/views/problems/ProblemPlace.h"
#include "views/problems/DlgAcceptProblems.h"

namespace {

QAbstractButton* button(const QWidget& window, const char* text)
{
    for (QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
        if (button->text() == QString::fromUtf8(text))
            return button;
    }
    qFatal("no button %s", text);
}

/// Calls `act` with the dialog of the reason, once it is there.
void whenAsked(const std::function<void(DlgAcceptProblems&)>& act)
{
    QTimer::singleShot(0, [act] {
        auto* const dialog = qobject_cast<DlgAcceptProblems*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        act(*dialog);
        if (dialog->isVisible()) // a fault of the test would wait for ever
            dialog->reject();
    });
}

void answer(DlgAcceptProblems& dialog, const char* reason)
{
    dialog.findChild<QLineEdit*>()->insert(QString::fromUtf8(reason)); // as an input method does
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
}

} // namespace

class ProblemActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedProblemsLeaveTheListAndComeBack()
    {
        ProblemPlace place;
        EditSteps steps(place.host);
        place.find();
        QVERIFY(!button(place.window, "&Accept...")->isEnabled()); // nothing is selected
        place.click(2);
        place.click(3, Qt::ShiftModifier);
        whenAsked([](DlgAcceptProblems& dialog) {
            QVERIFY(!button(dialog, "Accept")->isEnabled());
            answer(dialog, "  ");
            QVERIFY(dialog.isVisible()); // blanks are no reason
            answer(dialog, "河岸 <bank>");
        });
        QTest::mouseClick(button(place.window, "&Accept..."), Qt::LeftButton);
        QCOMPARE(place.host.told, "Problems accepted: 2"_q);
        QCOMPARE(place.model.rowCount(), 10);
        place.step("next"); // from where it was
        QCOMPARE(place.selected(), QStringList("1001/5005"_q));
        place.find();
        QCOMPARE(place.model.rowCount(), 10);

        place.chooseKind("Accepted");
        QCOMPARE(place.model.rowCount(), 2);
        for (const char* const action : {"&Accept...", "&List for the Crew..."})
            QVERIFY(!button(place.window, action)->isVisible());
        place.click(0);
        QVERIFY(place.says("河岸 &lt;bank&gt;"));
        QTest::mouseClick(button(place.window, "Open A&gain"), Qt::LeftButton);
        QCOMPARE(place.host.told, "Problems open again: 1"_q);
        QCOMPARE(place.model.rowCount(), 1);
        steps.undo();
        QCOMPARE(place.model.rowCount(), 2);
        steps.undo();
        QCOMPARE(place.model.rowCount(), 12); // with none, all open ones are shown
    }

    void anAcceptanceIsAskedAboutOnce()
    {
        ProblemPlace place;
        place.find();
        place.click(0);
        whenAsked([](DlgAcceptProblems& dialog) {
            const auto said = dialog.findChildren<QLabel*>();
            QVERIFY(std::ranges::any_of(said, [](const QLabel* label) {
                return label->text() == "1001/5001: The design point has no result."_q;
            }));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QTest::mouseClick(button(place.window, "&Accept..."), Qt::LeftButton);
        QCOMPARE(place.model.rowCount(), 12);
        for (const char* const reason : {"flooded", ""}) {
            place.click(0);
            whenAsked([reason](DlgAcceptProblems& dialog) {
                if (*reason == '\0')
                    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down); // the earlier reason
                answer(dialog, reason);
            });
            QTest::mouseClick(button(place.window, "&Accept..."), Qt::LeftButton);
        }
        QCOMPARE(place.manager->acceptances().size(), 2U);
        for (const Acceptance& acceptance : place.manager->acceptances())
            QCOMPARE(acceptance.reason, "flooded"_q);
        place.click(0);
        whenAsked([&](DlgAcceptProblems& dialog) {
            place.manager->clear(); // a test of the worst
            place.tellProject("");
            answer(dialog, "gone");
        });
        QTest::mouseClick(button(place.window, "&Accept..."), Qt::LeftButton);
        QVERIFY(place.says("No project is open."));
    }

    void anOldListIsNotActedUpon()
    {
        ProblemPlace place;
        place.find();
        place.click(0);
        place.survey("1001", "5001");
        place.publish(events::kRefreshSurveyTable);
        for (const char* const action : {"&Accept...", "&List for the Crew..."})
            QVERIFY(!button(place.window, action)->isEnabled());
        QVERIFY(!place.window.findChild<QAction*>("measureAgain"_q)->isEnabled());
    }

    void aProposalIsCarriedOut()
    {
        ProblemPlace place;
        EditSteps steps(place.host);
        place.survey("1001", "5001");
        place.survey("1001", "5002").east = 100; // where 5005 is
        place.find();
        place.click(0);
        QVERIFY(button(place.window, "Ca&rry Out Proposal")->isEnabled() ==
                (place.model.problem(0).kind->captionText() == "Wrong name"_q));
        place.chooseKind("Wrong name");
        place.click(0);
        QTest::mouseClick(button(place.window, "Ca&rry Out Proposal"), Qt::LeftButton);
        QCOMPARE(place.host.told, "Result 1001/5002 is now 1001/5005. Ctrl+Z takes it back."_q);
        QVERIFY(place.results().find("1001", "5005") != nullptr);
        QVERIFY(!place.says("have changed")); // the list is made anew
        QVERIFY(place.kinds.findItems("Wrong name"_q, Qt::MatchExactly).isEmpty());
        QVERIFY(!place.model.choice().isAccepted && place.model.choice().kinds.empty());
        steps.undo();
        QVERIFY(place.results().find("1001", "5002") != nullptr && place.says("have changed"));
    }

    void repeatsAreResolvedInTheirOwnList()
    {
        ProblemPlace place;
        EditSteps steps(place.host);
        place.survey("1001", "5001");
        place.survey("1001", "5003");
        for (const char* const point : {"5001", "5003"}) {
            SurveyPoint again = *place.results().find("1001", point);
            again.pointNumber += 'F';
            again.elevation += 5;
            place.results().set(std::move(again));
        }
        place.find();
        const auto entry = [&](const char* kind, int row) {
            place.chooseKind(kind);
            place.click(row);
            return place.window.findChild<QAction*>("resolveRepeats"_q);
        };
        QVERIFY(!entry("Not surveyed", 0)->isEnabled());
        QVERIFY(entry("Resurvey out of range", 1)->isEnabled());
        const QPoint cell = place.table.visualRect(place.model.index(1, 2)).center();
        chooseFrom(openMenuAt(*place.table.viewport(), cell), "Resol&ve Repeats..."_q);
        const QPointer<DlgRepeatChoice> list = &DlgRepeatChoice::open(place.host);
        QCOMPARE(list->findChild<CustomTableWidget*>()->selectedRows(), std::vector<int>{1});
        list->close();
        QTRY_VERIFY(list == nullptr);
    }

    void writesWhatTheCrewHasToMeasure()
    {
        ProblemPlace place;
        const TestFolder folder;
        Boxes boxes;
        QString file = folder.path("明天 1.csv");
        const FileDialog::Responder files([&](const auto&) { return file; });
        place.survey("1001", "5001");
        place.survey("1002", "5006").pdop = 50;
        place.find();
        QTest::mouseClick(button(place.window, "&List for the Crew..."), Qt::LeftButton);
        QByteArray text = TestFolder::read(file);
        QCOMPARE(text.count("\n"), 12); // a heading, ten without a result, one with a bad one
        QVERIFY(text.contains("5006,1002") && !text.contains("5001,1001"));

        file = folder.path("one.csv");
        place.chooseKind("Not surveyed");
        place.click(1);
        const QPoint cell = place.table.visualRect(place.model.index(1, 2)).center();
        chooseFrom(openMenuAt(*place.table.viewport(), cell), "Measure Agai&n..."_q);
        text = TestFolder::read(file);
        QVERIFY(text.contains("5003") && !text.contains("5002"));
        file = folder.path("x.kml"); // there is no coordinate system
        QTest::mouseClick(button(place.window, "&List for the Crew..."), Qt::LeftButton);
        QVERIFY(boxes.last.kind == LumMessageBox::Kind::Error);
        QVERIFY2(boxes.last.text.contains("coordinate system"_q), qPrintable(boxes.last.text));
    }
};

QTEST_MAIN(ProblemActionsTest)
#include "ProblemActionsTest.moc"
