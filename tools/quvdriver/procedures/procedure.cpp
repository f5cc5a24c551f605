// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/procedure.h"

#include "machines/refusal.h"

#include "base/protocommand.h"

namespace quv {

void ProcedureRun::begin(SerialProtoCommand &process) const
{
    machine.asOneStep([&] {
        requireToGoOn();
        ask(process);
    });
}

void ProcedureRun::wait(std::chrono::milliseconds time) const
{
    const Ending ending{&stopped, &isDriverGoing};
    ending.wait(time);
    requireToGoOn();
}

void ProcedureRun::requireToGoOn() const
{
    if (stopped.hasBegun())
        refuse(Interrupted, "DE03410",
               QStringLiteral("%1 was stopped before its end").arg(command.command()));
    if (isDriverGoing.hasBegun())
        refuse(Interrupted, "DE03116",
               QStringLiteral("The driver ends before the command has; the machine goes on by itself"));
}

} // namespace quv
