#include "lum_sdk/raster/TileThreads.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace lum {

TileThreads& TileThreads::instance()
{
    static TileThreads threads;
    // Called before the destructor of `threads`, since it comes after the constructor.
    [[maybe_unused]] static const int isCalled = ::on_exit(&TileThreads::endProcess, &threads);
    return threads;
}

void TileThreads::endProcess(int status, void* self)
{
    auto& threads = *static_cast<TileThreads*>(self);
    const auto isOver = [&threads] {
        for (const Worker& worker : threads.m_workers) {
            if (!worker.isDone)
                return false;
        }
        return true;
    };
    {
        std::unique_lock lock(threads.m_mutex);
        threads.m_ended.wait_for(lock, std::chrono::milliseconds(500), isOver);
    }
    if (threads.joinDone())
        return;
    std::fflush(nullptr);
    std::_Exit(status);
}

void TileThreads::start(std::function<void()> work)
{
    joinDone();
    const std::lock_guard lock(m_mutex);
    Worker& worker = m_workers.emplace_back();
    worker.thread = std::thread([this, &worker, todo = std::move(work)]() mutable {
        todo();
        todo = {}; // what it owns ends here, and not after the thread is called done
        const std::lock_guard guard(m_mutex);
        worker.isDone = true;
        m_ended.notify_all();
    });
}

bool TileThreads::joinDone()
{
    const std::lock_guard lock(m_mutex);
    m_workers.remove_if([](Worker& worker) {
        if (worker.isDone)
            worker.thread.join();
        return worker.isDone;
    });
    return m_workers.empty();
}

bool TileThreads::tryConnect(const std::string& host)
{
    const std::lock_guard lock(m_mutex);
    int& count = m_connections[host];
    if (count >= kMostConnections)
        return false;
    ++count;
    return true;
}

void TileThreads::release(const std::string& host)
{
    const std::lock_guard lock(m_mutex);
    --m_connections[host];
}

} // namespace lum
