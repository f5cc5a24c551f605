// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commanddata.h"
#include "machine/fw_command.h"

#include <QtCore/QList>

struct FW_Version;

namespace quv {

// What a firmware tells of one command. The row is the number of its name in the catalogue, -1 for none.

/** Whether the firmware has it, and whether it keeps the machine busy. A command without a code stays as it is. */
void takeOver(const QList<FW_Command> &fwCommands, int row, CommandData &command);

/** The version of its protocol, and whether that firmware has it where no code tells. */
void takeOver(const FW_Version *version, int row, CommandData &command);

} // namespace quv
