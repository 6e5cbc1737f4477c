#pragma once

#include <future>
#include <system_error>

namespace lum {

/// Calls `work(0)` on this thread and `work(1)` on another, and waits for both. They share what
/// there is to do. When no thread can be started, `work(0)` does it alone.
template <class Work>
void onTwoThreads(const Work& work)
{
    std::future<void> other;
    try {
        other = std::async(std::launch::async, [&work] { work(1); });
    } catch (const std::system_error&) {
        work(0);
        return;
    }
    work(0);
    other.get();
}

} // namespace lum
