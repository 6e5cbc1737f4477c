#pragma once

#include "lum_sdk/raster/BaseMap.h"
#include "lum_sdk/raster/RasterPlace.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

class QPainter;

namespace lum {

struct RasterView;
struct TileFetch;

/// A base map on the map. Its tiles are fetched by at most two threads of its own, those nearest to
/// the centre of the view first; those that an older view wanted and the present one does not are
/// dropped. A tile that cannot be had is tried again after 5, 30 and then each 120 seconds, and a
/// service that fails altogether is left alone for as long.
///
/// Neither `paint` nor the destructor ever waits for a service. Until the first `paint` nothing is
/// fetched.
class TileImage
{
public:
    /// `changed` tells that tiles have arrived or that `trouble` is another: paint again. It is
    /// called on a thread of this object, at most ten times a second and never after the
    /// destructor; it must not wait for the thread that owns this object, but may queue a call to
    /// it.
    TileImage(const BaseMap& map, const TileFetching& fetching,
              const std::function<void()>& changed = {});
    ~TileImage();
    TileImage(const TileImage&) = delete;
    TileImage& operator=(const TileImage&) = delete;

    [[nodiscard]] const BaseMap& map() const;

    /// Paints what is there, a coarser version where the right one is missing, and asks for what is
    /// missing. A view of thousands of tiles, far beyond the least zoom, asks for nothing. For one
    /// thread at a time; the other functions may run beside it.
    void paint(const RasterView& view, QPainter& painter, double opacity = 1);

    /// Forgets what the last view asked for: nothing more is fetched until the next `paint`.
    void rest();

    /// What keeps tiles away, as a sentence for the user; empty while all goes well. It stays the
    /// same for all tiles of one kind of trouble, and until all that is wanted has arrived.
    [[nodiscard]] QString trouble() const;

    /// For a picture that is painted once: fetches all that it needs, and waits for it. What failed
    /// is not waited for; `trouble` tells of it. No other thread may paint meanwhile.
    /// \returns false when tiles are missing, because they failed or the time is over
    bool fetchAll(const RasterView& view, std::chrono::milliseconds atMost);

private:
    class Blocks;

    [[nodiscard]] bool hasAnswersSince(int count) const;
    void tellNews(const std::function<void()>& changed) const;

    /// Shared with the threads that fetch; they may outlive this.
    std::shared_ptr<TileFetch> m_fetch;
    std::unique_ptr<RasterPlace> m_place; ///< of the last view; only for `paint`
    std::thread m_teller;
};

} // namespace lum
