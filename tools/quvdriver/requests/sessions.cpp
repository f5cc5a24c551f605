// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/sessions.h"

#include "excerpt.h"
#include "machines/drivenmachine.h"
#include "machines/refusal.h"

#include "sessions/getkeycmd.h"

#include <QtCore/QRandomGenerator>

#include <array>
#include <utility>

namespace quv {
namespace {

using SessionsLock = std::lock_guard<std::mutex>;

/// 128 bits of the system's random numbers.
QString newSessionID()
{
    std::array<quint32, 4> numbers{};
    QRandomGenerator::system()->fillRange(numbers.data(), static_cast<int>(numbers.size()));
    QString id;
    for (const quint32 number : numbers)
        id += QStringLiteral("%1").arg(number, 8, 16, QLatin1Char('0'));
    return id;
}

} // namespace

Sessions::Sessions(Now now) : m_now(std::move(now)) {}

QString Sessions::open(const Session &login, DrivenMachine &machine)
{
    const SessionsLock lock(m_mutex);
    endUnused();
    if (m_sessions.size() >= MaxOpen)
        refuse(NotCarriedOut, "DE03403",
               QStringLiteral("Too many sessions are open; try again when one has ended"));
    Opened opened{login, &machine, m_now()};
    opened.client.number = ++m_number;
    QString id = newSessionID();
    m_sessions.insert(id, opened);
    return id;
}

bool Sessions::isOpen(const QString &id)
{
    const SessionsLock lock(m_mutex);
    endUnused();
    return m_sessions.contains(id);
}

DrivenMachine &Sessions::machineOf(const QString &id)
{
    const SessionsLock lock(m_mutex);
    return *use(id).machine;
}

QString Sessions::exchangeKeys(const QString &id, const QString &clientKey)
{
    const SessionsLock lock(m_mutex);
    Session &session = use(id).client;
    QString driverKey;
    int secret = 0;
    while (secret < 1) // one below 1 has no public value
        GetKeyCmd::createSharedKey(&driverKey, &secret);
    const QString sessionKey = GetKeyCmd::createLoginKey(clientKey.trimmed(), secret);
    if (sessionKey.isEmpty())
        refuse(InvalidRequest, "DE03405", QStringLiteral("The client key must be a number above 0"));
    session.clientKey = clientKey;
    session.sessionKey = sessionKey;
    session.certified = false;
    return driverKey;
}

bool Sessions::certify(const QString &id, const QString &key)
{
    const SessionsLock lock(m_mutex);
    Session &session = use(id).client;
    if (session.sessionKey.isEmpty())
        refuse(InvalidRequest, "DE03404", QStringLiteral("The session has no key; GET_KEY makes one"));
    session.certified = key.toInt() == session.sessionKey.toInt();
    if (!session.certified)
        session.sessionKey.clear();
    return session.certified;
}

void Sessions::close(const QString &id)
{
    const SessionsLock lock(m_mutex);
    use(id);
    m_sessions.remove(id);
}

void Sessions::endUnused()
{
    const Clock::time_point now = m_now();
    for (auto session = m_sessions.begin(); session != m_sessions.end();) {
        const auto longest = session->client.certified ? Unused : UnusedUncertified;
        session = now - session->used >= longest ? m_sessions.erase(session) : std::next(session);
    }
}

Sessions::Opened &Sessions::use(const QString &id)
{
    endUnused();
    const auto session = m_sessions.find(id);
    if (session == m_sessions.end())
        refuse(InvalidRequest, "DE03400",
               QStringLiteral("There is no session \"%1\"; one ends by LOGOUT, or when it is unused for %2 "
                              "minutes, for %3 before it is certified")
                   .arg(excerpt(id))
                   .arg(Unused.count())
                   .arg(UnusedUncertified.count()));
    session->used = m_now();
    return *session;
}

} // namespace quv
