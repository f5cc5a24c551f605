// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandline.h"

#include <functional>
#include <memory>

class DispenserStatusAnswer;
class ProtoCommand;

namespace quv {

/// A process of a dispenser's circuits that runs for a time, goes on without end, or is ended: stirring, recirculation.
struct TimedProcess
{
    const char *doing;  ///< as in "stirring"
    const char *ending; ///< as in "stirring of"
    const char *done;   ///< as in "stirred"
    bool DispenserStatusAnswer::*flag;
    /// Of the circuit at the position, 0 for all, for so many seconds: 0 ends it, 60515 is without end.
    std::function<std::unique_ptr<ProtoCommand>(int position, long long seconds)> command;
};

/// Does what the first word tells, a time, "endless" or "off"; 30 seconds without one. \throws UsageError, and as carryOutProcess
ExitStatus carryOutTimed(const TimedProcess &timed, const CommandLine &line);

} // namespace quv
