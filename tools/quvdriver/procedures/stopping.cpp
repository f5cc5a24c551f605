// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/stopping.h"

#include "base/serialprotocommand.h"
#include "processes/stopcmd.h"

namespace quv {
namespace {

/// What of the two the software stop type of a command spares.
enum SoftwareStop { SparesFirmware = 1, SparesProcedures = 2 };

} // namespace

// Procedures are told first, or one would begin its next step in the moment between the two.

FW_ErrorList stop(ProcedureRun &run)
{
    const int kind = dynamic_cast<const StopCmd &>(run.command).swStopType();
    if (kind != SparesProcedures)
        run.machine.stopProcedures();
    if (kind != SparesFirmware)
        run.ask(dynamic_cast<SerialProtoCommand &>(run.command));
    return {};
}

FW_ErrorList reset(ProcedureRun &run)
{
    run.machine.stopProcedures();
    run.ask(dynamic_cast<SerialProtoCommand &>(run.command));
    return {};
}

} // namespace quv
