// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace quv {

/// A thread that no signal is delivered to, so that they reach the main thread.
std::thread startQuietThread(std::function<void()> work);

/// Threads for calls that may last, one a call, up to so many at once.
class CallThreads
{
public:
    explicit CallThreads(int most) : m_most(most) {}
    ~CallThreads() { waitForAll(); }
    CallThreads(const CallThreads &) = delete;
    CallThreads &operator=(const CallThreads &) = delete;

    /// Carries \a job out; false when too many run already, or no thread can be had.
    bool start(std::function<void()> job);
    void waitForAll();

private:
    const int m_most;
    std::mutex m_mutex{}; ///< guards what follows
    std::condition_variable m_changed{};
    int m_running = 0;
};

} // namespace quv
