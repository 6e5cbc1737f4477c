#pragma once

#include "lum_desktop_sdkx/map/MapPaintJob.h"

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

/// Paints pictures of the map on a thread of its own, one at a time, the newest request only.
///
/// Belongs to the GUI thread. Its end cancels the paint that is running and waits for it, so that
/// the layers may go afterwards.
class MapPainter final : public QObject
{
    Q_OBJECT

public:
    explicit MapPainter(QObject* parent = nullptr);
    ~MapPainter() override;

    /// Paints as soon as the one that is running, which is cancelled, gives way. The layers must
    /// outlive this painter.
    void request(MapPaintJob job);

    /// The view of the newest request until its picture has arrived.
    [[nodiscard]] const std::optional<Transform>& viewInWork() const { return m_viewInWork; }

Q_SIGNALS:
    /// On the GUI thread; not for pictures that were cancelled.
    void painted(const QImage& picture, const Transform& view);

private:
    struct Request
    {
        MapPaintJob job;
        int number = 0;
    };

    void run();
    /// Waits for work; nothing when it is time to end.
    [[nodiscard]] std::optional<Request> takeRequest();
    void handOver(const Request& request, const QImage& picture);
    void deliver(int number, const QImage& picture, const Transform& view);

    // GUI thread only
    std::optional<Transform> m_viewInWork;
    int m_newest = 0;

    std::mutex m_mutex; // of what follows
    std::condition_variable m_wakeUp;
    std::optional<Request> m_pending;
    bool m_isEnding = false;
    std::atomic<bool> m_cancelled = false; // written under the mutex, read by layers without

    std::thread m_thread; // last: everything else is there when it starts
};
