#pragma once

#include <chrono>
#include <compare>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace lum {

/// A tile by its place in the pyramid: level 0 is the finest.
struct TileKey
{
    int level = 0;
    int column = 0;
    int row = 0;

    friend auto operator<=>(const TileKey&, const TileKey&) = default;
};

enum class TileAnswer
{
    Picture,
    Missing,     ///< the service has no tile there
    Unreachable, ///< no answer, or none in time
    Refused,     ///< the service does not want to answer: too many requests, no permission
    Broken       ///< an error of the service, or an answer that is no picture
};

/// Which tile is fetched next, and when. It knows neither threads nor the clock: the time is given
/// to it, and whoever shares it between threads guards it.
class TileQueue
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Replaces what was wanted; the most wanted first. What is known to be missing is left out.
    void want(const std::vector<TileKey>& tiles);

    /// The tile to fetch now, which counts as being fetched from now on; none when nothing is due.
    [[nodiscard]] std::optional<TileKey> take(Time now);
    /// When `take` can have a tile next, if nothing changes; none when nothing is wanted.
    [[nodiscard]] std::optional<Time> nextDue() const;

    void answer(const TileKey& tile, TileAnswer answer, Time now);

    [[nodiscard]] bool isMissing(const TileKey& tile) const { return m_missing.count(tile) > 0; }
    /// Whether nothing is being fetched that is still wanted, and nothing is due.
    [[nodiscard]] bool isIdle(Time now) const;
    /// The kind of the last failure while something that is wanted has failed; `Missing` when the
    /// view had nothing but missing tiles so far; else `Picture`.
    [[nodiscard]] TileAnswer state() const { return m_state; }

private:
    struct Failure
    {
        int count = 0;
        Time again;
    };

    void fail(const TileKey& tile, TileAnswer answer, Time now);
    [[nodiscard]] bool isFetched(const TileKey& tile) const { return m_fetched.count(tile) > 0; }
    [[nodiscard]] Time dueOf(const TileKey& tile) const;
    void updateState(TileAnswer answer);

    std::vector<TileKey> m_wanted;        ///< without pictures that have come
    std::set<TileKey> m_fetched;          ///< at this moment
    std::set<TileKey> m_missing;          ///< for the life of this queue
    std::map<TileKey, Failure> m_failures;
    Failure m_pause; ///< of the service as a whole
    int m_failuresInARow = 0;
    bool m_hadPicture = false;
    TileAnswer m_state = TileAnswer::Picture;
};

} // namespace lum
