// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "sessions/session.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <mutex>

namespace quv {

class DrivenMachine;

/**
 * The sessions of clients. Each is of one machine, and its ID, which nobody can guess, addresses that machine. It ends when the client
 * logs out, or has not used it for long; a client that has shown the session's key keeps it for longer. As many are open at once as
 * there is room for: a new one never takes the place of another. Any number of threads may use it.
 */
class Sessions
{
public:
    /// The time by a clock that never goes back; tests replace it.
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    static constexpr int MaxOpen = 256;
    static constexpr std::chrono::minutes Unused{30};           ///< a certified session ends after it
    static constexpr std::chrono::minutes UnusedUncertified{5}; ///< another one after it

    explicit Sessions(Now now = Clock::now);

    /// The ID of a new session, of the client and level that \a login tells. \throws CallRefusal DE03403 when there is no room
    QString open(const Session &login, DrivenMachine &machine);

    bool isOpen(const QString &id);

    // What follows counts as use. \throws CallRefusal DE03400 when there is no such session

    DrivenMachine &machineOf(const QString &id);
    /// Takes the client's public value and gives the driver's. The session is not certified by the new key yet.
    /// \throws CallRefusal DE03405 for a value of which no key can be made
    QString exchangeKeys(const QString &id, const QString &clientKey);
    /// Whether the client has the session's key. After a wrong one the keys must be exchanged anew, so that nobody tries them all.
    /// \throws CallRefusal DE03404 when there is no key
    bool certify(const QString &id, const QString &key);
    void close(const QString &id);

private:
    struct Opened
    {
        Session client{};
        DrivenMachine *machine = nullptr;
        Clock::time_point used{};
    };

    void endUnused();
    Opened &use(const QString &id);

    Now m_now{};
    std::mutex m_mutex{}; ///< guards what follows
    QHash<QString, Opened> m_sessions{};
    int m_number = 0; ///< of the session that was opened last
};

} // namespace quv
