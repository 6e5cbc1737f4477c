#pragma once

#include "lum_sdk/raster/RasterPainting.h"

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

namespace lum {

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
    void want(const std::vector<RasterBlockId>& tiles);

    /// The tile to fetch now, which counts as being fetched from now on; none when nothing is due.
    [[nodiscard]] std::optional<RasterBlockId> take(Time now);
    /// When `take` can have a tile next, if there is no answer before; none when only an answer or
    /// another view can change that.
    [[nodiscard]] std::optional<Time> nextDue() const;

    void answer(const RasterBlockId& tile, TileAnswer answer, Time now);

    [[nodiscard]] bool isMissing(const RasterBlockId& tile) const
    {
        return m_missing.count(tile) > 0;
    }
    /// Whether nothing that is wanted is being fetched, and nothing is due.
    [[nodiscard]] bool isIdle(Time now) const;
    /// The kind of the last failure while something that is wanted has failed, or the service is
    /// left alone; `Missing` when all that was ever asked for is missing; else `Picture`.
    [[nodiscard]] TileAnswer state() const;

private:
    struct Order
    {
        bool operator()(const RasterBlockId& a, const RasterBlockId& b) const
        {
            return std::tie(a.level, a.column, a.row) < std::tie(b.level, b.column, b.row);
        }
    };
    struct Failure
    {
        int count = 0;
        Time again;
    };

    /// A service that has failed is tried with one tile; whether that is under way.
    [[nodiscard]] bool isProbing() const { return m_pause.count > 0 && !m_fetched.empty(); }
    void fail(const RasterBlockId& tile, TileAnswer answer, Time now);
    [[nodiscard]] Time dueOf(const RasterBlockId& tile) const;

    std::vector<RasterBlockId> m_wanted;      ///< without what has come and what is missing
    std::set<RasterBlockId, Order> m_fetched; ///< at this moment
    std::set<RasterBlockId, Order> m_missing;
    std::map<RasterBlockId, Failure, Order> m_failures;
    Failure m_pause; ///< of the service as a whole
    int m_failuresInARow = 0;
    bool m_hadPicture = false;
    TileAnswer m_lastFailure = TileAnswer::Picture;
};

} // namespace lum
