// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/progress.h"

#include "base/cmdstatus.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <array>
#include <chrono>
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
 * its envelope can be asked for. Threads of their own take them in turn: those that take their time have others than those that
 * do not, so that nobody waits for a pour.
 *
 * A result is kept for a minute at least; that of a pour, which nobody can ask the machine again, until it has been read and for
 * a minute longer, or for an hour. Then it makes room for others, the oldest first. When no room can be made, nothing new is
 * taken.
 */
class Tickets
{
public:
    /// Carries a command out and gives its envelope. Never throws.
    using Job = std::function<XmlRpc::XmlRpcValue()>;

    /// How long a result is kept.
    enum Keeping { Shortly, UntilRead };
    static constexpr int Keepings = 2;

    /// Whether it ends soon, or takes its time.
    enum Pace { Quick, Lasting };
    static constexpr int Paces = 2;
    static constexpr std::array<std::size_t, Paces> MaxAtOnce{4, 32};

    /// The time by a clock that never goes back; tests replace it.
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    static constexpr std::size_t MaxKept = 1000; ///< of each Keeping, so that pours have a place of their own
    static constexpr std::size_t MaxWaiting = 100; ///< tickets of a Pace whose turn has not come
    static constexpr std::size_t MaxResultBytes =
        std::size_t(64) * 1024 * 1024; ///< with which something new is taken
    static constexpr std::chrono::minutes ShortestTime{1};
    static constexpr std::chrono::hours LongestTime{1}; ///< of a pour's result that nobody reads

    explicit Tickets(Now now = Clock::now);
    /// Waits for the jobs that run, and tells nobody of those that do not.
    ~Tickets();
    Tickets(const Tickets &) = delete;
    Tickets &operator=(const Tickets &) = delete;

    /**
     * The ticket of \a job, which tells how far it is by \a progress; nothing when too many wait already.
     * \throws CallRefusal DE03150 when too much is kept
     */
    std::optional<QString> add(Job job, std::shared_ptr<Progress> progress, Keeping keeping, Pace pace);
    /// Of a quick one that should take \a expected milliseconds (0 or less: nobody knows).
    std::optional<QString> add(Job job, qint64 expected, Keeping keeping = Shortly)
    {
        return add(std::move(job), std::make_shared<Progress>(expected), keeping, Quick);
    }
    /// Nothing for a ticket that is unknown, or forgotten. Who is told of an end has read the result.
    std::optional<CmdStatus> status(const QString &id) const;

private:
    struct Ticket;

    /// Those of a Pace whose turn has not come, the next first, and how many threads there are for them.
    struct Queue
    {
        std::deque<std::shared_ptr<Ticket>> waiting{};
        std::size_t threads = 0;
        std::size_t idle = 0; ///< of the threads
    };

    void work(Queue &queue);
    void makeRoom(Keeping keeping);
    bool hasRoom(Keeping keeping) const;
    void finish(Ticket &ticket, const XmlRpc::XmlRpcValue &envelope);

    Now m_now{};
    mutable std::mutex m_mutex{}; ///< guards what follows
    std::condition_variable m_changed{};
    bool m_ends = false;
    QHash<QString, std::shared_ptr<Ticket>> m_tickets{};
    std::array<std::deque<std::shared_ptr<Ticket>>, Keepings> m_kept{}; ///< the oldest first
    std::size_t m_resultBytes = 0;
    std::array<Queue, Paces> m_queues{};
    std::vector<std::thread> m_threads{};
};

} // namespace quv
