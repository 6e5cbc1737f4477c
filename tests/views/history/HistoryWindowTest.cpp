#include "tests/views/history/HistoryPlace.h"

class HistoryWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unsavedStepsStandOnTopUntilTheyAreSaved()
    {
        HistoryProject project;
        QVERIFY(project.isOpen);
        const Shown seen(project);
        QAbstractItemModelTester tester(seen.table("actions").model());
        QAbstractItemModelTester itemTester(seen.table("items").model());
        QCOMPARE(seen.actions(), QStringList("Import 9 results|done"_q));
        QCOMPARE(seen.changes().size(), 9);
        QCOMPARE(seen.changes().first(), "1|new|||"_q);

        project.remark("2", "wet");
        project.remove({"3", "4"});
        QCOMPARE(seen.actions(),
                 (QStringList{"Delete 2 results|not saved yet"_q,
                              "Correct a result|not saved yet"_q, "Import 9 results|done"_q}));
        seen.choose(1);
        QCOMPARE(seen.changes(), QStringList("2|changed|remarks|dry|wet"_q));
        seen.choose(0);
        QVERIFY(seen.changes().first().startsWith("3|deleted||"_q));
        QVERIFY(seen.changes().first().contains("remarks dry"_q));
        QVERIFY(seen.label("counts").contains("not saved yet: 2"_q));

        project.save();
        QCOMPARE(seen.actions().first(), "Delete 2 results|done"_q);
        QVERIFY(seen.label("counts").contains("not saved yet: 0"_q));
        project.steps.undo();
        QCOMPARE(seen.actions().first(), "Delete 2 results|taken back, not saved yet"_q);
        QCOMPARE(seen.table("actions").selectedRows(), std::vector<int>{1}); // as before
    }

    void whatWasDeletedYesterdayIsRestoredInOneStep()
    {
        HistoryProject project;
        project.remove({"3", "4", "5"});
        project.save();
        project.manager->clear();
        QVERIFY(project.manager->openProject(project.place).isDone());
        const Shown seen(project);
        const EventLog log(project.host.events, "REFRESH_SURVEY_LAYER,REFRESH_DESIGN_LAYER");
        seen.select(0);
        seen.select(1, Qt::ShiftModifier);
        seen.press("Restore These");
        QCOMPARE(project.remarksOf("3"), std::string("dry"));
        QCOMPARE(project.remarksOf("4"), std::string("dry"));
        QCOMPARE(project.remarksOf("5"), std::string("(gone)"));
        QCOMPARE(project.host.told, "Points restored: 2."_q);
        QCOMPARE(log.names(), std::vector<std::string>{"REFRESH_SURVEY_LAYER"});
        QCOMPARE(seen.actions().first(), "Restore 2 points|not saved yet"_q);

        project.remark("4", "wet");
        QCOMPARE(seen.actions().size(), 4);
        seen.choose(2); // the deletion
        QTest::keyClick(&seen.table("items"), Qt::Key_A, Qt::ControlModifier);
        seen.press("Restore These");
        QCOMPARE(project.host.told,
                 "Points restored: 2. In place of another state: 1. Already so: 1."_q);
        QCOMPARE(project.remarksOf("4"), std::string("dry"));
        project.steps.undo();
        QCOMPARE(project.remarksOf("4"), std::string("wet"));
        QCOMPARE(project.remarksOf("5"), std::string("(gone)"));
    }

    void aCorrectionGivesBackItsFieldAlone()
    {
        HistoryProject project;
        project.remark("2", "wet");
        project.save();
        SurveyCorrection correction;
        correction.surveyor = "Wang";
        project.manager->correctSurveyPoint({"1001", "2"}, correction);
        const Shown seen(project);
        seen.choose(1);
        seen.select(0);
        seen.press("Restore These");
        QCOMPARE(project.remarksOf("2"), std::string("dry"));
        QCOMPARE(project.results().find("1001", "2")->surveyor, std::string("Wang"));
        seen.choose(3); // the import: points that came
        seen.select(0);
        seen.press("Restore These");
        QCOMPARE(project.host.told, "Points restored: 0. Not restored, because they were new then "
                                    "or are gone now: 1."_q);
        QCOMPARE(project.results().pointCount(), std::size_t(9));
    }

    void theLifeOfOnePoint()
    {
        HistoryProject project;
        project.remark("2", "wet");
        project.remark("3", "windy");
        project.save();
        project.remove({"2", "3"});
        project.publish(events::kShowPointHistory, payload::selectedPoint("2"_q, "1001"_q));
        const QPointer<DlgHistory> window = findWindow<DlgHistory>();
        QVERIFY(window != nullptr);
        const Shown seen(project);
        QCOMPARE(seen.window, window); // there is one
        QCOMPARE(seen.actions(),
                 (QStringList{"Delete 2 results|not saved yet"_q, "Correct a result|done"_q,
                              "Import 9 results|done"_q}));
        const QStringList life = seen.changes();
        QCOMPARE(life.size(), 3);
        QVERIFY(life[0].startsWith("2|deleted"_q));
        QCOMPARE(life[1], "2|changed|remarks|dry|wet"_q);
        QCOMPARE(life[2], "2|new|||"_q);
        seen.select(0);
        QVERIFY(!seen.window->findChild<QPushButton*>("restore"_q)->toolTip().isEmpty());
        seen.select(1, Qt::ShiftModifier); // of two actions
        QVERIFY(!seen.window->findChild<QPushButton*>("restore"_q)->isEnabled());
        seen.select(0);
        seen.press("Restore These");
        QCOMPARE(project.remarksOf("2"), std::string("wet"));
        QCOMPARE(project.remarksOf("3"), std::string("(gone)"));
    }

    void acceptedProblemsAreToldByTheirKindsAndReasons()
    {
        HistoryProject project;
        const Acceptance problem{"too_far", false, {"1001", "2"}, "f", "as agreed"_q, {}, {}};
        QCOMPARE(project.manager->accept({problem}), std::size_t(1));
        project.save();
        const Shown seen(project);
        QCOMPARE(seen.actions().first(), "Accept a problem|done"_q);
        QCOMPARE(seen.cells("actions", {HistoryActionModel::Reason}).first(), "as agreed"_q);
        const QStringList accepted("2|accepted|Too far from the design||as agreed"_q);
        QCOMPARE(seen.changes(), accepted);
        seen.select(0);
        seen.press("Restore These");
        QCOMPARE(project.host.told,
                 "Points restored: 0. Accepted problems cannot be restored here: 1."_q);
        const EventLog log(project.host.events, events::kAcceptancesChanged);
        project.steps.undo();
        QCOMPARE(log.names().size(), std::size_t(1));
        QCOMPARE(seen.actions().first(), "Accept a problem|taken back, not saved yet"_q);
        seen.choose(0);
        QCOMPARE(seen.changes(), QStringList("2|open again|Too far from the design|as agreed|"_q));
        QVERIFY(project.manager->acceptances().empty());
    }

    void filters()
    {
        HistoryProject project;
        project.remark("2", "wet");
        const Shown seen(project);
        auto& bar = *seen.window->findChild<HistoryFilterBar*>();
        seen.typePoint("1001");
        QVERIFY(seen.label("note").contains("its line and its number"_q));
        QCOMPARE(seen.actions().size(), 2);
        seen.typePoint("1001/5");
        QCOMPARE(seen.actions(), QStringList("Import 9 results|done"_q));
        seen.typePoint("1001/77");
        QCOMPARE(seen.actions(), QStringList());
        QCOMPARE(seen.label("note"), "No action passes the filters."_q);
        seen.press("Clear Filters");
        QCOMPARE(seen.actions().size(), 2);

        auto& days = *bar.findChild<QCheckBox*>();
        const QList<QDateEdit*> dates = bar.findChildren<QDateEdit*>();
        days.setChecked(true);
        QCOMPARE(seen.actions().size(), 2); // today
        dates[0]->setDate(QDate::currentDate().addDays(1));
        QTest::qWait(Shown::kTyped);
        QVERIFY(seen.label("note").contains("before the first"_q));
        dates[1]->setDate(QDate::currentDate().addDays(2));
        QTest::qWait(Shown::kTyped);
        QCOMPARE(seen.actions(), QStringList());
        days.setChecked(false);

        auto& kinds = *bar.findChildren<ChoiceBox*>()[1];
        kinds.setCurrentIndex(kinds.findText("Corrections of results"_q));
        QCOMPARE(seen.actions(), QStringList("Correct a result|not saved yet"_q));
    }

    void aMenuKeepsToWhatItWasOpenedOn()
    {
        HistoryProject project;
        const Shown seen(project);
        auto* const field =
            seen.window->findChild<HistoryFilterBar*>()->findChild<QLineEdit*>("point"_q);
        QTest::keyClicks(field, "1001/5"_q);
        QMenu* menu = seen.menuAt("items", 2); // before the filter is used
        QTest::qWait(Shown::kTyped);
        QVERIFY(menu != nullptr && menu->isVisible());
        QTest::keyClick(menu, Qt::Key_H);
        QCOMPARE(field->text(), "1001/3"_q);
        QCOMPARE(seen.changes(), QStringList("3|new|||"_q));

        seen.press("Clear Filters");
        project.remark("2", "wet");
        QCOMPARE(seen.actions().size(), 2);
        menu = seen.menuAt("actions", 0);
        project.remove({"3"});
        QCOMPARE(seen.actions().size(), 2); // later
        menu->close();
        QCOMPARE(seen.actions().size(), 3);
        menu = seen.menuAt("items", 0);
        project.tellProject(""); // ends all of it
        QVERIFY(menu != nullptr && (seen.window == nullptr || !seen.window->isVisible()));
    }

    void personsAndKindsThatOnlyTheDatabaseKnows()
    {
        HistoryProject project;
        DBAdapter database;
        QVERIFY(
            database.open(lum::databaseConnection(project.place.database().toStdString()).c_str()));
        const Shown seen(project);
        QVERIFY(
            database.execute("update ProjectHistory set person = 'Li', kind = 'drawn_by_hand'", 0));
        OpenProject::settings().set(HistoryAuthor::kPersonSetting, "O'Neil 测");
        project.remark("2", "wet");
        QCOMPARE(seen.actions().back(), "Import 9 results|done"_q); // is not read again
        project.save();
        QCOMPARE(seen.actions(), (QStringList{"Correct a result|done"_q, "drawn_by_hand|done"_q}));

        const QList<ChoiceBox*> boxes =
            seen.window->findChild<HistoryFilterBar*>()->findChildren<ChoiceBox*>();
        boxes[0]->setCurrentIndex(boxes[0]->findText("O'Neil 测"_q));
        QCOMPARE(seen.actions(), QStringList("Correct a result|done"_q));
        boxes[0]->setCurrentIndex(boxes[0]->findText("Li"_q));
        QCOMPARE(seen.actions(), QStringList("drawn_by_hand|done"_q));
        seen.press("Clear Filters");
        boxes[1]->setCurrentIndex(boxes[1]->findText("drawn_by_hand"_q));
        QCOMPARE(seen.actions(), QStringList("drawn_by_hand|done"_q));
    }

    void tellsFieldsAsTheOtherWindowsDo()
    {
        HistoryProject project;
        basalt::Dictionary parameters(project.manager->designParameters());
        parameters.set("r_line_dist", "15");
        project.manager->setDesignParameters(parameters);
        parameters.set("r_line_dist", "25");
        project.manager->setDesignParameters(parameters);
        const Shown seen(project);
        QCOMPARE(seen.changes(), QStringList("|changed|R-Line Dist|15|25"_q));
        const HistoryTexts texts;
        QCOMPARE(texts.caption(HistoryData::Design, "line_num"), "line num"_q);
        QCOMPARE(texts.value(HistoryData::Design, "type", "0"), "S"_q);
        QCOMPARE(texts.value(HistoryData::Design, "type", "1"), "R"_q);
    }

    void theReasonOfAnUnsavedStepCanBeTyped()
    {
        HistoryProject project;
        project.remark("2", "wet");
        const Shown seen(project);
        CustomTableWidget& table = seen.table("actions");
        QCOMPARE(seen.actions().size(), 2);
        const auto edit = [&](int row) {
            const QModelIndex cell = table.model()->index(row, HistoryActionModel::Reason);
            table.setCurrentIndex(cell);
            QTest::keyClick(&table, Qt::Key_F2);
            return table.findChild<QLineEdit*>();
        };
        QLineEdit* const field = edit(0);
        QVERIFY(field != nullptr);
        QTest::keyClicks(field, "after the storm"_q);
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor enters its text later
        QVERIFY(seen.window->isVisible());
        project.save();
        QCOMPARE(seen.cells("actions", {HistoryActionModel::Reason}).first(), "after the storm"_q);
        QTRY_VERIFY(table.findChild<QLineEdit*>() == nullptr);
        QVERIFY(edit(0) == nullptr); // it is saved
    }
};

QTEST_MAIN(HistoryWindowTest)
#include "HistoryWindowTest.moc"
