// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/stopping.h"

#include "base/serialprotocommand.h"
#include "processes/stopcmd.h"

namespace quv {
namespace {

/// What of the two the software stop type of a command spares.
enum SoftwareStop { SparesFirmware = 1, SparesProcedures = 2 };

int softwareStopOf(const ProtoCommand &command)
{
    return dynamic_cast<const StopCmd &>(command).swStopType();
}

} // namespace

bool stopsFirmware(const ProtoCommand &command)
{
    return softwareStopOf(command) != SparesFirmware;
}

FW_ErrorList stop(ProcedureRun &run)
{
    const bool sparesFirmware = !stopsFirmware(run.command);
    run.machine.asOneStep([&] {
        if (softwareStopOf(run.command) != SparesProcedures)
            run.machine.stopProcedures(sparesFirmware);
        if (!sparesFirmware)
            run.ask(dynamic_cast<SerialProtoCommand &>(run.command));
    });
    return {};
}

FW_ErrorList reset(ProcedureRun &run)
{
    run.machine.asOneStep([&] {
        run.ask(dynamic_cast<SerialProtoCommand &>(run.command)); // one that is refused ends nothing
        run.machine.stopProcedures();
    });
    return {};
}

} // namespace quv
