#include "lum_sdk/raster/TileThreads.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace lum {

TileThreads& TileThreads::instance()
{
    static TileThreads& threads = *std::make_unique<TileThreads>().release();
    return threads;
}

void TileThreads::start(std::function<void()> work)
{
    const std::lock_guard lock(m_mutex);
    joinDone();
    Worker& worker = m_workers.emplace_back();
    worker.thread = std::thread([this, &worker, todo = std::move(work)]() mutable {
        todo();
        todo = {}; // what it owns ends here, and not after the thread is called done
        const std::lock_guard guard(m_mutex);
        worker.isDone = true;
        m_changed.notify_all();
    });
}

void TileThreads::joinDone()
{
    m_workers.remove_if([](Worker& worker) {
        if (worker.isDone)
            worker.thread.join();
        return worker.isDone;
    });
}

bool TileThreads::waitForEnd(std::chrono::milliseconds atMost)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, atMost, [this] {
        return std::all_of(m_workers.begin(), m_workers.end(),
                           [](const Worker& worker) { return worker.isDone; });
    });
    joinDone();
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

void exitProcess(int status)
{
    if (TileThreads::instance().waitForEnd(std::chrono::milliseconds(500)))
        std::exit(status);
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace lum
