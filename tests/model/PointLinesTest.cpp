#include "model/PointLines.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace {

using Reference = std::map<std::string, std::map<std::string, double>>;

DesignPoint point(std::string line, std::string number, double north)
{
    DesignPoint made;
    made.lineNumber = std::move(line);
    made.pointNumber = std::move(number);
    made.north = north;
    return made;
}

void expectSame(const DesignPoints& points, const Reference& reference)
{
    ASSERT_EQ(points.lineCount(), reference.size());
    auto expected = reference.begin();
    std::size_t count = 0;
    for (const auto& [number, line] : points) {
        ASSERT_EQ(number, expected->first);
        ASSERT_EQ(line.size(), expected->second.size());
        auto entry = expected->second.begin();
        for (const DesignPoint& present : line) {
            ASSERT_EQ(present.pointNumber, entry->first);
            ASSERT_EQ(present.north, entry->second);
            ++entry;
        }
        auto back = line.end();
        for (auto last = expected->second.rbegin(); last != expected->second.rend(); ++last)
            ASSERT_EQ((--back)->pointNumber, last->first);
        count += line.size();
        ++expected;
    }
    EXPECT_EQ(points.pointCount(), count);
}

/// Merges new values of all points of line 0 and random points of the lines 1 to 4.
void mergeSome(DesignPoints& points, Reference& reference, std::mt19937& random, unsigned range)
{
    DesignPoints later;
    for (const auto& [number, north] : reference["0"])
        later.set(point("0", number, -1));
    for (unsigned i = 0; i < range; ++i)
        later.set(point(std::to_string(1 + i % 4), std::to_string(random() % range), -1));
    Reference replaced;
    for (const auto& [line, added] : later) {
        for (const DesignPoint& each : added) {
            if (const auto old = reference[line].find(each.pointNumber);
                old != reference[line].end())
                replaced[line].insert(*old);
            reference[line][each.pointNumber] = -1;
        }
    }
    std::erase_if(reference, [](const auto& line) { return line.second.empty(); });
    DesignPoints exchanged = later;
    std::size_t count = 0;
    for (const auto& [line, old] : replaced)
        count += old.size();
    DesignPoints merged = points;
    EXPECT_EQ(merged.merge(std::move(later)), count);
    EXPECT_EQ(points.takeOver(exchanged), count);
    expectSame(exchanged, replaced);
    expectSame(merged, reference);
    expectSame(points, reference);
}

/// Takes random points out, some of which are not there, and puts them back.
void extractSome(DesignPoints& points, const Reference& reference, std::mt19937& random,
                 unsigned range)
{
    std::vector<PointName> names;
    Reference left = reference;
    Reference taken;
    for (unsigned i = 0; i < range; ++i) {
        const PointName& name = names.emplace_back(
            PointName{std::to_string(random() % 6), std::to_string(random() % range)});
        if (auto line = left.find(name.line);
            line != left.end() && line->second.contains(name.point)) {
            taken[name.line].insert(line->second.extract(name.point));
            if (line->second.empty())
                left.erase(line);
        }
    }
    DesignPoints extracted = points.extract(PointNames(names));
    expectSame(extracted, taken);
    expectSame(points, left);
    EXPECT_EQ(points.takeOver(extracted), 0U);
    EXPECT_TRUE(extracted.empty());
    expectSame(points, reference);
}

} // namespace

// Random insertions, replacements, removals and merges against the standard map: few and large
// lines, so that blocks split, run empty and meet at their borders.
TEST(PointLines, DoWhatAMapDoes)
{
    std::mt19937 random(42);
    for (const unsigned range : {10U, 400U, 3000U}) {
        DesignPoints points;
        Reference reference;
        for (int step = 0; step < 6000; ++step) {
            const std::string line = std::to_string(random() % 3);
            const std::string number = std::to_string(random() % range);
            if (random() % 3 != 0) {
                EXPECT_EQ(points.set(point(line, number, step)).north, step);
                reference[line][number] = step;
            } else {
                auto& expected = reference[line];
                EXPECT_EQ(points.erase(line, number), expected.erase(number) == 1);
                if (expected.empty())
                    reference.erase(line);
            }
            const DesignPoint* const found = points.find(line, number);
            const bool isThere = reference.contains(line) && reference[line].contains(number);
            ASSERT_EQ(found != nullptr, isThere);
            if (step % 1000 == 999)
                mergeSome(points, reference, random, range);
            if (step % 1000 == 499)
                extractSome(points, reference, random, range);
        }
        expectSame(points, reference);
    }
}

TEST(PointLines, KeepPointsThatComeInEitherOrder)
{
    DesignPoints points;
    Reference reference;
    for (int i = 10000; i < 11000; ++i) {
        for (const auto& [line, number] : {std::pair("up", i), std::pair("down", 21000 - i)}) {
            points.set(point(line, std::to_string(number), i));
            reference[line][std::to_string(number)] = i;
        }
    }
    expectSame(points, reference);
    DesignPoints copy = points;
    copy.set(point("up", "x", 2));
    DesignPoints moved = std::move(copy);
    moved.set(point("up", "y", 3));
    expectSame(points, reference); // a copy is on its own
    reference["up"].insert({{"x", 2}, {"y", 3}});
    expectSame(moved, reference);
}

TEST(PointLines, OrderLinesByTheirBytes)
{
    DesignPoints points;
    for (const char* line : {"9", "10", "线", "", "a", "B"})
        points.set(point(line, "1", 0));
    std::string order;
    for (const auto& [number, line] : points)
        order += number + ' ';
    EXPECT_EQ(order, " 10 9 B a 线 ");
}
