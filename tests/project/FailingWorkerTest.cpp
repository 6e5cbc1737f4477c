#include "tests/project/ExpectOutcome.h"
#include "tests/project/TestProject.h"
#include "tests/support/TestFolder.h"

#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <thread>

namespace {

std::atomic<bool> isScarce{false};
std::atomic<long> allowance{0};
std::thread::id mainThread;

/// While it lives, every thread but this one runs out of memory after so many allocations. A job
/// that waits for ever for such a thread is ended, and fails the test.
class ScarceMemory
{
public:
    explicit ScarceMemory(long allocations)
    {
        alarm(60);
        mainThread = std::this_thread::get_id();
        allowance = allocations;
        isScarce = true;
    }
    ~ScarceMemory()
    {
        isScarce = false;
        alarm(0);
    }
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;
};

} // namespace

void* operator new(std::size_t size)
{
    if (isScarce && std::this_thread::get_id() != mainThread && allowance-- <= 0)
        throw std::bad_alloc();
    if (void* const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return std::malloc(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
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
            const ScarceMemory scarce(allocations * 5);
            expectFailure(loaded.load(path), "bad_alloc");
        }
        {
            const ScarceMemory scarce(allocations);
            expectFailure(other.save(path), "bad_alloc");
        }
        EXPECT_FALSE(QFile::exists(QString::fromStdString(path + ".saved"))) << allocations;
        expectDone(loaded.load(path));
        EXPECT_EQ(loaded.design.pointCount(), 10000U) << allocations;
        EXPECT_EQ(loaded.survey.pointCount(), 2000U) << allocations;
        EXPECT_EQ(loaded.survey.find("1019", "10195495")->remarks, "these points are kept");
    }
}
