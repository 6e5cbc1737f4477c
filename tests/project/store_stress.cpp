#include "tests/project/InterruptedSaves.h"

#include <gtest/gtest.h>

#include <cstdlib>

// store_stress [COUNT]: kills so many saves (300).

namespace {
int kills = 300;
} // namespace

TEST(StoreStress, LosesNoPoint)
{
    killSaves(kills);
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (argc > 1)
        kills = std::atoi(argv[1]);
    return RUN_ALL_TESTS();
}
