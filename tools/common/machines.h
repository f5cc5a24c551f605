// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machinefile.h"

#include <QtCore/QString>

#include <memory>

namespace quv {

/**
 * The machine that a user names: null for "none", a built-in machine ("dispenser", "turntable", "dual", "station", "mixer"), else what
 * the JSON file of that path describes. docs/machine.md tells what the built-in ones are, and the form of a file.
 *
 * \throws std::runtime_error with a text for the user
 */
std::unique_ptr<FW_Machine> machineByName(const QString &nameOrFile);
/// The same, with what a file tells of the firmware; the built-in machines tell nothing of it.
DescribedMachine describedMachineByName(const QString &nameOrFile);

bool isBuiltInMachine(const QString &name);

} // namespace quv
