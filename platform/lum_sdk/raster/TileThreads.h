#pragma once

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
/// owner lets go of it, and it ends when the service answers or the time limit is over. At the end
/// of the process these threads get half a second; if one is still waiting for its service then,
/// the process ends at once, since the libraries' own end must not meet a thread inside them.
/// `main` has returned by then.
class TileThreads
{
public:
    static constexpr int kMostConnections = 2; ///< to one machine

    /// The one of the process.
    [[nodiscard]] static TileThreads& instance();

    /// `work` owns all that it uses.
    void start(std::function<void()> work);

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

    TileThreads() = default;
    static void endProcess(int status, void* self);
    /// Only the end of the thread itself is waited for. \returns whether all have ended
    bool joinDone();

    std::mutex m_mutex; ///< of all below
    std::condition_variable m_ended;
    std::list<Worker> m_workers;
    std::map<std::string, int> m_connections;
};

} // namespace lum
