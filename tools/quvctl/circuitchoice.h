// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandline.h"
#include "driver.h"

#include <QtCore/QList>

namespace quv {

constexpr OptionText circuitOption = {
    "circuit", "CIRCUITS", "only these: positions, or codes of colorants, with commas between them"};

/// What a process works on.
struct CircuitChoice
{
    QList<int> positions{0}; ///< 0 alone: all circuits
    QString words{};         ///< as in "all circuits"
};

/// \throws UsageError for a number of --circuit that is no position, before a driver is asked
void requirePositions(const CommandLine &line);

/// What --circuit tells; all circuits without it. The driver is asked for the circuits of a colorant. \throws UsageError for one that
/// the machine does not have, and as executed
CircuitChoice chosenCircuits(const Driver &driver, const CommandLine &line);

} // namespace quv
