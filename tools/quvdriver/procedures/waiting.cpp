// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/waiting.h"

#include "requests/refusal.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>

namespace quv {
namespace {

bool isSet(bool DispenserStatusAnswer::*flag, DrivenMachine &machine)
{
    const FirmwareReply reply = ask(machine, ProtoCommandList::GET_STATUS);
    if (reply.refused)
        return false; // nobody could be told
    try {
        return DispenserStatusAnswer(reply.tokens).*flag;
    } catch (const FW_Exception &error) {
        throw CallRefusal{InvalidSerialAnswer, FW_DriverError(error.code(), error.text())};
    }
}

} // namespace

FirmwareReply ask(DrivenMachine &machine, ProtoCommandList::CommandListValue question)
{
    return machine.exchange(ProtoCommandList::cmdCode(ProtoCommandList::cmdStr(question), machine.family()),
                            0, {});
}

void waitWhile(bool DispenserStatusAnswer::*flag, DrivenMachine &machine, qint64 expected,
               const Ending &ending)
{
    constexpr qint64 Shortest = 5;
    constexpr qint64 Longest = 100;
    const std::chrono::milliseconds interval(std::clamp(expected / 50, Shortest, Longest));
    while (isSet(flag, machine)) {
        if (!ending.wait(interval))
            refuse(Interrupted, "DE03116",
                   QStringLiteral("The driver ends before the command has; the machine goes on by itself"));
    }
}

} // namespace quv
