#pragma once

#include "lum_desktop_sdkx/map/MapPaintJob.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

/// Paints pictures of the map on its own thread, one at a time. Of the waiting requests only the
/// newest is painted.
///
/// A layer that has more to paint than its time allows leaves a rest. The picture is shown without
/// it, and the same job is painted again, each time with twice the time, until nothing is left or a
/// newer request comes.
///
/// It is used on the GUI thread. The destructor cancels the running paint and waits for its end, so
/// that the layers can be deleted afterwards.
class MapPainter final : public QObject
{
    Q_OBJECT

public:
    explicit MapPainter(QObject* parent = nullptr);
    ~MapPainter() override;

    /// Cancels the running paint, and paints this job after it. The layers must outlive this
    /// painter.
    void request(MapPaintJob job);

    /// The view of the newest request; nothing once its first picture has arrived.
    [[nodiscard]] const std::optional<Transform>& viewInWork() const { return m_viewInWork; }

    /// Whether more pictures of the newest request will come.
    [[nodiscard]] bool isAtWork() const { return m_isAtWork; }

Q_SIGNALS:
    /// Sent on the GUI thread, and not for a picture that was cancelled.
    void painted(const QImage& picture, const Transform& view);

private:
    struct Request
    {
        MapPaintJob job;
        int number = 0;
    };

    void run();
    /// Waits for a request; returns nothing when the thread must end.
    [[nodiscard]] std::optional<Request> takeRequest();
    /// \returns whether a layer left a rest
    bool paint(Request& request, std::chrono::milliseconds time);
    void handOver(const Request& request, const QImage& picture, bool hasRest);
    void deliver(int number, const QImage& picture, const Transform& view, bool hasRest);

    // GUI thread only
    std::optional<Transform> m_viewInWork;
    bool m_isAtWork = false;
    int m_newest = 0;

    std::mutex m_mutex; // guards the members below
    std::condition_variable m_wakeUp;
    std::optional<Request> m_pending;
    bool m_isEnding = false;
    std::atomic<bool> m_cancelled = false; // set under the mutex, read by layers without it

    std::thread m_thread; // last, so that it starts when all other members are made
};
