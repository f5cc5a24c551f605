// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

#include <algorithm>
#include <chrono>
#include <mutex>

namespace quv {

/// How far something is that begins now and should take so many milliseconds; 0 or less when nobody knows. Any number of threads
/// may use it.
class Progress
{
public:
    explicit Progress(qint64 expected = 0) : m_expected(std::max(expected, qint64(0))) {}

    /// Its turn has come only now.
    void begin()
    {
        const std::lock_guard lock(m_mutex);
        m_begin = Clock::now();
    }
    /// So many milliseconds are left from now on.
    void expect(qint64 timeLeft)
    {
        const std::lock_guard lock(m_mutex);
        m_expected = elapsed() + std::max(timeLeft, qint64(0));
    }

    qint64 expected() const ///< milliseconds in all
    {
        const std::lock_guard lock(m_mutex);
        return m_expected;
    }
    /// 0 to 99: that it has ended is not for a clock to say.
    int percentage() const
    {
        const std::lock_guard lock(m_mutex);
        return m_expected == 0
                   ? 0
                   : static_cast<int>(std::min(99.0, 100 * double(elapsed()) / double(m_expected)));
    }
    qint64 timeLeft() const ///< milliseconds
    {
        const std::lock_guard lock(m_mutex);
        return std::max(m_expected - elapsed(), qint64(0));
    }

private:
    using Clock = std::chrono::steady_clock;

    qint64 elapsed() const
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - m_begin).count();
    }

    mutable std::mutex m_mutex{}; ///< guards what follows
    qint64 m_expected = 0;
    Clock::time_point m_begin = Clock::now();
};

} // namespace quv
