#include "lum_desktop_sdkx/map/MapPainter.h"

#include "basalt_utilities/ILogger.h"

#include <utility>

namespace {

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
    while (const std::optional<Request> request = takeRequest())
        handOver(*request, paintedOrNull(request->job));
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

void MapPainter::handOver(const Request& request, const QImage& picture)
{
    if (m_cancelled)
        return;
    QMetaObject::invokeMethod(
        this,
        [this, number = request.number, picture, view = request.job.target.transform] {
            deliver(number, picture, view);
        },
        Qt::QueuedConnection);
}

void MapPainter::deliver(int number, const QImage& picture, const Transform& view)
{
    if (number == m_newest)
        m_viewInWork.reset();
    if (!picture.isNull())
        Q_EMIT painted(picture, view);
}
