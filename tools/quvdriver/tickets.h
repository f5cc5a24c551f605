// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "progress.h"

#include "base/cmdstatus.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace quv {

/**
 * The commands that are carried out behind their callers' backs. Each has a ticket, under which its state and, in the end,
 * its envelope can be asked for. Threads of their own take them in turn; they are more than the machines, so that one that
 * pours keeps nobody waiting.
 *
 * The last 1000 tickets are kept. When there are more, the oldest that has ended is forgotten.
 */
class Tickets
{
public:
    /// Carries a command out and gives its envelope. Never throws.
    using Job = std::function<XmlRpc::XmlRpcValue()>;

    static constexpr std::size_t MaxKept = 1000;
    static constexpr std::size_t MaxWaiting = 100; ///< tickets whose turn has not come

    Tickets();
    /// Waits for the jobs that run, and tells nobody of those that do not.
    ~Tickets();
    Tickets(const Tickets &) = delete;
    Tickets &operator=(const Tickets &) = delete;

    /// The ticket of \a job, which should take \a expected milliseconds (0 or less: nobody knows); nothing when too many
    /// wait already.
    std::optional<QString> add(Job job, qint64 expected);
    /// Nothing for a ticket that is unknown, or forgotten.
    std::optional<CmdStatus> status(const QString &id) const;

private:
    struct Ticket;

    void work();
    void forgetOld();
    static void finish(Ticket &ticket, const XmlRpc::XmlRpcValue &envelope);

    mutable std::mutex m_mutex{}; ///< guards all
    std::condition_variable m_changed{};
    bool m_ends = false;
    QHash<QString, std::shared_ptr<Ticket>> m_tickets{};
    std::deque<std::shared_ptr<Ticket>> m_kept{};    ///< the oldest first
    std::deque<std::shared_ptr<Ticket>> m_waiting{}; ///< the next first
    std::vector<std::thread> m_threads{};
};

} // namespace quv
