#pragma once

#include "map/sheet/MapSheet.h"

#include <QObject>

#include <functional>
#include <memory>
#include <thread>

/// Does long work on sheets on a thread of its own, one job at a time: those on one map share its
/// rasters. It is used on the GUI thread.
class SheetWork final : public QObject
{
    Q_OBJECT

public:
    /// One that throws ends with a line in the log.
    using Job = std::function<void(SheetWatch&)>;

    explicit SheetWork(QObject* parent = nullptr) : QObject(parent) {}
    /// Cancels, and waits for the end.
    ~SheetWork() override;

    /// Cancels what is running, and does this after it. Of several that wait only the last is done.
    void start(Job job);
    /// Ends the running job soon; it may have done all of its work nevertheless.
    void cancel();
    /// Cancels everything, and waits for the end. Nothing is sent afterwards.
    void stop();

    [[nodiscard]] bool isBusy() const { return m_watch != nullptr; }

Q_SIGNALS:
    /// On the GUI thread.
    void progressed(int percent);
    /// No job is running or waiting.
    void finished();

private:
    void run(Job job);
    void onEnded();

    std::thread m_thread;
    std::shared_ptr<SheetWatch> m_watch; ///< of the running job; null without one
    Job m_next;
    int m_number = 0; ///< of the last job
};
