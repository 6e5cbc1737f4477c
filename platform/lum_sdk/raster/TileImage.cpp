#include "lum_sdk/raster/TileImage.h"

#include "lum_sdk/raster/RasterBlockCache.h"
#include "lum_sdk/raster/RasterPainting.h"
#include "lum_sdk/raster/TileFetch.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace lum {

namespace {

using Clock = std::chrono::steady_clock;

/// More of them are not a look at a place but a copy of a service. A screen of 3840 x 2160 needs at
/// most 600 of 256 pixels.
constexpr std::size_t kMostTiles = 800;
/// A view this much coarser than the coarsest tiles shows nothing of them.
constexpr double kMostThinned = 4;

/// Whether the view is so far beyond the least zoom that its tiles need not even be counted.
bool isTooCoarse(const RasterView& view, const RasterPlace& place)
{
    const QPointF center = view.transform.center();
    std::array points{center, center + QPointF(view.transform.GetScale() / view.pixelRatio, 0)};
    place.toPixels(points);
    const QPointF step = points[1] - points[0];
    const RasterInfo& info = place.info();
    const double coarsest = double(info.size.width()) / info.levels.back().size.width();
    const bool isWhole = info.levels.back().blockCount() == QSize(1, 1);
    return !isWhole && std::hypot(step.x(), step.y()) > kMostThinned * coarsest;
}

} // namespace

/// What has come, for a paint.
class TileImage::Blocks : public IRasterBlocks
{
public:
    Blocks(TileFetch& fetch, const RasterInfo& info) : m_fetch(fetch), m_info(info) {}

    void want(const std::vector<RasterBlockId>& ids) override
    {
        std::vector<RasterBlockId> wanted;
        {
            const std::lock_guard lock(m_fetch.mutex);
            if (ids.size() <= kMostTiles) {
                for (const RasterBlockId& id : ids)
                    addUnlessThere(id, wanted);
            }
            m_fetch.queue.want(wanted);
        }
        m_fetch.changed.notify_all();
    }

    QImage block(const RasterBlockId& id) override { return find(id); }
    QImage substitute(const RasterBlockId& id) override { return find(id); }

private:
    [[nodiscard]] QImage find(const RasterBlockId& id) const
    {
        return RasterBlockCache::instance().find(m_fetch.owner, id);
    }

    /// Where the service has no tile, the next coarser one that it may have shows the place.
    void addUnlessThere(RasterBlockId id, std::vector<RasterBlockId>& wanted) const
    {
        while (m_fetch.queue.isMissing(id)) {
            if (id.level + 1 == m_info.levels.size())
                return;
            const RasterLevel& fine = m_info.levels[id.level];
            const RasterLevel& coarse = m_info.levels[++id.level];
            const QPointF center = QRectF(fine.blockArea(id.column, id.row)).center();
            id.column =
                int(center.x() / fine.size.width() * coarse.size.width()) / coarse.block.width();
            id.row =
                int(center.y() / fine.size.height() * coarse.size.height()) / coarse.block.height();
        }
        if (find(id).isNull() && std::find(wanted.begin(), wanted.end(), id) == wanted.end())
            wanted.push_back(id);
    }

    TileFetch& m_fetch;
    const RasterInfo& m_info;
};

TileImage::TileImage(const BaseMap& map, const TileFetching& fetching,
                     const std::function<void()>& changed)
    : m_fetch(std::make_shared<TileFetch>(map, fetching))
{
    if (changed)
        m_teller = std::thread([this, changed] { tellNews(changed); });
}

TileImage::~TileImage()
{
    {
        const std::lock_guard lock(m_fetch->mutex);
        m_fetch->isEnded = true;
    }
    m_fetch->changed.notify_all();
    if (m_teller.joinable())
        m_teller.join();
}

const BaseMap& TileImage::map() const
{
    return m_fetch->map;
}

void TileImage::tellNews(const std::function<void()>& changed) const
{
    const auto isEnded = [this] { return m_fetch->isEnded.load(); };
    std::unique_lock lock(m_fetch->mutex);
    while (true) {
        m_fetch->changed.wait(lock, [&] { return isEnded() || m_fetch->hasNews; });
        if (isEnded())
            return;
        m_fetch->hasNews = false;
        lock.unlock();
        changed();
        lock.lock();
        m_fetch->changed.wait_for(lock, std::chrono::milliseconds(100), isEnded);
    }
}

void TileImage::paint(const RasterView& view, QPainter& painter, double opacity)
{
    std::shared_ptr<const RasterInfo> info;
    bool isStarted = false;
    {
        const std::lock_guard lock(m_fetch->mutex);
        info = m_fetch->info;
        isStarted = std::exchange(m_fetch->isStarted, true);
        if (info == nullptr)
            m_fetch->queue.want({kOpening});
    }
    if (!isStarted)
        startFetching(m_fetch);
    if (info == nullptr) {
        m_fetch->changed.notify_all();
        return;
    }
    if (m_place == nullptr || !m_place->isFor(view.system))
        m_place = std::make_unique<RasterPlace>(*info, view.system);
    if (isTooCoarse(view, *m_place)) {
        rest();
        return;
    }
    Blocks blocks(*m_fetch, *info);
    paintRaster(view, *m_place, blocks, painter, opacity);
}

void TileImage::rest()
{
    const std::lock_guard lock(m_fetch->mutex);
    m_fetch->queue.want({});
}

QString TileImage::trouble() const
{
    const std::lock_guard lock(m_fetch->mutex);
    const QString name = m_fetch->map.name;
    const QString host = QString::fromStdString(m_fetch->host);
    const TileAnswer state = m_fetch->queue.state();
    if (state == TileAnswer::Picture)
        return {};
    if (state == TileAnswer::Missing)
        return QCoreApplication::translate("TileImage", "The base map \"%1\" has no tiles here.")
            .arg(name);
    if (m_fetch->host.empty())
        return QCoreApplication::translate("TileImage", "The base map \"%1\" cannot be read: %2")
            .arg(name, QString::fromStdString(m_fetch->detail));
    if (state == TileAnswer::Unreachable)
        return QCoreApplication::translate(
                   "TileImage",
                   "The base map \"%1\" cannot be reached, %2 does not answer; it is tried again.")
            .arg(name, host);
    if (state == TileAnswer::Refused)
        return QCoreApplication::translate(
                   "TileImage",
                   "%2 refuses the tiles of the base map \"%1\" (HTTP status %3); it is tried "
                   "again.")
            .arg(name, host, QString::number(m_fetch->httpStatus));
    return QCoreApplication::translate(
               "TileImage",
               "%2 answers with errors instead of tiles of the base map \"%1\"; it is tried again.")
        .arg(name, host);
}

bool TileImage::hasAnswersSince(int count) const
{
    const std::lock_guard lock(m_fetch->mutex);
    return m_fetch->answers != count;
}

bool TileImage::fetchAll(const RasterView& view, std::chrono::milliseconds atMost)
{
    const auto end = Clock::now() + atMost;
    QImage scratch(view.pixels(), QImage::Format_ARGB32_Premultiplied);
    scratch.setDevicePixelRatio(view.pixelRatio);
    QPainter painter(&scratch);
    int before = 0;
    do { // what has come can tell what else is wanted
        {
            const std::lock_guard lock(m_fetch->mutex);
            before = m_fetch->answers;
        }
        paint(view, painter);
        std::unique_lock lock(m_fetch->mutex);
        const auto isIdle = [this] { return m_fetch->queue.isIdle(Clock::now()); };
        if (!m_fetch->changed.wait_until(lock, end, isIdle))
            return false;
        const TileAnswer state = m_fetch->queue.state();
        if (state != TileAnswer::Picture && state != TileAnswer::Missing)
            return false;
    } while (hasAnswersSince(before));
    return true;
}

} // namespace lum
