// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <initializer_list>
#include <mutex>
#include <vector>

namespace quv {

/// Ends what waits. Any number of threads may wait on it, and begin it.
class Ending
{
public:
    Ending() = default;
    /// Begins with any of \a others as well, which must outlive it.
    explicit Ending(std::initializer_list<Ending *> others);
    ~Ending();
    Ending(const Ending &) = delete;
    Ending &operator=(const Ending &) = delete;

    /// For good.
    void begin() noexcept;
    bool hasBegun() const;

    /// Waits so long; false, and at once, when it begins.
    bool wait(std::chrono::milliseconds time) const;

private:
    mutable std::mutex m_mutex{}; ///< of another one it is locked before those of its followers
    mutable std::condition_variable m_changed{};
    bool m_hasBegun = false;
    std::vector<Ending *> m_others{};
    std::vector<Ending *> m_followers{};
};

} // namespace quv
