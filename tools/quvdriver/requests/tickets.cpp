// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/tickets.h"

#include "machines/refusal.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QUuid>

#include <algorithm>
#include <utility>

namespace quv {
namespace {

using Lock = std::unique_lock<std::mutex>;

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

/// About how many bytes a value takes; what it holds is counted with what the heap adds.
std::size_t memoryOf(const XmlRpc::XmlRpcValue &value)
{
    using XmlRpc::XmlRpcValue;
    constexpr std::size_t Block = 48;
    std::size_t bytes = sizeof(XmlRpcValue) + Block;
    switch (value.getType()) {
    case XmlRpcValue::TypeString:
        return bytes + static_cast<const std::string &>(value).size();
    case XmlRpcValue::TypeBase64:
        return bytes + static_cast<const XmlRpcValue::BinaryData &>(value).size();
    case XmlRpcValue::TypeArray:
        for (int i = 0; i < value.size(); ++i)
            bytes += memoryOf(value[i]);
        return bytes;
    case XmlRpcValue::TypeStruct:
        for (const auto &[name, member] : value)
            bytes += 2 * Block + name.size() + memoryOf(member);
        return bytes;
    default:
        return bytes;
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
    std::shared_ptr<Progress> progress{};
    Keeping keeping = Shortly;
    Clock::time_point keptUntil = Clock::time_point::max();
    bool isRead = false;
    std::size_t bytes = 0; ///< of the result
    CmdStatus status{CmdStatus::Created, 0, 0, QString()};
};

Tickets::Tickets(Now now) : m_now(std::move(now)) {}

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

std::optional<QString> Tickets::add(Job job, std::shared_ptr<Progress> progress, Keeping keeping, Pace pace)
{
    auto ticket = std::make_shared<Ticket>();
    ticket->id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    ticket->job = std::move(job);
    ticket->progress = std::move(progress);
    ticket->keeping = keeping;
    {
        const Lock lock(m_mutex);
        Queue &queue = m_queues[pace];
        if (queue.waiting.size() >= MaxWaiting)
            return std::nullopt;
        makeRoom(keeping);
        if (queue.idle <= queue.waiting.size() && queue.threads < MaxAtOnce[pace]) {
            m_threads.emplace_back([this, &queue] { work(queue); });
            ++queue.threads;
            ++queue.idle;
        }
        ticket->enter(CmdStatus::Queued);
        ticket->status.setTimeLeft(ticket->progress->expected());
        m_tickets.insert(ticket->id, ticket);
        m_kept[keeping].push_back(ticket);
        queue.waiting.push_back(ticket);
    }
    m_changed.notify_all();
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
        status.setPercentage(ticket->progress->percentage());
        status.setTimeLeft(ticket->progress->timeLeft());
    } else if (status.status() <= 0 && !std::exchange(ticket->isRead, true)) {
        // an answer may be lost on its way, and is asked for again
        ticket->keptUntil = std::min(ticket->keptUntil, m_now() + ShortestTime);
    }
    return status;
}

bool Tickets::hasRoom(Keeping keeping) const
{
    return m_kept[keeping].size() < MaxKept && m_resultBytes < MaxResultBytes;
}

/// Forgets what nobody counts on any more, as little as will do: first of the same kind.
void Tickets::makeRoom(Keeping keeping)
{
    const auto forget = [&, now = m_now()](std::deque<std::shared_ptr<Ticket>> &kept) {
        for (auto ticket = kept.begin(); ticket != kept.end() && !hasRoom(keeping);) {
            if (now < (*ticket)->keptUntil) {
                ++ticket;
                continue;
            }
            m_resultBytes -= (*ticket)->bytes;
            m_tickets.remove((*ticket)->id);
            ticket = kept.erase(ticket);
        }
    };
    forget(m_kept[keeping]);
    if (m_kept[keeping].size() < MaxKept)
        forget(m_kept[1 - keeping]);
    if (!hasRoom(keeping))
        refuse(NotCarriedOut, "DE03150",
               QStringLiteral(
                   "Too many results are kept for those who have not asked for them; try again in a minute"));
}

void Tickets::finish(Ticket &ticket, const XmlRpc::XmlRpcValue &envelope)
{
    ticket.enter(endStateOf(envelope));
    ticket.status.setResultValue(envelope);
    ticket.bytes = memoryOf(envelope);
    ticket.keptUntil = m_now() + (ticket.keeping == UntilRead ? Clock::duration(LongestTime) : ShortestTime);
    m_resultBytes += ticket.bytes;
}

void Tickets::work(Queue &queue)
{
    Lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [&] { return m_ends || !queue.waiting.empty(); });
        if (m_ends)
            return;
        const auto ticket = queue.waiting.front();
        queue.waiting.pop_front();
        --queue.idle;
        ticket->progress->begin();
        ticket->enter(CmdStatus::Executing);
        Job job = std::exchange(ticket->job, nullptr);

        lock.unlock();
        const XmlRpc::XmlRpcValue envelope = job();
        // What the job holds, such as the right to pour, is free before anybody hears that it has ended.
        job = nullptr;
        lock.lock();
        finish(*ticket, envelope);
        ++queue.idle;
    }
}

} // namespace quv
