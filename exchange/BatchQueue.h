#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <utility>

/// Passes batches in order from the thread that makes them to the thread that uses them. It holds
/// several, so that neither thread has to wait when the system lets the other sleep for a while.
template <class Batch>
class BatchQueue
{
public:
    static constexpr std::size_t kRoom = 64;

    /// Waits for room. \returns false, with the batch dropped, once the queue is closed
    bool push(Batch&& batch)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isClosed || m_batches.size() < kRoom; });
        if (m_isClosed)
            return false;
        m_batches.push_back(std::move(batch));
        m_changed.notify_one();
        return true;
    }

    /// Waits for a batch; nothing once the queue is closed and empty.
    std::optional<Batch> pop()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isClosed || !m_batches.empty(); });
        if (m_batches.empty())
            return std::nullopt;
        std::optional<Batch> batch(std::move(m_batches.front()));
        m_batches.pop_front();
        m_changed.notify_one();
        return batch;
    }

    /// Called by the maker behind its last batch, or by the user when it wants no more.
    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_isClosed = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    // The queue cannot be full and empty at once, so at most one thread waits.
    std::condition_variable m_changed;
    std::deque<Batch> m_batches;
    bool m_isClosed = false;
};
