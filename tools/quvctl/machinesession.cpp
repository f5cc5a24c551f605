// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinesession.h"

#include "executed.h"

#include "sessions/loginanswer.h"
#include "sessions/logincmd.h"
#include "sessions/logoutcmd.h"
#include "status/getactivedispanswer.h"

namespace quv {

namespace {

bool isMixer(SerialDeviceType type)
{
    return type == SerialDeviceType::Mixer;
}

/// The active one of the kind, or the first that the driver lists.
int idOfActive(SerialDeviceType type, const MachineSession::Send &send)
{
    const auto command = plainCommand(ProtoCommandList::GET_ACTIVE_DISP);
    const auto &list = answerIn<GetActiveDispAnswer>(send(*command), *command);
    const QList<int> active = isMixer(type) ? list.getActiveMixerIDs() : list.getActiveDispenserIDs();
    const QList<int> all = isMixer(type) ? list.getMixerIDs() : list.getDispenserIDs();
    if (all.isEmpty())
        throw std::runtime_error(isMixer(type) ? "the driver has no mixer" : "the driver has no dispenser");
    return active.isEmpty() ? all.first() : active.first();
}

QString loggedIn(const MachineChoice &choice, const MachineSession::Send &send)
{
    const int machine = choice.id ? *choice.id : idOfActive(choice.type, send);
    LoginCmd command(MachineID(machine, choice.type), QStringLiteral("quvctl"), 0);
    return answerIn<LoginAnswer>(send(command), command).sessionID();
}

} // namespace

MachineSession::MachineSession(const MachineChoice &choice, const Send &send, const Send &sendShortly)
    : m_sendShortly(sendShortly),
      m_id(loggedIn(choice, send)),
      m_onInterrupt(InterruptPlan{{}, {}, false, {}, [this] { logOut(); }})
{}

MachineSession::~MachineSession()
{
    logOut();
}

void MachineSession::logOut() const noexcept
{
    try {
        LogoutCmd command(m_id);
        m_sendShortly(command);
    } catch (...) { // what was asked for has been done, or has failed for a reason of its own
        return;
    }
}

} // namespace quv
