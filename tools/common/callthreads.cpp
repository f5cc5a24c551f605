// SPDX-License-Identifier: LGPL-3.0-or-later
#include "callthreads.h"

#include <csignal>
#include <system_error>
#include <utility>

namespace quv {

std::thread startQuietThread(std::function<void()> work)
{
    sigset_t quiet{};
    sigset_t before{};
    sigfillset(&quiet);
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) // those that a thread raises itself
        sigdelset(&quiet, fault);
    pthread_sigmask(SIG_SETMASK, &quiet, &before);
    std::thread thread;
    try {
        thread = std::thread(std::move(work));
    } catch (...) {
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
        throw;
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

bool CallThreads::start(std::function<void()> job)
{
    const std::lock_guard lock(m_mutex);
    if (m_running >= m_most)
        return false;
    try {
        startQuietThread([this, job = std::move(job)]() mutable {
            try {
                job();
            } catch (...) { // no memory for an answer; the program goes on
            }
            job = nullptr; // what it holds is free before anybody hears that it has ended
            const std::lock_guard ended(m_mutex);
            --m_running;
            m_changed.notify_all();
        }).detach();
    } catch (const std::system_error &) {
        return false;
    }
    ++m_running;
    return true;
}

void CallThreads::waitForAll()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_running == 0; });
}

} // namespace quv
