// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tickets.h"

#include "refusal.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QUuid>

#include <algorithm>
#include <utility>

namespace quv {
namespace {

using Lock = std::unique_lock<std::mutex>;

// A machine pours once at a time, so at most two of them are at it, and the others are free for what is short.
constexpr int Threads = 4;

int endStateOf(const XmlRpc::XmlRpcValue &envelope)
{
    int retCode = OtherFailure;
    DecodeXmlRpcValue(envelope, XmlRpcAnswer::retCode_TAG, retCode);
    switch (retCode) {
    case Done:
        return CmdStatus::Done;
    case Interrupted:
        return CmdStatus::Interrupted;
    default:
        return CmdStatus::Failed;
    }
}

} // namespace

struct Tickets::Ticket
{
    /// The text goes with the state, for clients that know no numbers.
    void enter(int state)
    {
        status.setStatus(state);
        status.setInfo(CmdStatus::getDescription(state));
    }

    QString id{};
    Job job{};
    qint64 expected = 0;
    Progress progress{}; ///< since the ticket's turn came
    CmdStatus status{CmdStatus::Created, 0, 0, QString()};
};

Tickets::Tickets()
{
    for (int i = 0; i < Threads; ++i)
        m_threads.emplace_back([this] { work(); });
}

Tickets::~Tickets()
{
    {
        const Lock lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    for (std::thread &thread : m_threads)
        thread.join();
}

std::optional<QString> Tickets::add(Job job, qint64 expected)
{
    auto ticket = std::make_shared<Ticket>();
    ticket->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    ticket->job = std::move(job);
    ticket->expected = std::max(expected, qint64(0));
    {
        const Lock lock(m_mutex);
        if (m_waiting.size() >= MaxWaiting)
            return std::nullopt;
        ticket->enter(CmdStatus::Queued);
        ticket->status.setTimeLeft(ticket->expected);
        m_tickets.insert(ticket->id, ticket);
        m_kept.push_back(ticket);
        m_waiting.push_back(ticket);
        forgetOld();
    }
    m_changed.notify_one();
    return ticket->id;
}

std::optional<CmdStatus> Tickets::status(const QString &id) const
{
    const Lock lock(m_mutex);
    const auto ticket = m_tickets.value(id);
    if (!ticket)
        return std::nullopt;
    CmdStatus status = ticket->status;
    if (status.status() == CmdStatus::Executing) {
        status.setPercentage(ticket->progress.percentage());
        status.setTimeLeft(ticket->progress.timeLeft());
    }
    return status;
}

void Tickets::forgetOld()
{
    if (m_kept.size() <= MaxKept)
        return;
    const auto ended = std::find_if(m_kept.begin(), m_kept.end(),
                                    [](const auto &ticket) { return ticket->status.status() <= 0; });
    if (ended == m_kept.end())
        return;
    m_tickets.remove((*ended)->id);
    m_kept.erase(ended);
}

void Tickets::finish(Ticket &ticket, const XmlRpc::XmlRpcValue &envelope)
{
    ticket.enter(endStateOf(envelope));
    ticket.status.setResultValue(envelope);
}

void Tickets::work()
{
    Lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_ends || !m_waiting.empty(); });
        if (m_ends)
            return;
        const auto ticket = m_waiting.front();
        m_waiting.pop_front();
        ticket->progress = Progress(ticket->expected);
        ticket->enter(CmdStatus::Executing);
        Job job = std::exchange(ticket->job, nullptr);

        lock.unlock();
        const XmlRpc::XmlRpcValue envelope = job();
        // What the job holds, such as the right to pour, is free before anybody hears that it has ended.
        job = nullptr;
        lock.lock();
        finish(*ticket, envelope);
    }
}

} // namespace quv
