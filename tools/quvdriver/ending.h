// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace quv {

/// Ends all that waits in the driver.
class Ending
{
public:
    /// For good. Also from a signal handler, which is why whoever waits looks for it again and again.
    void begin() noexcept { m_hasBegun = true; }
    bool hasBegun() const noexcept { return m_hasBegun; }

    /// Waits so long; false, and at once, when the driver ends.
    bool wait(std::chrono::milliseconds time) const
    {
        using Clock = std::chrono::steady_clock;
        constexpr std::chrono::milliseconds Glance(20);
        const auto end = Clock::now() + time;
        for (auto now = Clock::now(); now < end && !m_hasBegun; now = Clock::now())
            std::this_thread::sleep_for(std::min<Clock::duration>(Glance, end - now));
        return !m_hasBegun;
    }

private:
    std::atomic<bool> m_hasBegun{false};
};

} // namespace quv
