// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/machineid.h"

#include <QtCore/QString>

#include <optional>

namespace quv {

class CommandLine;

/// A driver's machine, as a user calls it: dispenser, mixer, dispenser:2.
struct MachineChoice
{
    SerialDeviceType type = SerialDeviceType::Dispenser;
    std::optional<int> id{}; ///< without one the active machine of the kind is meant
};

/// What \a text calls. \throws UsageError, which names \a source
MachineChoice machineChoice(const QString &text, const char *source);

/// As --on takes it.
QString inWords(const MachineChoice &choice);

/// What --on tells, or QUV_ON where it does not; nothing without either. \throws UsageError
std::optional<MachineChoice> chosenMachine(const CommandLine &line);

/// \throws UsageError when they name a machine of another kind than the one that \a what, a subcommand, is for
void requireKind(const CommandLine &line, SerialDeviceType kind, const QString &what);

} // namespace quv
