// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/waiting.h"

#include "requests/refusal.h"

#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>
#include <memory>

namespace quv {
namespace {

using std::chrono::milliseconds;

/// Null when the machine does not tell it.
std::unique_ptr<const MachineStatusAnswer> statusOf(DrivenMachine &machine, int module)
{
    const bool isMixer = machine.type() == SerialDeviceType::Mixer;
    const FirmwareReply reply =
        ask(machine, isMixer ? ProtoCommandList::MIXER_STATUS : ProtoCommandList::GET_STATUS, module);
    if (reply.refused)
        return nullptr;
    try {
        if (isMixer)
            return std::make_unique<MixerStatusAnswer>(reply.tokens);
        return std::make_unique<DispenserStatusAnswer>(reply.tokens);
    } catch (const FW_Exception &error) {
        throw CallRefusal{InvalidSerialAnswer, FW_DriverError(error.code(), error.text())};
    }
}

} // namespace

FirmwareReply ask(DrivenMachine &machine, ProtoCommandList::CommandListValue question, int module)
{
    return machine.exchange(ProtoCommandList::cmdCode(ProtoCommandList::cmdStr(question), machine.family()),
                            module, {});
}

WaitEnd waitUntil(const StatusCondition &condition, DrivenMachine &machine, const WaitRules &rules,
                  const Ending &ending)
{
    using Clock = std::chrono::steady_clock;
    constexpr qint64 Shortest = 5;
    constexpr qint64 Longest = 100;
    const milliseconds interval(std::clamp(rules.expected / 50, Shortest, Longest));
    const auto begin = Clock::now();
    while (true) {
        const auto status = statusOf(machine, rules.module);
        if (!status)
            return WaitEnd::Untold;
        if (condition(*status))
            return WaitEnd::Held;
        milliseconds next = interval;
        if (rules.limit) {
            const auto left = std::chrono::ceil<milliseconds>(begin + *rules.limit - Clock::now());
            if (left.count() <= 0)
                return WaitEnd::TimeIsUp;
            next = std::min(next, left);
        }
        if (!ending.wait(next))
            return WaitEnd::Stopped;
    }
}

} // namespace quv
