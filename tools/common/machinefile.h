// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_version.h>

#include <QtCore/QByteArray>

#include <nlohmann/json.hpp>

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

/// What a file tells: a machine, and what no machine knows of itself.
struct DescribedMachine
{
    std::unique_ptr<FW_Machine> machine{};
    FW_Version firmwareVersion{}; ///< not valid when it is not told
    nlohmann::json faults =
        nlohmann::json::array(); ///< what is wrong with a simulated one, as the file has it
};

/// The machine that the text describes, with its firmware. \throws as readMachineFile
DescribedMachine readDescribedMachine(const QByteArray &text);

/// UTF-8 that reads back to an equal machine, in lines that a person can edit; the last one ends as well.
QByteArray machineFileOf(const FW_Machine &machine, const FW_Version &firmwareVersion = {});

} // namespace quv
