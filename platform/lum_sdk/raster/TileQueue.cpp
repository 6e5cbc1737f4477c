#include "lum_sdk/raster/TileQueue.h"

#include <algorithm>
#include <array>

namespace lum {

namespace {

using Time = TileQueue::Time;

/// After so many failures without a success between them, it is the service and not the tile.
constexpr int kSeveral = 3;
/// What is remembered of places where the user no longer is.
constexpr std::size_t kMostRemembered = 10'000;

Time nextTry(int failures, Time now)
{
    using std::chrono::seconds;
    constexpr std::array kWaits{seconds(5), seconds(30), seconds(120)};
    const auto index = static_cast<std::size_t>(failures - 1);
    return now + kWaits[std::min(index, kWaits.size() - 1)];
}

} // namespace

void TileQueue::want(const std::vector<RasterBlockId>& tiles)
{
    if (m_missing.size() > kMostRemembered)
        m_missing.clear();
    if (m_failures.size() > kMostRemembered)
        m_failures.clear();
    m_wanted.clear();
    std::copy_if(tiles.begin(), tiles.end(), std::back_inserter(m_wanted),
                 [this](const RasterBlockId& tile) { return !isMissing(tile); });
}

Time TileQueue::dueOf(const RasterBlockId& tile) const
{
    const auto failure = m_failures.find(tile);
    const Time own = failure == m_failures.end() ? Time() : failure->second.again;
    return std::max(own, m_pause.again);
}

std::optional<RasterBlockId> TileQueue::take(Time now)
{
    if (isProbing())
        return {};
    for (const RasterBlockId& tile : m_wanted) {
        if (dueOf(tile) <= now && m_fetched.insert(tile).second)
            return tile;
    }
    return {};
}

std::optional<Time> TileQueue::nextDue() const
{
    if (isProbing())
        return {};
    std::optional<Time> next;
    for (const RasterBlockId& tile : m_wanted) {
        if (m_fetched.count(tile) == 0)
            next = std::min(next.value_or(Time::max()), dueOf(tile));
    }
    return next;
}

void TileQueue::answer(const RasterBlockId& tile, TileAnswer answer, Time now)
{
    m_fetched.erase(tile);
    if (answer != TileAnswer::Picture && answer != TileAnswer::Missing) {
        fail(tile, answer, now);
        return;
    }
    if (answer == TileAnswer::Missing)
        m_missing.insert(tile);
    else
        m_hadPicture = true;
    m_wanted.erase(std::remove(m_wanted.begin(), m_wanted.end(), tile), m_wanted.end());
    m_failures.erase(tile);
    m_failuresInARow = 0;
    m_pause = {};
}

void TileQueue::fail(const RasterBlockId& tile, TileAnswer answer, Time now)
{
    m_lastFailure = answer;
    Failure& failure = m_failures[tile];
    failure.again = nextTry(++failure.count, now);
    const bool isService = answer != TileAnswer::Broken || ++m_failuresInARow >= kSeveral;
    // What was asked for at the same time and fails, too, says nothing new.
    if (isService && m_pause.again <= now)
        m_pause.again = nextTry(++m_pause.count, now);
}

bool TileQueue::isIdle(Time now) const
{
    return std::none_of(m_wanted.begin(), m_wanted.end(), [&](const RasterBlockId& tile) {
        return m_fetched.count(tile) > 0 || dueOf(tile) <= now;
    });
}

TileAnswer TileQueue::state() const
{
    const bool hasFailed =
        std::any_of(m_wanted.begin(), m_wanted.end(),
                    [this](const RasterBlockId& tile) { return m_failures.count(tile) > 0; });
    if (hasFailed || m_pause.count > 0)
        return m_lastFailure;
    const bool isAllMissing = m_wanted.empty() && !m_missing.empty() && !m_hadPicture;
    return isAllMissing ? TileAnswer::Missing : TileAnswer::Picture;
}

} // namespace lum
