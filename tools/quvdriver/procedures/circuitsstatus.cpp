// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/circuitsstatus.h"

#include "machines/refusal.h"

#include "status/circuitsstatusanswer.h"
#include "status/circuitsstatuscmd.h"
#include "status/dispenserstatuscmd.h"

namespace quv {

FW_ErrorList askCircuitsStatus(ProcedureRun &run)
{
    auto &command = dynamic_cast<CircuitsStatusCmd &>(run.command);
    CircuitsStatusAnswer none; // a machine without circuits tells of none
    command.setProtoAnswer(&none);
    for (const int position : command.positions()) {
        DispenserStatusCmd status(position);
        run.ask(status);
        FW_DriverError error;
        if (!command.setAnswer(status.getProtoAnswer(), &status, &error))
            throw CallRefusal{OtherFailure, error};
    }
    return {};
}

} // namespace quv
