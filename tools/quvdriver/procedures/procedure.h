// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/drivenmachine.h"
#include "machines/progress.h"

#include <chrono>
#include <functional>

class ProtoCommand;
class SerialProtoCommand;

namespace quv {

/// What the driver carries out by itself, as the one who does so sees it.
struct ProcedureRun
{
    ProtoCommand &
        command; ///< that asks for it; takes the answer of a procedure that tells more than that it has ended
    DrivenMachine &machine;
    /// Has the firmware carry a command out, which holds its answer then. \throws CallRefusal, and what an exchange throws
    std::function<void(SerialProtoCommand &)> ask{};
    const std::shared_ptr<Progress> &progress;
    Ending &stopped;       ///< begins when somebody stops it
    Ending &isDriverGoing; ///< begins when the driver ends

    /// Has the firmware begin something, as one step. \throws what ask throws, and CallRefusal as requireToGoOn before it has begun
    void begin(SerialProtoCommand &process) const;
    /// Waits so long. \throws CallRefusal as requireToGoOn, at once
    void wait(std::chrono::milliseconds time) const;
    /// \throws CallRefusal DE03410 when it has been stopped, DE03116 when the driver ends
    void requireToGoOn() const;
};

} // namespace quv
