#include "tests/project/InterruptedSaves.h"

#include <gtest/gtest.h>

TEST(InterruptedSave, LosesNoPoint)
{
    killSaves(20);
}
