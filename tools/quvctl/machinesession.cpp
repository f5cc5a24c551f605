// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinesession.h"

#include "executed.h"

#include "sessions/loginanswer.h"
#include "sessions/logincmd.h"
#include "sessions/logoutcmd.h"
#include "status/getactivedispanswer.h"

namespace quv {

namespace {

struct ListedMachines
{
    QList<int> active{};
    QList<int> all{};
};

ListedMachines machinesOf(SerialDeviceType type, const MachineSession::Send &send)
{
    const auto command = plainCommand(ProtoCommandList::GET_ACTIVE_DISP);
    const auto &list = answerIn<GetActiveDispAnswer>(send(*command, QString()), *command);
    if (type == SerialDeviceType::Mixer)
        return {list.getActiveMixerIDs(), list.getMixerIDs()};
    return {list.getActiveDispenserIDs(), list.getDispenserIDs()};
}

/// The active one of the kind, or the first that the driver lists.
int idOfActive(SerialDeviceType type, const MachineSession::Send &send)
{
    const ListedMachines listed = machinesOf(type, send);
    if (listed.all.isEmpty())
        throw std::runtime_error(type == SerialDeviceType::Mixer ? "the driver has no mixer"
                                                                 : "the driver has no dispenser");
    return listed.active.isEmpty() ? listed.all.first() : listed.active.first();
}

QString loggedIn(const MachineID &machine, const MachineSession::Send &send)
{
    LoginCmd command(machine, QStringLiteral("quvctl"), 0);
    return answerIn<LoginAnswer>(send(command, QString()), command).sessionID();
}

InterruptPlan tidyingPlan(std::function<void()> tidyUp)
{
    InterruptPlan plan;
    plan.beforeTheEnd = std::move(tidyUp);
    return plan;
}

} // namespace

MachineSession::MachineSession(const MachineID &machine, const Send &send, const Send &sendShortly)
    : m_machine(machine),
      m_send(send),
      m_sendShortly(sendShortly),
      m_id(loggedIn(machine, send)),
      m_onInterrupt(tidyingPlan([this] { logOut(); }))
{}

MachineSession::~MachineSession()
{
    logOut();
}

QString MachineSession::id() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_id;
}

void MachineSession::renew()
{
    const QString id = loggedIn(m_machine, m_send);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_id = id;
}

void MachineSession::logOut() const noexcept
{
    try {
        const QString session = id();
        LogoutCmd command(session);
        m_sendShortly(command, session);
    } catch (...) { // what was asked for has been done, or has failed for a reason of its own
        return;
    }
}

MachineID machineOf(const MachineChoice &choice, const MachineSession::Send &send)
{
    return {choice.id ? *choice.id : idOfActive(choice.type, send), choice.type};
}

std::optional<MachineID> activeMachine(SerialDeviceType type, const MachineSession::Send &send)
{
    const auto listed = ifTold([&] { return machinesOf(type, send); });
    if (!listed || listed->active.isEmpty())
        return std::nullopt;
    return MachineID(listed->active.first(), type);
}

} // namespace quv
