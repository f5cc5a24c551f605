// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>

namespace quv {

/// How many bytes many may hold together. Any number of threads may use it.
class Budget
{
public:
    /// So many of them, as long as it lives. The budget must live longer.
    class Share
    {
    public:
        Share(Budget &budget, std::size_t bytes) : m_budget(budget), m_bytes(bytes) {}
        ~Share() { m_budget.m_taken -= m_bytes; }
        Share(const Share &) = delete;
        Share &operator=(const Share &) = delete;

    private:
        Budget &m_budget;
        const std::size_t m_bytes;
    };

    explicit Budget(std::size_t most) : m_most(most) {}

    /// Null when others hold too many.
    std::unique_ptr<Share> take(std::size_t bytes)
    {
        auto share = std::make_unique<Share>(*this, bytes); // gives them back when they are too many
        if (m_taken.fetch_add(bytes) + bytes > m_most)
            share.reset();
        return share;
    }

private:
    const std::size_t m_most;
    std::atomic<std::size_t> m_taken{0};
};

} // namespace quv
