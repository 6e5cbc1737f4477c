#include "project/edits/EditParts.h"
#include "project/history/HistoryReader.h"
#include "project/history/HistoryWriter.h"
#include "tests/project/ExpectOutcome.h"
#include "tests/project/TestProject.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace {

using Microseconds = std::chrono::microseconds;

/// Saves a project whose results were others before.
Outcome saveChanged(const TestProject& before, TestProject project, const std::string& path)
{
    const auto edit = std::make_shared<Edit>(EditKinds::kImportSurvey, before.survey.pointCount());
    edit->add(std::make_unique<AllPoints<SurveyPoints>>(before.survey));
    UnsavedEdits edits;
    edits.add(edit, false);
    basalt::Dictionary none;
    const EditedData present{project.design,     project.survey, none, none, none, {},
                             project.acceptances};
    HistoryWriter history(edits, present, {"me"_q, "here"_q});
    return project.save(path, nullptr, &history);
}

/// Saves in a process of its own, killed after `patience`.
/// \returns whether the save had ended by then
bool saveAndKill(const TestProject& before, const TestProject& project, const std::string& path,
                 Microseconds patience)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(saveChanged(before, project, path).isDone() ? 0 : 1);
    std::this_thread::sleep_for(patience);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// The mark of all points and acceptances in the loaded project; empty when they differ or some are
/// missing.
std::string markOf(const TestProject& project)
{
    const std::string mark(project.coordParameters.text("coord_param_id"));
    bool isWhole = project.design.pointCount() == 5000 && project.survey.pointCount() == 1000;
    for (const auto& [number, line] : project.survey) {
        for (const SurveyPoint& point : line)
            isWhole = isWhole && point.remarks == mark;
    }
    isWhole = isWhole && project.acceptances.size() == 100;
    for (const Acceptance& acceptance : project.acceptances)
        isWhole = isWhole && acceptance.fingerprint == mark;
    return isWhole ? mark : std::string();
}

/// How many changes the history tells; -1 when one of them is not whole.
int changesIn(const std::string& path)
{
    DBAdapter database;
    EXPECT_TRUE(database.open(lum::databaseConnection(path).c_str()));
    HistoryReader history(database);
    std::vector<HistoryAction> actions;
    expectDone(history.actions({}, actions));
    for (const HistoryAction& action : actions) {
        std::vector<HistoryItem> items;
        expectDone(history.items(action, items));
        if (items.size() != 1000)
            return -1;
    }
    return static_cast<int>(actions.size());
}

} // namespace

// Two states of a project are saved in turn, and each save is killed at a random moment: the
// project must be one of the two states, and its history must tell of each change between them and
// of no other. KILLS=1000 project_test --gtest_filter=Interrupted* kills more.
TEST(InterruptedSave, LosesNoPoint)
{
    const int kills =
        qEnvironmentVariableIsSet("KILLS") ? qEnvironmentVariableIntValue("KILLS") : 20;
    const TestFolder folder;
    const std::string path = folder.path("p.db").toStdString();
    ASSERT_TRUE(makeDatabase(path));
    TestProject states[] = {TestProject::made(10, 500, "one"), TestProject::made(10, 500, "two")};
    const auto start = std::chrono::steady_clock::now();
    expectDone(saveChanged(states[1], states[0], path));
    const auto whole =
        std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start);
    std::mt19937 random(static_cast<unsigned>(kills));
    int present = 0;
    int changes = 1;
    int interrupted = 0;
    for (int i = 0; i < kills; ++i) {
        const Microseconds patience(random() % static_cast<unsigned>(whole.count() * 3 / 2));
        const bool isSaved = saveAndKill(states[present], states[1 - present], path, patience);
        TestProject found;
        const Outcome loading = found.load(path);
        ASSERT_TRUE(loading.isDone()) << patience.count() << " us: " << loading.detail();
        const std::string mark = markOf(found);
        ASSERT_TRUE(mark == "one" || mark == "two") << "half a save at " << patience.count();
        ASSERT_TRUE(!isSaved || (mark == "two") == (present == 0)) << "a finished save is lost";
        interrupted += loading.text().contains("interrupted"_q) ? 1 : 0;
        expectDone(found.load(path)); // which was told once
        changes += (mark == "two") == (present == 0) ? 1 : 0;
        ASSERT_EQ(changesIn(path), changes) << patience.count() << " us";
        present = mark == "two" ? 1 : 0;
    }
    EXPECT_GT(interrupted, kills / 10) << "the kills miss the saves";
    std::printf("%d of %d kills met a save between its ends\n", interrupted, kills);
}
