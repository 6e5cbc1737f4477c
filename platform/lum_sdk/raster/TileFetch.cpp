#include "lum_sdk/raster/TileFetch.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/raster/RasterBlockCache.h"
#include "lum_sdk/raster/RasterSource.h"
#include "lum_sdk/raster/TileCache.h"
#include "lum_sdk/raster/TileThreads.h"

#include <QImage>
#include <QRegularExpression>

#include <cpl_conv.h>
#include <cpl_error.h>

#include <chrono>
#include <exception>
#include <optional>

namespace lum {

namespace {

using Clock = std::chrono::steady_clock;

/// So many new tiles come between two looks at the size of the cache.
constexpr int kTilesPerTrim = 500;

/// A thread that fetches, with a data set of its own.
class TileFetcher
{
public:
    explicit TileFetcher(std::shared_ptr<TileFetch> fetch) : m_fetch(std::move(fetch)) {}

    void run();

private:
    struct Result
    {
        TileAnswer answer = TileAnswer::Picture;
        QString fault;
        QImage tile;
    };

    void setUpThread() const;
    /// Waits for a tile that is to be fetched, and has a connection for it; none at the end.
    [[nodiscard]] std::optional<RasterBlockId> next();
    /// \returns false when as many threads as may are connected to this machine
    [[nodiscard]] bool tryConnect() const;
    void disconnect() const;
    [[nodiscard]] bool open(QString& fault);
    [[nodiscard]] Result fetch(const RasterBlockId& tile);
    void finish(const RasterBlockId& tile, const Result& result);
    void takeInfo();
    void trimCache();

    std::shared_ptr<TileFetch> m_fetch;
    std::unique_ptr<RasterSource> m_source;
};

/// 0 when the library tells of none.
int httpStatusIn(const QString& fault)
{
    static const QRegularExpression kStatus(
        QStringLiteral("HTTP (?:status|error) code ?: ?(\\d+)"));
    return kStatus.match(fault).captured(1).toInt();
}

/// What it means that the library could not read a tile of a service, or open it.
TileAnswer answerTo(const QString& fault, bool isOpening)
{
    static const QRegularExpression kNoAnswer(
        QStringLiteral("HTTP status code: 0\\b|connect|resolve|timed out|timeout|empty reply"),
        QRegularExpression::CaseInsensitiveOption);
    switch (httpStatusIn(fault)) {
    case 0:
        return kNoAnswer.match(fault).hasMatch() ? TileAnswer::Unreachable : TileAnswer::Broken;
    case 204:
    case 404:
    case 410:
        return isOpening ? TileAnswer::Broken : TileAnswer::Missing;
    case 401:
    case 403:
    case 407:
    case 429:
    case 503:
        return TileAnswer::Refused;
    default:
        return TileAnswer::Broken;
    }
}

void TileFetcher::setUpThread() const
{
    const QByteArray timeout = QByteArray::number(m_fetch->fetching.timeoutS);
    CPLSetThreadLocalConfigOption("GDAL_HTTP_CONNECTTIMEOUT", timeout.constData());
    CPLSetThreadLocalConfigOption("GDAL_HTTP_TIMEOUT", timeout.constData());
    CPLSetThreadLocalConfigOption("GDAL_HTTP_MAX_RETRY", "0");
    CPLSetThreadLocalConfigOption("GDAL_HTTP_USERAGENT",
                                  m_fetch->fetching.agent.toUtf8().constData());
    // Otherwise half a picture counts as a picture, and is kept.
    CPLSetThreadLocalConfigOption("GDAL_ERROR_ON_LIBJPEG_WARNING", "YES");
}

void TileFetcher::run()
{
    setUpThread();
    while (const std::optional<RasterBlockId> tile = next()) {
        Result result;
        try {
            result = fetch(*tile);
        } catch (const std::exception& error) {
            result = {TileAnswer::Broken, QString::fromUtf8(error.what()), {}};
        }
        finish(*tile, result);
    }
}

bool TileFetcher::tryConnect() const
{
    return m_fetch->host.empty() || TileThreads::instance().tryConnect(m_fetch->host);
}

void TileFetcher::disconnect() const
{
    if (!m_fetch->host.empty())
        TileThreads::instance().release(m_fetch->host);
}

std::optional<RasterBlockId> TileFetcher::next()
{
    std::unique_lock lock(m_fetch->mutex);
    while (!m_fetch->isEnded) {
        const auto now = Clock::now();
        std::optional<Clock::time_point> wake = m_fetch->queue.nextDue();
        if (wake && *wake <= now) {
            if (tryConnect()) {
                if (const auto tile = m_fetch->queue.take(now))
                    return tile;
                disconnect();
            }
            wake = now + std::chrono::milliseconds(100); // others tell nothing when they disconnect
        }
        if (wake)
            m_fetch->changed.wait_until(lock, *wake);
        else
            m_fetch->changed.wait(lock);
    }
    return {};
}

bool TileFetcher::open(QString& fault)
{
    if (m_source == nullptr) {
        m_source = RasterSource::open(m_fetch->rasterName, fault,
                                      m_fetch->host.empty() ? RasterDrivers::LocalFiles
                                                            : RasterDrivers::All);
    }
    return m_source != nullptr;
}

TileFetcher::Result TileFetcher::fetch(const RasterBlockId& tile)
{
    Result result;
    CPLErrorReset();
    if (open(result.fault)) {
        if (tile == kOpening)
            return result;
        result.tile = m_source->readBlock(tile.level, tile.column, tile.row, result.fault,
                                          [this] { return m_fetch->isEnded.load(); });
        if (!result.tile.isNull())
            return result;
    }
    // A driver that looks into its cache first complains of that first, and of the service last.
    const QString last = QString::fromUtf8(CPLGetLastErrorMsg()).simplified();
    if (last.contains(QLatin1String("HTTP")))
        result.fault = last;
    result.answer =
        m_fetch->host.empty() ? TileAnswer::Broken : answerTo(result.fault, m_source == nullptr);
    return result;
}

void TileFetcher::takeInfo()
{
    RasterInfo info = m_source->info();
    while (!info.levels.back().isStored)
        info.levels.pop_back();
    m_fetch->info = std::make_shared<const RasterInfo>(std::move(info));
    m_fetch->queue = {};
}

void TileFetcher::finish(const RasterBlockId& tile, const Result& result)
{
    if (!result.tile.isNull())
        RasterBlockCache::instance().add(m_fetch->owner, tile, result.tile);
    disconnect();
    {
        const std::lock_guard lock(m_fetch->mutex);
        const TileAnswer before = m_fetch->queue.state();
        m_fetch->queue.answer(tile, result.answer, Clock::now());
        if (tile == kOpening && m_source != nullptr)
            takeInfo();
        const bool isAnswer =
            result.answer == TileAnswer::Picture || result.answer == TileAnswer::Missing;
        m_fetch->answers += isAnswer;
        if (!isAnswer) {
            m_fetch->httpStatus = httpStatusIn(result.fault);
            m_fetch->detail = result.fault.toStdString();
        }
        const bool isOther = m_fetch->queue.state() != before;
        m_fetch->hasNews |= isAnswer || isOther;
        if (isOther && !isAnswer)
            basalt::logWarning("Base map: " + result.fault.toStdString());
    }
    m_fetch->changed.notify_all();
    trimCache();
}

void TileFetcher::trimCache()
{
    const TileFetching& fetching = m_fetch->fetching;
    bool isDue = false;
    {
        const std::lock_guard lock(m_fetch->mutex);
        isDue = m_fetch->answers % kTilesPerTrim == 1;
    }
    if (isDue && !m_fetch->host.empty() && m_fetch->map.mayKeepTiles &&
        !fetching.cacheFolder.isEmpty())
        TileCache(fetching.cacheFolder).trim(fetching.cacheLimitBytes);
}

} // namespace

TileFetch::TileFetch(const BaseMap& baseMap, const TileFetching& how)
    : map(baseMap), fetching(how), rasterName(rasterNameOf(map, fetching)),
      host(hostOf(baseMap).toStdString()), owner(RasterBlockCache::instance().newOwner())
{
}

TileFetch::~TileFetch()
{
    RasterBlockCache::instance().remove(owner);
}

void startFetching(const std::shared_ptr<TileFetch>& fetch)
{
    for (int i = 0; i < TileThreads::kMostConnections; ++i)
        TileThreads::instance().start([fetch] { TileFetcher(fetch).run(); });
}

} // namespace lum
