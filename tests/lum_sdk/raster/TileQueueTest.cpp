#include "lum_sdk/raster/TileQueue.h"

#include <gtest/gtest.h>

using lum::RasterBlockId;
using lum::TileAnswer;
using lum::TileQueue;
using std::chrono::seconds;

namespace {

const RasterBlockId kA{3, 0, 0};
const RasterBlockId kB{3, 1, 0};
const RasterBlockId kC{3, 2, 0};

struct TileQueueTest : testing::Test
{
    TileQueue queue;
    TileQueue::Time now{seconds(1000)};

    /// Tries what is due next, until there was so much time; the seconds at which it was tried.
    std::vector<int> triesOf(TileAnswer answer, int during)
    {
        std::vector<int> tries;
        const auto start = now;
        for (auto due = queue.nextDue(); due && *due <= start + seconds(during);
             due = queue.nextDue()) {
            now = std::max(now, *due);
            const auto tile = queue.take(now);
            if (!tile)
                break;
            tries.push_back(
                static_cast<int>(std::chrono::duration_cast<seconds>(now - start).count()));
            queue.answer(*tile, answer, now);
        }
        return tries;
    }
};

} // namespace

TEST_F(TileQueueTest, GivesTheMostWantedFirstAndNoneTwice)
{
    queue.want({kB, kA});
    EXPECT_EQ(queue.take(now), kB);
    EXPECT_EQ(queue.take(now), kA);
    EXPECT_EQ(queue.take(now), std::nullopt);
    EXPECT_FALSE(queue.isIdle(now));

    queue.want({kA, kC}); // kB is under way, but nobody waits for it any more
    EXPECT_EQ(queue.take(now), kC);
    queue.answer(kC, TileAnswer::Picture, now);
    queue.answer(kA, TileAnswer::Picture, now);
    EXPECT_TRUE(queue.isIdle(now));
    EXPECT_EQ(queue.nextDue(), std::nullopt);
}

TEST_F(TileQueueTest, TriesABrokenTileAgainAfter5And30AndEach120Seconds)
{
    queue.want({kA});
    EXPECT_EQ(triesOf(TileAnswer::Broken, 300), (std::vector{0, 5, 35, 155, 275}));
    EXPECT_EQ(queue.state(), TileAnswer::Broken);
}

TEST_F(TileQueueTest, OneBrokenTileKeepsNoOtherBack)
{
    queue.want({kA, kB, kC});
    queue.answer(*queue.take(now), TileAnswer::Broken, now);
    EXPECT_EQ(queue.take(now), kB);
    EXPECT_EQ(queue.take(now), kC);
    EXPECT_EQ(queue.state(), TileAnswer::Broken);
    queue.answer(kB, TileAnswer::Picture, now);
    EXPECT_EQ(queue.state(), TileAnswer::Broken) << "while a part of the view is missing";
    queue.want({kB});
    EXPECT_EQ(queue.state(), TileAnswer::Picture) << "nobody looks at it";
}

TEST_F(TileQueueTest, LeavesAServiceAloneThatRefusesOrDoesNotAnswer)
{
    for (const TileAnswer answer : {TileAnswer::Refused, TileAnswer::Unreachable}) {
        queue = {};
        queue.want({kA, kB, kC});
        const auto first = queue.take(now);
        const auto second = queue.take(now);
        queue.answer(*first, answer, now);
        queue.answer(*second, answer, now);
        EXPECT_EQ(queue.take(now), std::nullopt) << "also for tiles that have not failed";
        EXPECT_EQ(queue.nextDue(), now + seconds(5)) << "two failures at once are one";
        EXPECT_TRUE(queue.isIdle(now));
        EXPECT_EQ(queue.state(), answer);
    }
}

TEST_F(TileQueueTest, TriesASuspectedServiceWithOneTileAndGoesOnWhenItAnswers)
{
    queue.want({kA, kB, kC});
    queue.answer(*queue.take(now), TileAnswer::Unreachable, now);
    now += seconds(5);
    EXPECT_TRUE(queue.take(now).has_value());
    EXPECT_EQ(queue.take(now), std::nullopt);
    EXPECT_EQ(queue.nextDue(), std::nullopt) << "only the answer can change that";
    queue.answer(kA, TileAnswer::Picture, now);
    EXPECT_EQ(queue.take(now), kB);
    EXPECT_EQ(queue.take(now), kC);
    EXPECT_EQ(queue.state(), TileAnswer::Picture);
}

TEST_F(TileQueueTest, ManyBrokenTilesAreABrokenService)
{
    std::vector<RasterBlockId> tiles;
    for (int column = 0; column < 100; ++column)
        tiles.push_back({0, column, 0});
    queue.want(tiles);
    const auto tries = triesOf(TileAnswer::Broken, 60);
    EXPECT_EQ(std::count(tries.begin(), tries.end(), 0), 3);
    EXPECT_LT(tries.size(), 8U) << "an office must not hammer a service that is down";
}

TEST_F(TileQueueTest, AMissingTileIsNeverAskedForAgain)
{
    queue.want({kA, kB});
    queue.answer(*queue.take(now), TileAnswer::Missing, now);
    EXPECT_EQ(queue.state(), TileAnswer::Picture) << "the other may be there";
    queue.answer(*queue.take(now), TileAnswer::Missing, now);
    EXPECT_EQ(queue.state(), TileAnswer::Missing);
    queue.want({kA, kB});
    EXPECT_EQ(queue.nextDue(), std::nullopt);

    queue.want({kC});
    queue.answer(*queue.take(now), TileAnswer::Picture, now);
    EXPECT_EQ(queue.state(), TileAnswer::Picture) << "beside the sea there is land";
}
