// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

#include <QtCore/QByteArray>

#include <memory>

namespace quv {

// A machine as JSON text, see docs/machine.md.

/// Greatest size of a machine's file, bytes.
inline constexpr int MaxMachineFileSize = 1024 * 1024;

/**
 * The machine that the text describes.
 * \throws std::runtime_error that tells which member is wrong, as "canisters[3].circuits[0].head: must be ..."
 */
std::unique_ptr<FW_Machine> readMachineFile(const QByteArray &text);

/// UTF-8 that reads back to an equal machine, in lines that a person can edit; the last one ends as well.
QByteArray machineFileOf(const FW_Machine &machine);

} // namespace quv
