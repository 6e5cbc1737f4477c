#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <thread>

namespace lum {

/// The threads that ask services for tiles, of the whole process.
///
/// A library that waits for a service cannot be interrupted. So nobody waits for such a thread: its
/// owner lets go of it, and it ends when the service answers or the time limit is over.
class TileThreads
{
public:
    static constexpr int kMostConnections = 2; ///< to one machine

    /// The one of the process. It is never destroyed, since its threads use it.
    [[nodiscard]] static TileThreads& instance();

    /// `work` owns all that it uses.
    void start(std::function<void()> work);

    /// Waits for the threads that have been let go of. \returns false when the time is over
    bool waitForEnd(std::chrono::milliseconds atMost);

    /// Whether one more connection to the machine is allowed; then it counts until `release`.
    /// Threads that were let go of count, too.
    [[nodiscard]] bool tryConnect(const std::string& host);
    void release(const std::string& host);

private:
    struct Worker
    {
        std::thread thread;
        bool isDone = false;
    };

    /// Joins those that are done. The caller holds the mutex.
    void joinDone();

    std::mutex m_mutex; ///< of all below
    std::condition_variable m_changed;
    std::list<Worker> m_workers;
    std::map<std::string, int> m_connections;
};

/// The last call of `main`, instead of `std::exit`: gives the threads half a second. When one is
/// still waiting for its service then, the process ends without the end of its libraries, which
/// must not meet a thread inside them.
[[noreturn]] void exitProcess(int status);

} // namespace lum
