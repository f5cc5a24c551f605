// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/questions.h"

#include "ending.h"

#include "status/machinestatusanswer.h"

#include <chrono>
#include <functional>
#include <optional>

namespace quv {

/// Asks a machine that is at something, which goes on while its link is lost: again and again, until there is a reply. Nothing when
/// the ending has begun. \throws what an exchange throws, when there has been none for half a minute of the machine's time
std::optional<FirmwareReply> askPatiently(DrivenMachine &machine, ProtoCommandList::CommandListValue question,
                                          int module, const Ending &ending);

/// What is waited for: something about the status of a dispenser (DispenserStatusAnswer) or of a mixer (MixerStatusAnswer).
using StatusCondition = std::function<bool(const MachineStatusAnswer &)>;

/// That a flag has fallen; a machine of the other kind has none.
template <class Answer>
StatusCondition hasFallen(bool Answer::*flag)
{
    return [flag](const MachineStatusAnswer &status) {
        const auto *answer = dynamic_cast<const Answer *>(&status);
        return !answer || !(answer->*flag);
    };
}

struct WaitRules
{
    int module = 0;      ///< the circuit whose status is asked; 0 for the machine's
    qint64 expected = 0; ///< milliseconds that it should take; how often the status is asked follows from it
    std::optional<std::chrono::milliseconds>
        limit{}; ///< how long it may take; nothing for as long as it takes
};

enum class WaitEnd {
    Held,   ///< the condition does
    Untold, ///< the machine does not tell its status
    TimeIsUp,
    Stopped, ///< the ending has begun
};

/// Waits until the condition over the status holds, asking for it again and again, a first time at once.
/// \throws CallRefusal for a status that cannot be read, and what an exchange throws
WaitEnd waitUntil(const StatusCondition &condition, DrivenMachine &machine, const WaitRules &rules,
                  const Ending &ending);

} // namespace quv
