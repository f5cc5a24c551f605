// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_error.h>

#include <QtCore/QList>

namespace quv {

class CommandLine;

/**
 * The formula that a user typed: one word of JSON, or words of the form ID=QUANTITY, read by --by and --unit. --levels-check
 * decides about the levels policy; without it the policy of the JSON stands, and is to check where the JSON has none.
 * \throws UsageError
 */
Formula formulaOf(const CommandLine &line);

/**
 * What of the formula no machine can pour as it is asked: quantities of 0, and parts of steps and strokes that are more than 1 %
 * of what is asked. The driver's refusal for each; \a formula becomes what can be poured, each ID once.
 */
QList<FW_DriverError> correctAmounts(Formula &formula);

} // namespace quv
