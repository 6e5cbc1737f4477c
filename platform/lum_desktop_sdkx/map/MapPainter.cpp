#include "lum_desktop_sdkx/map/MapPainter.h"

#include "basalt_utilities/ILogger.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kFirstTime(60); // soon enough to seem immediate
constexpr std::chrono::milliseconds kMostTime = std::chrono::hours(1);

/// A null picture, and a line in the log, when painting fails as a whole. An exception must not
/// leave the thread, which would end the program.
QImage paintedOrNull(const MapPaintJob& job)
{
    try {
        return paintPicture(job);
    } catch (const std::exception& fault) {
        basalt::logError(std::string("The map could not be painted: ") + fault.what());
    } catch (...) {
        basalt::logError("The map could not be painted");
    }
    return {};
}

} // namespace

MapPainter::MapPainter(QObject* parent) : QObject(parent), m_thread([this] { run(); }) {}

MapPainter::~MapPainter()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_cancelled = true;
    }
    m_wakeUp.notify_one();
    m_thread.join();
}

void MapPainter::request(MapPaintJob job)
{
    job.target.cancelled = &m_cancelled;
    m_viewInWork = job.target.transform;
    m_isAtWork = true;
    ++m_newest;
    {
        const std::lock_guard lock(m_mutex);
        m_pending = Request{std::move(job), m_newest};
        m_cancelled = true;
    }
    m_wakeUp.notify_one();
}

void MapPainter::run()
{
    while (std::optional<Request> request = takeRequest()) {
        auto time = kFirstTime;
        while (paint(*request, time) && !m_cancelled)
            time = std::min(2 * time, kMostTime);
    }
}

bool MapPainter::paint(Request& request, std::chrono::milliseconds time)
{
    std::atomic<bool> hasRest = false;
    request.job.target.hasRest = &hasRest;
    request.job.target.deadline = std::chrono::steady_clock::now() + time;
    const QImage picture = paintedOrNull(request.job);
    request.job.target.hasRest = nullptr;
    handOver(request, picture, hasRest);
    return hasRest;
}

std::optional<MapPainter::Request> MapPainter::takeRequest()
{
    std::unique_lock lock(m_mutex);
    m_wakeUp.wait(lock, [this] { return m_isEnding || m_pending.has_value(); });
    if (m_isEnding)
        return std::nullopt;
    m_cancelled = false;
    return std::exchange(m_pending, std::nullopt);
}

void MapPainter::handOver(const Request& request, const QImage& picture, bool hasRest)
{
    if (m_cancelled)
        return;
    QMetaObject::invokeMethod(
        this,
        [this, number = request.number, picture, view = request.job.target.transform, hasRest] {
            deliver(number, picture, view, hasRest);
        },
        Qt::QueuedConnection);
}

void MapPainter::deliver(int number, const QImage& picture, const Transform& view, bool hasRest)
{
    if (number == m_newest) {
        m_viewInWork.reset();
        m_isAtWork = hasRest;
    }
    if (!picture.isNull())
        Q_EMIT painted(picture, view);
}
