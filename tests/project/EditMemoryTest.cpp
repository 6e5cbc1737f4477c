#include "design/DesignGenerator.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "project/edits/EditParts.h"
#include "project/PointCorrection.h"
#include "tests/project/ExpectOutcome.h"
#include "tests/project/TestProject.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <limits>
#include <new>
#include <thread>

namespace {

std::atomic<long> allowance{std::numeric_limits<long>::max()};
std::atomic<long> bytesInUse{0};
std::thread::id testThread;
bool isForWorkers = false;

/// While it lives, this thread, or all the others, run out of memory after so many allocations. A
/// job that waits for ever for such a thread is ended, and fails the test.
class ScarceMemory
{
public:
    explicit ScarceMemory(long allocations, bool forWorkers = false)
    {
        alarm(60);
        testThread = std::this_thread::get_id();
        isForWorkers = forWorkers;
        allowance = allocations;
    }
    ~ScarceMemory()
    {
        allowance = std::numeric_limits<long>::max();
        alarm(0);
    }
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;
};

} // namespace

void* operator new(std::size_t size)
{
    if ((std::this_thread::get_id() == testThread) != isForWorkers && allowance-- <= 0)
        throw std::bad_alloc();
    void* const memory = std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    bytesInUse += static_cast<long>(malloc_usable_size(memory));
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept
{
    bytesInUse -= static_cast<long>(malloc_usable_size(memory));
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    operator delete(memory);
}

namespace {

/// All that a project holds, as text.
std::string contentOf(DataProcessDataManager& manager)
{
    std::string all;
    const auto add = [&all](const auto& points) {
        for (const auto& [number, line] : points) {
            all += "line " + number + '\n';
            EXPECT_FALSE(line.empty());
            for (const auto& point : line)
                all += point.lineNumber + '/' + point.pointNumber + ' ' +
                       std::to_string(point.north) + '\n';
        }
        all += std::to_string(points.pointCount());
    };
    add(manager.designPoints());
    add(manager.surveyPoints());
    for (const auto& [number, line] : manager.surveyPoints()) {
        for (const SurveyPoint& point : line)
            all += point.remarks + ' ';
    }
    for (const Acceptance& acceptance : manager.acceptances())
        all += acceptance.kind + acceptance.name.point + acceptance.reason.toStdString() + '\n';
    for (const IDictionary* parameters :
         {&manager.qualityParameters(), &manager.designParameters()}) {
        for (std::size_t i = 0; i < parameters->size(); ++i)
            all += std::string(parameters->keyAt(i)) + '=' + std::string(parameters->valueAt(i));
    }
    return all;
}

class EditMemory : public testing::Test
{
protected:
    EditMemory()
    {
        TestProject project = TestProject::made(4, 300, "a remark that has memory of its own");
        manager.designPoints() = std::move(project.design);
        manager.surveyPoints() = std::move(project.survey);
        manager.setEditHandler([this](const std::shared_ptr<Edit>& made) { edit = made; });
    }

    /// Runs an operation with memory for nothing, for one allocation, for two and so on until it is
    /// done. Whenever it is not, nothing has changed.
    void expectAllOrNothing(const std::function<bool()>& operation)
    {
        const std::string before = contentOf(manager);
        const bool wasChanged = manager.isChanged();
        edit.reset();
        long allocations = 0;
        for (bool isDone = false; !isDone; ++allocations) {
            ASSERT_LT(allocations, 100000);
            try {
                const ScarceMemory scarce(allocations);
                isDone = operation();
            } catch (const std::bad_alloc&) {
                isDone = edit != nullptr; // all but the words about it
            }
            if (!isDone) {
                ASSERT_EQ(contentOf(manager), before) << allocations;
                ASSERT_EQ(manager.isChanged(), wasChanged) << allocations;
            }
        }
        EXPECT_NE(contentOf(manager), before);
    }
    /// The same of taking it back and doing it again.
    void expectAllOrNothingThereAndBack(const std::function<bool()>& operation)
    {
        const std::string before = contentOf(manager);
        expectAllOrNothing(operation);
        const std::string after = contentOf(manager);
        const std::shared_ptr<Edit> made = edit;
        ASSERT_NE(made, nullptr);
        for (const bool isTakenBack : {true, false}) {
            expectAllOrNothing([&] { return manager.exchange(made, isTakenBack) == 1; });
            EXPECT_EQ(contentOf(manager), isTakenBack ? before : after);
        }
    }

    TestFolder folder;
    Host host;
    DataProcessDataManager manager{&host};
    std::shared_ptr<Edit> edit;
};

} // namespace

TEST_F(EditMemory, ALackOfItLosesNoPoint)
{
    std::vector<PointName> names{{"1003", "nothing"}, {"no line", "1"}};
    for (const auto& [number, line] : manager.surveyPoints()) {
        for (const SurveyPoint& point : line) { // all of a line, and some of the others
            if (number == "1000" || point.pointNumber.back() == '5')
                names.push_back({number, point.pointNumber});
        }
    }
    expectAllOrNothingThereAndBack([&] { return manager.deleteSurveyPoints(names) != 0; });
    const PointName name{"1002", "10025010"};
    SurveyCorrection correction;
    correction.remarks = "another remark; which is as long as the first one";
    const auto correct = [&] { return manager.correctSurveyPoint(name, correction) == 1; };
    expectAllOrNothingThereAndBack(correct);
    correction.lineNumber = "1003"; // over the result that stands there
    correction.pointNumber = "10035010";
    expectAllOrNothingThereAndBack(correct);
    basalt::Dictionary grid;
    for (const char* key : {"r_line_end_num", "r_pt_end_num"})
        grid.set(key, "20");
    expectAllOrNothingThereAndBack(
        [&] { return manager.generateDesign(DesignLines::Receiver, grid) == 1; });
    const QString csv = folder.write("s.csv", "line num,point num,remarks\n1003,10035010,new\n"
                                              "a line that is new and long,1,new\n");
    expectAllOrNothingThereAndBack([&] { return manager.importSurveyCsv(csv) == 1; });
}

TEST_F(EditMemory, ALackOfItLosesNoAcceptance)
{
    std::vector<Acceptance> problems;
    for (int i = 0; i < 20; ++i)
        problems.push_back({"a kind with a long name",
                            i % 2 == 0,
                            {"1002", std::to_string(i)},
                            "0123456789abcdef",
                            "as agreed"_q,
                            {},
                            {}});
    expectAllOrNothingThereAndBack([&] { return manager.accept(problems) == 20; });
    problems.resize(7);
    for (Acceptance& problem : problems)
        problem.reason = "for another reason"_q;
    expectAllOrNothingThereAndBack([&] { return manager.accept(problems) == 7; });
    expectAllOrNothingThereAndBack([&] { return manager.endAcceptances(problems) == 7; });
}

TEST_F(EditMemory, ALackOfItLosesNoPointThatComesAlone)
{
    const SurveyPoint point = surveyPoint("1001", "", "a remark that has memory of its own");
    for (int i = 0; i < 200; ++i) { // so that blocks are split and made
        expectAllOrNothing([&] {
            SurveyPoint next = point;
            next.pointNumber = std::to_string(10015000 + i * 7 % 900) + 'b';
            manager.surveyPoints().set(std::move(next));
            return true;
        });
    }
    expectAllOrNothing([&] {
        manager.surveyPoints().set(surveyPoint("a line that is not there yet", "1"));
        return true;
    });
}

// A window keeps as many steps as their edits say that there is room for.
TEST_F(EditMemory, IsEstimatedWithinAFactorOfTwo)
{
    TestProject project;
    std::vector<PointName> names;
    for (int i = 0; i < 20000; ++i) {
        SurveyPoint point = surveyPoint(std::to_string(i % 100), std::to_string(100000 + i));
        point.photoPath = "photos/2024-05-31/" + point.pointNumber + ".jpg";
        project.survey.set(point);
        if (i / 100 % 20 == 0)
            names.push_back({point.lineNumber, point.pointNumber});
    }
    basalt::Dictionary none;
    const EditedData data{project.design,     project.survey, none, none, none, {},
                          project.acceptances};
    const auto expectEstimated = [&](std::unique_ptr<EditPart> part) {
        auto made = std::make_unique<Edit>(EditKinds::kDeleteResults);
        made->add(std::move(part));
        made->exchange(data);
        const auto estimated = static_cast<double>(made->bytes());
        const long inUse = bytesInUse;
        made.reset();
        EXPECT_LT(static_cast<double>(inUse - bytesInUse), estimated * 2);
        EXPECT_GT(static_cast<double>(inUse - bytesInUse), estimated / 2);
    };
    expectEstimated(std::make_unique<SomePoints<SurveyPoints>>(PointNames(names), SurveyPoints()));
    SurveyPoints renamed;
    renamed.set(surveyPoint("1", "another"));
    expectEstimated(std::make_unique<CorrectedPoint<SurveyPoints>>(
        PointName{"1", "100101"}, PointName{"1", "another"}, std::move(renamed)));
    TestProject other = project;
    expectEstimated(std::make_unique<AllPoints<SurveyPoints>>(std::move(other.survey)));
    Acceptances accepted;
    std::vector<Acceptance> problems;
    for (int i = 0; i < 1000; ++i) {
        problems.push_back({"too_far",
                            false,
                            {"1", std::to_string(100000 + i)},
                            "0123456789abcdef",
                            "behind the house, as agreed"_q,
                            "me"_q,
                            {}});
        accepted.set(problems.back());
    }
    expectEstimated(std::make_unique<AcceptedProblems>(problems, std::move(accepted)));
}

// The marks are too long for a string without memory of its own, and the rows are more than a
// batch.
TEST(FailingWorker, EndsTheJobAndChangesNothing)
{
    const TestFolder folder;
    const std::string path = folder.path("p.db").toStdString();
    ASSERT_TRUE(makeDatabase(path));
    const TestProject kept = TestProject::made(20, 500, "these points are kept");
    const TestProject other = TestProject::made(20, 500, "these points are not saved");
    expectDone(kept.save(path));
    for (const long allocations : {0, 20, 100}) {
        TestProject loaded;
        {
            const ScarceMemory scarce(allocations * 5, true);
            expectFailure(loaded.load(path), "bad_alloc");
        }
        {
            const ScarceMemory scarce(allocations, true);
            expectFailure(other.save(path), "bad_alloc");
        }
        EXPECT_FALSE(QFile::exists(QString::fromStdString(path + ".saved"))) << allocations;
        expectDone(loaded.load(path));
        EXPECT_EQ(loaded.design.pointCount(), 10000U) << allocations;
        EXPECT_EQ(loaded.survey.pointCount(), 2000U) << allocations;
        EXPECT_EQ(loaded.survey.find("1019", "10195495")->remarks, "these points are kept");
    }
}
