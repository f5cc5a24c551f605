// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/waiting.h"

#include "status/dispenserstatusanswer.h"
#include "status/mixerstatusanswer.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <stdexcept>

namespace quv {
namespace {

using std::chrono::milliseconds;

using Clock = std::chrono::steady_clock;

constexpr milliseconds ShortestInterval{5};

ProtoCommandList::CommandListValue statusQuestion(const DrivenMachine &machine)
{
    return machine.type() == SerialDeviceType::Mixer ? ProtoCommandList::MIXER_STATUS
                                                     : ProtoCommandList::GET_STATUS;
}

/// Null when the machine does not tell it.
std::unique_ptr<const MachineStatusAnswer> statusIn(const FirmwareReply &reply, const DrivenMachine &machine)
{
    if (machine.type() == SerialDeviceType::Mixer)
        return told<MixerStatusAnswer>(reply);
    return told<DispenserStatusAnswer>(reply);
}

} // namespace

std::optional<FirmwareReply> askPatiently(DrivenMachine &machine, ProtoCommandList::CommandListValue question,
                                          int module, const Ending &ending)
{
    constexpr double Patience = 30000; // milliseconds
    const auto giveUp = Clock::now() + milliseconds(std::llround(Patience / machine.speed()));
    while (true) {
        try {
            return ask(machine, question, module);
        } catch (const std::runtime_error &) {
            if (Clock::now() >= giveUp)
                throw;
        }
        if (!ending.wait(ShortestInterval))
            return std::nullopt;
    }
}

WaitEnd waitUntil(const StatusCondition &condition, DrivenMachine &machine, const WaitRules &rules,
                  const Ending &ending)
{
    constexpr milliseconds LongestInterval{100};
    const milliseconds interval =
        std::clamp(milliseconds(rules.expected / 50), ShortestInterval, LongestInterval);
    const auto begin = Clock::now();
    while (true) {
        const auto reply = askPatiently(machine, statusQuestion(machine), rules.module, ending);
        if (!reply)
            return WaitEnd::Stopped;
        const auto status = statusIn(*reply, machine);
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
