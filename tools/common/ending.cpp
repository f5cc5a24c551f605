// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ending.h"

#include <algorithm>

namespace quv {

Ending::Ending(std::initializer_list<Ending *> others) : m_others(others)
{
    for (Ending *other : m_others) {
        const std::lock_guard lock(other->m_mutex);
        other->m_followers.push_back(this);
        if (other->m_hasBegun)
            begin();
    }
}

Ending::~Ending()
{
    for (Ending *other : m_others) {
        const std::lock_guard lock(other->m_mutex);
        auto &followers = other->m_followers;
        followers.erase(std::remove(followers.begin(), followers.end(), this), followers.end());
    }
}

void Ending::begin() noexcept
{
    const std::lock_guard lock(m_mutex);
    m_hasBegun = true;
    for (Ending *follower : m_followers)
        follower->begin();
    m_changed.notify_all(); // before anybody who waited can be gone
}

bool Ending::hasBegun() const
{
    const std::lock_guard lock(m_mutex);
    return m_hasBegun;
}

bool Ending::wait(std::chrono::milliseconds time) const
{
    std::unique_lock lock(m_mutex);
    return !m_changed.wait_for(lock, time, [this] { return m_hasBegun; });
}

} // namespace quv
