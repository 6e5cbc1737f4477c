#include "tests/project/SavedProject.h"
#include "tests/support/SmallFiles.h"

namespace {

/// The names of the changes of a life, each with its field: "changed remarks a>b".
std::vector<std::string> told(const std::vector<HistoryReader::Event>& events)
{
    std::vector<std::string> texts;
    for (const auto& [action, items] : events) {
        for (const HistoryItem& item : items) {
            const std::string change = action.kind +
                                       (action.state == HistoryState::Done ? " " : " back ") +
                                       nameOf(item.change);
            if (item.change != HistoryChange::Changed)
                texts.push_back(change);
            else
                for (const auto& [key, old, later] : fieldsOf(action, item))
                    texts.push_back(change + ' ' + key + ' ' + old + '>' + later);
        }
    }
    return texts;
}

class History : public SavedProject
{
protected:
    [[nodiscard]] Texts life(const PointName& name) { return told(eventsOf(name)); }
    [[nodiscard]] std::string tables() const
    {
        return rowsOf(database, "ProjectHistory") + rowsOf(database, "ProjectHistoryItem");
    }
    /// The points as they were before an action.
    [[nodiscard]] HistoryPoints before(const HistoryAction& action)
    {
        return pointsBefore(action, items(action), manager.designPoints(), manager.surveyPoints());
    }
};

} // namespace

TEST_F(History, APointWithANewNameTellsTheOldOne)
{
    import("1,7,a\n1,C10012034,check\n");
    SurveyCorrection correction;
    correction.pointNumber = "9";
    correction.remarks = "b";
    ASSERT_EQ(manager.correctSurveyPoint({"1", "7"}, correction), 1);
    remark({"1", "C10012034_0"}, "again");
    save();
    EXPECT_EQ(life({"1", "7"}), (Texts{"correct_result gone", "import_survey came"}));
    EXPECT_EQ(life({"1", "9"}),
              (Texts{"correct_result came", "correct_result changed point_num 7>9",
                     "correct_result changed remarks a>b"}));
    EXPECT_EQ(life({"1", "C10012034"}),
              (Texts{"correct_result changed remarks check>again", "import_survey came"}));
    // The check point has another counter in memory.
    const HistoryPoints points = before(actions()[0]);
    ASSERT_NE(points.results.find("1", "C10012034_0"), nullptr);
    EXPECT_EQ(points.results.find("1", "C10012034_0")->remarks, "check");
}

TEST_F(History, TellsWhatWasTakenBackBeforeASaveWithTheNextChange)
{
    save();
    const QByteArray before = TestFolder::read(place.database());
    import("1,7,a\n");
    const std::shared_ptr<Edit> first = edits.back();
    takeBack();
    EXPECT_FALSE(manager.isChanged());
    save();
    EXPECT_EQ(rowsOf(database, "sqlite_master").find("History"), std::string::npos)
        << "made by the first change";
    EXPECT_EQ(TestFolder::read(place.database()).size(), before.size());
    import("1,8,b\n");
    save();
    ASSERT_EQ(actions().size(), 2U);
    EXPECT_EQ(actions()[0].state, HistoryState::Done);
    EXPECT_EQ(actions()[1].state, HistoryState::Undone);
    EXPECT_EQ(actions()[1].points, 1U);
    EXPECT_TRUE(items(actions()[1]).empty());
    EXPECT_TRUE(life({"1", "7"}).empty());
    // Taken back and done again it is told once, and what was saved and comes again not at all.
    takeBack();
    EXPECT_EQ(manager.exchange(first, false), 1);
    for (const bool isTakenBack : {true, false, true, false})
        EXPECT_EQ(manager.exchange(first, isTakenBack), 1);
    save();
    ASSERT_EQ(actions().size(), 4U);
    EXPECT_EQ(actions()[0].state, HistoryState::Done);
    EXPECT_EQ(actions()[1].state, HistoryState::TakenBack);
    for (const bool isTakenBack : {true, false})
        EXPECT_EQ(manager.exchange(first, isTakenBack), 1);
    EXPECT_FALSE(manager.isChanged());
    EXPECT_TRUE(manager.unsavedEdits().entries().empty());
}

TEST_F(History, ASaveWithoutAChangeKeepsEveryByteOfIt)
{
    import("1,7,a\n");
    manager.setReason(0, "second crew"_q);
    save();
    EXPECT_EQ(actions()[0].reason, "second crew"_q);
    const std::string before = tables() + rowsOf(database, "sqlite_master");
    for (int i = 0; i < 2; ++i) {
        reopen();
        manager.checkQuality(); // a verdict is no change of the user's
        save();
    }
    EXPECT_EQ(tables() + rowsOf(database, "sqlite_master"), before);
}

TEST_F(History, IsWrittenOnceWhenASaveFails)
{
    import("1,7,a\n");
    const QString parameters = place.folder + "/qc_param.ini"_q;
    ASSERT_TRUE(QFile::remove(parameters) && QDir().mkpath(parameters + "/in the way"_q));
    EXPECT_FALSE(manager.saveProject(place).isDone());
    EXPECT_TRUE(manager.isChanged());
    ASSERT_TRUE(QDir(parameters).removeRecursively());
    save();
    EXPECT_EQ(actions().size(), 1U);
    remark({"1", "7"}, "b");
    {
        const SmallFiles limit(10000);
        EXPECT_FALSE(manager.saveProject(place).isDone());
    }
    save();
    EXPECT_EQ(actions().size(), 2U) << "the failed save owes it to the next one";
}

/// More points than the history keeps one by one.
TEST_F(History, ThousandsOfDeletedResultsComeBackAsTheyWere)
{
    import("11,1001,first\n");
    QByteArray rows;
    for (int i = 0; i < 6000; ++i)
        rows += QByteArray::number(10 + i % 3) + ',' + QByteArray::number(1000 + i) + ",测 \\\t" +
                QByteArray::number(i) + '\n';
    import(rows + "11,C10012034,one\n11,C10012034,two\n");
    import(QByteArray(rows).replace("\t1\n", "\t2\n"));
    manager.surveyPoints().find("11", "1004")->dateTime = 1700000000123;
    save();
    const std::string before = rowsOf(database, "ExplorationResultItem");
    const Texts imports{"import_survey changed remarks 测 \\\t1>测 \\\t2",
                        "import_survey changed remarks first>测 \\\t1", "import_survey came"};
    EXPECT_EQ(life({"11", "1001"}), imports);
    manager.deleteSurveyLines({"10"_q, "11"_q, "12"_q});
    save();
    reopen();
    ASSERT_TRUE(manager.surveyPoints().empty());
    EXPECT_EQ(life({"11", "1001"})[0], "delete_results gone");
    EXPECT_EQ(life({"11", "1001"})[1], imports[0]);
    EXPECT_EQ(life({"11", "C10012034"}).size(), 4U);
    EXPECT_EQ(life({"11", "1002"}), Texts{}) << "it is on line 12";
    const HistoryAction deletion = actions()[0];
    EXPECT_EQ(deletion.points, 6002U);
    EXPECT_EQ(deletion.title(), "Delete 6,002 results"_q);
    EXPECT_EQ(manager.restorePoints(this->before(deletion)), 6002U);
    save();
    EXPECT_EQ(rowsOf(database, "ExplorationResultItem"), before);
    EXPECT_EQ(life({"11", "1001"})[0], "restore came");
    takeBack();
    EXPECT_TRUE(manager.surveyPoints().empty());
}

// Other programs may have been at the database: the points are saved whatever became of the
// history.
TEST_F(History, OneThatIsBrokenKeepsNobodyFromSaving)
{
    import("1,7,a\n");
    save();
    execute("delete from ProjectHistory"); // its items stay
    remark({"1", "7"}, "b");
    save();
    ASSERT_EQ(actions().size(), 1U);
    EXPECT_EQ(actions()[0].id, 2);
    execute("create trigger closed before insert on ProjectHistoryItem begin "
            "select raise(fail, 'closed'); end");
    const std::string before = tables();
    remark({"1", "7"}, "c");
    expectNotice(manager.saveProject(place), "does not take what you have changed: closed.");
    EXPECT_FALSE(manager.isChanged());
    EXPECT_EQ(tables(), before);
    execute("drop trigger closed; alter table ProjectHistory drop column reason");
    manager.clear();
    expectNotice(manager.openProject(place), "has lost a table or a column");
    EXPECT_EQ(manager.surveyPoints().find("1", "7")->remarks, "c");
}

TEST_F(History, WhatCannotBeReadIsNotGuessed)
{
    QByteArray rows;
    for (int i = 0; i < 6000; ++i)
        rows += "1," + QByteArray::number(i) + ",a\n";
    for (const char* remarks : {"a", "b", "a", "b"}) {
        import(QByteArray(rows).replace(",a", QByteArray(",") + remarks));
        save();
    }
    const PointName point{"1", "7"};
    EXPECT_EQ(life(point).size(), 4U);
    execute("update ProjectHistory set form = 2 where id = 3");
    const Texts told = life(point);
    ASSERT_GT(told.size(), 3U);
    EXPECT_EQ(told.front(), "import_survey changed remarks a>b");
    EXPECT_NE(std::ranges::find(told, "import_survey changed remarks a>"), told.end());
    EXPECT_EQ(told.back(), "import_survey came");
    execute("update ProjectHistory set result_rows = x'0011' where id = 2");
    std::vector<HistoryReader::Event> events;
    HistoryFilter filter;
    filter.point = point;
    expectNotice(manager.history().life(filter, events), "whose points are damaged");
    EXPECT_EQ(events.size(), 2U);
}

TEST_F(History, ACopyHasAllOfItAndAnExportHasNone)
{
    import("1,7,a\n");
    save();
    remark({"1", "7"}, "b");
    manager.accept({{"too_far", false, {"1", "8"}, "of this record", "agreed"_q, {}, {}}});
    const ProjectPlace copy = ProjectPlace::planned(root.path(), "copy"_q);
    ASSERT_TRUE(QDir().mkpath(copy.folder));
    expectDone(manager.saveCopy(copy));
    EXPECT_EQ(actions().size(), 1U);
    save();
    EXPECT_EQ(actions().size(), 3U) << "once";
    ASSERT_EQ(manager.exportDesignDatabase({}, root.path("out.db"), false), 1);
    const std::string schema = rowsOf(root.path("out.db").toStdString(), "sqlite_master");
    EXPECT_EQ(schema.find("History"), std::string::npos);
    EXPECT_EQ(schema.find("Acceptance"), std::string::npos);
    manager.clear();
    expectDone(manager.openProject(copy));
    EXPECT_EQ(life({"1", "7"}).size(), 2U);
    EXPECT_EQ(manager.acceptances().size(), 1U);
}
