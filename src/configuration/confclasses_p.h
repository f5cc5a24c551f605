// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "configuration/confdata.h"

#include <memory>

namespace quv {

// Which class stands for a structure code. A code without a class is a GENERIC_cdata of that code.

/** The row of a received answer. \a fieldCount counts `cmd_enabled`. Throws what the class throws. */
std::unique_ptr<ConfData> confDataOfTokens(int code, const QStringList &row, int fieldCount);
/** The row of a text. Throws what the class throws. */
std::unique_ptr<ConfData> confDataOfText(int code, const QString &row);
/**
 * The row that a machine has. \a id is the circuit or reference of a structure that exists once for each. Null for a code
 * without a class; throws what the class throws.
 */
std::unique_ptr<ConfData> confDataOfMachine(int code, const FW_Machine *machine, int id);
/** What the fields behind `cmd_enabled` are called; empty for a code without a class. */
QStringList confFieldLabels(int code);

} // namespace quv
