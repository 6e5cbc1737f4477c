#include "tests/project/InterruptedSaves.h"

#include "tests/project/TestProject.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

namespace {

using Microseconds = std::chrono::microseconds;

/// Saves in a process of its own, killed after `patience`.
/// \returns whether the save had ended by then
bool saveAndKill(const TestProject& project, const std::string& path, Microseconds patience)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(project.save(path).isDone ? 0 : 1);
    std::this_thread::sleep_for(patience);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Which state the loaded project is in: the mark of all its points; empty when they differ or
/// some are missing.
std::string stateOf(const TestProject& project, std::size_t designCount, std::size_t surveyCount)
{
    const std::string state(project.coordParameters.text("coord_param_id"));
    bool isWhole =
        project.design.pointCount() == designCount && project.survey.pointCount() == surveyCount;
    for (const auto& [number, line] : project.survey) {
        for (const SurveyPoint& point : line)
            isWhole = isWhole && point.remarks == state;
    }
    return isWhole ? state : std::string();
}

} // namespace

void killSaves(int times)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("p.db")).toStdString();
    ASSERT_TRUE(makeDatabase(path));
    TestProject states[] = {TestProject::made(10, 500, "one"), TestProject::made(10, 500, "two")};
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(states[0].save(path).isDone);
    const auto whole =
        std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start);
    std::mt19937 random(static_cast<unsigned>(times));
    int present = 0;
    int interrupted = 0;
    for (int i = 0; i < times; ++i) {
        const Microseconds patience(random() % static_cast<unsigned>(whole.count() * 3 / 2));
        const bool isSaved = saveAndKill(states[1 - present], path, patience);
        TestProject found;
        const StoreResult loading = found.load(path);
        ASSERT_TRUE(loading.isDone) << patience.count() << " us: " << loading.message.toStdString();
        const std::string state = stateOf(found, 5000, 1000);
        ASSERT_TRUE(state == "one" || state == "two") << "half a save at " << patience.count();
        ASSERT_TRUE(!isSaved || (state == "two") == (present == 0)) << "a finished save is lost";
        interrupted += loading.message.isEmpty() ? 0 : 1;
        present = state == "two" ? 1 : 0;
    }
    EXPECT_GT(interrupted, times / 10) << "the kills miss the saves";
    std::printf("%d of %d kills met a save between its ends\n", interrupted, times);
}
