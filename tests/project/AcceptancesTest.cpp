#include "quality/problems/ProblemList.h"
#include "tests/project/SavedProject.h"

namespace {

QString nothing(const Problem& /*problem*/)
{
    return {};
}

constexpr ProblemKind kFar{"too_far", "Too far", Severity::Error, nothing};
constexpr ProblemKind kGroup{"base_off", "Base off", Severity::Error, nothing};

constexpr const char* kLine = "测 '1'";

class ProjectAcceptances : public SavedProject
{
protected:
    ProjectAcceptances()
    {
        import("测 '1',7,a\n测 '1',8,b\n测 '1',C10012034,one\n测 '1',C10012034,two\n");
    }

    /// A problem of each result, and one of a group of so many.
    [[nodiscard]] ProblemList problems(std::uint32_t grouped = 212)
    {
        ProblemList list;
        for (const auto& [number, line] : manager.surveyPoints()) {
            for (const SurveyPoint& point : line)
                list.add(kFar, point);
        }
        Problem& group = list.add(kGroup);
        group.count = grouped;
        group.detail = list.keep("B3");
        manager.markAccepted(list);
        return list;
    }
    /// The points of the accepted problems.
    [[nodiscard]] Texts accepted(const ProblemList& list)
    {
        Texts points;
        for (const Problem& problem : list) {
            if (problem.isAccepted)
                points.push_back(problem.point.empty() ? "group" : std::string(problem.point));
        }
        return points;
    }
    [[nodiscard]] Texts accepted() { return accepted(problems()); }

    [[nodiscard]] Acceptance acceptance(const std::string& point, const QString& reason = {})
    {
        for (const ProblemList list = problems(); const Problem& problem : list) {
            if (problem.point != point)
                continue;
            auto found = acceptanceOf(problem, manager.designPoints(), manager.surveyPoints());
            EXPECT_TRUE(found);
            found->reason = reason;
            return std::move(*found);
        }
        ADD_FAILURE() << point;
        return {};
    }
    std::size_t accept(const std::string& point, const QString& reason = {})
    {
        return manager.accept({acceptance(point, reason)});
    }
    /// Also where they stand in the file.
    [[nodiscard]] std::string rows() const
    {
        return rowsOf(database, "(select rowid, * from ProblemAcceptance)") +
               rowsOf(database, "sqlite_master");
    }
    /// "came too_far >reason" of each change of the saved history, the newest first.
    [[nodiscard]] Texts history(const std::string& point)
    {
        Texts told;
        for (const auto& [action, items] : eventsOf({kLine, point})) {
            for (const HistoryItem& item : items) {
                if (item.data == HistoryData::AcceptedProblems)
                    told.push_back(std::string(nameOf(item.change)) + ' ' + item.field + ' ' +
                                   item.oldText + '>' + item.newText);
            }
        }
        return told;
    }
};

} // namespace

TEST_F(ProjectAcceptances, LastUntilTheirRecordChanges)
{
    EXPECT_EQ(accept("7", "behind the house"_q), 1U);
    EXPECT_EQ(manager.accept({acceptance("", "told the client"_q)}), 1U);
    const Texts both{"7", "group"};
    EXPECT_EQ(accepted(), both);
    EXPECT_EQ(accepted(problems(213)), Texts{"7"}) << "one more result is concerned";
    remark({kLine, "8"}, "another");
    manager.checkQuality();
    save();
    EXPECT_EQ(accepted(), both);
    reopen();
    EXPECT_EQ(accepted(), both);
    remark({kLine, "7"}, "moved");
    EXPECT_EQ(accepted(), Texts{"group"});
    EXPECT_EQ(accept("7"), 1U) << "as it is now";
    EXPECT_EQ(accepted(), both);
    takeBack();
    EXPECT_EQ(accepted(), Texts{"group"});
}

TEST_F(ProjectAcceptances, TellMeasurementsOfOneCheckPointApart)
{
    save();
    reopen();
    EXPECT_EQ(accept("C10012034_1"), 1U);
    EXPECT_EQ(accepted(), Texts{"C10012034_1"});
    EXPECT_EQ(remove({{kLine, "C10012034_0"}}), 1U);
    save();
    reopen();
    EXPECT_EQ(accepted(), Texts{"C10012034_0"}) << "it is counted anew";
}

TEST_F(ProjectAcceptances, AreStepsThatTheHistoryTells)
{
    const Acceptance seven = acceptance("7", "a"_q);
    EXPECT_EQ(manager.accept({seven, acceptance("8", "a"_q), seven}), 2U);
    EXPECT_EQ(edits.back()->title(), "Accept 2 problems"_q);
    const std::size_t steps = edits.size();
    EXPECT_EQ(manager.accept({seven}), 0U) << "it is";
    EXPECT_EQ(edits.size(), steps);
    EXPECT_EQ(accept("7", "第二, \"b\"\n"_q), 1U);
    EXPECT_EQ(manager.endAcceptances({seven, acceptance("C10012034_0")}), 1U);
    EXPECT_EQ(accepted(), Texts{"8"});
    save();
    EXPECT_EQ(history("7"), (Texts{"gone too_far 第二, \"b\"\n>", "changed too_far a>第二, \"b\"\n",
                                   "came too_far >a"}));
    EXPECT_EQ(history("8"), Texts{"came too_far >a"});
    takeBack();
    takeBack();
    save();
    reopen();
    EXPECT_EQ(history("7")[0], "changed too_far 第二, \"b\"\n>a");
    EXPECT_EQ(manager.acceptances().find(seven)->reason, "a"_q);
    EXPECT_FALSE(manager.acceptances().find(seven)->person.isEmpty());
    EXPECT_LE(manager.acceptances().find(seven)->time, QDateTime::currentDateTimeUtc());
}

TEST_F(ProjectAcceptances, StayAsTheyWereInASaveWithoutAChange)
{
    save();
    EXPECT_EQ(rows().find("ProblemAcceptance"), std::string::npos) << "made by the first one";
    accept("8");
    accept("7", "a"_q);
    save();
    const std::string before = rows();
    EXPECT_NE(before.find("|too_far|0|测 '1'|7|"), std::string::npos) << before;
    for (int i = 0; i < 2; ++i) {
        reopen();
        remark({kLine, "8"}, i == 0 ? "x" : "y");
        save();
    }
    EXPECT_EQ(rows(), before);
}

TEST_F(ProjectAcceptances, OfANewerVersionAreKept)
{
    accept("7");
    save();
    execute("alter table ProblemAcceptance add until TEXT;"
            "insert into ProblemAcceptance (form, kind, until) values (2, 'too_far', 'May')");
    manager.clear();
    expectNotice(manager.openProject(place), "has written: 1.");
    EXPECT_EQ(accepted(), Texts{"7"});
    accept("8");
    save();
    EXPECT_NE(rows().find("|May|"), std::string::npos);
    execute("alter table ProblemAcceptance rename column reason to because");
    const std::string before = rows();
    manager.clear();
    expectNotice(manager.openProject(place), "not added to them");
    EXPECT_TRUE(accepted().empty());
    accept("8");
    save();
    EXPECT_EQ(rows(), before);
}

TEST_F(ProjectAcceptances, ATableThatTakesNoneKeepsNobodyFromSaving)
{
    accept("7");
    save();
    execute("create trigger t before insert on ProblemAcceptance begin "
            "select raise(abort, 'no more of them'); end");
    const std::string before = rows();
    accept("8");
    remark({kLine, "8"}, "saved");
    expectNotice(manager.saveProject(place), "no more of them");
    EXPECT_EQ(rows(), before);
    reopen();
    EXPECT_EQ(accepted(), Texts{"7"});
    EXPECT_EQ(manager.surveyPoints().find(kLine, "8")->remarks, "saved");
}

// The crew measures design points: those of resurveys and check points, each once.
TEST_F(ProjectAcceptances, AListForTheCrewTellsWhatItCannotHold)
{
    ASSERT_EQ(manager.importDesignCsv(root.write("d.csv", "10012034,1001,10,20,30,40,1,1\n"
                                                          "10012035,1001,11,20,30,40,1,0\n")),
              1);
    ProblemList found;
    for (const char* number : {"10012035F", "C10012034_3", "7", "C10012035F_0"})
        found.add(kFar, surveyPoint("1001", number));
    found.add(kGroup, "1001");
    std::vector<const Problem*> chosen;
    for (const Problem& problem : found)
        chosen.push_back(&problem);
    Outcome outcome = Outcome::done();
    ASSERT_EQ(manager.exportCrewList(chosen, root.path("明天.csv"), &outcome), 1);
    EXPECT_EQ(
        outcome.text(),
        "Points to measure: 2, of them not surveyed yet: 1. Names without a design point: 1, first "
        "1001/7. Problems of a line or a group, without a point: 1."_q);
}
