// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machines/drivenmachine.h"

#include "ending.h"

#include "catalogue/protocommandlist.h"
#include "status/dispenserstatusanswer.h"

namespace quv {

/// Asks the machine's firmware a question without parameters. \throws what an exchange throws
FirmwareReply ask(DrivenMachine &machine, ProtoCommandList::CommandListValue question);

/**
 * Waits until the flag of the machine's status has fallen, asking for it again and again. What should take \a expected
 * milliseconds; a machine that does not tell its status is not waited for.
 * \throws CallRefusal DE03116 when the driver ends before, and what an exchange throws
 */
void waitWhile(bool DispenserStatusAnswer::*flag, DrivenMachine &machine, qint64 expected,
               const Ending &ending);

} // namespace quv
