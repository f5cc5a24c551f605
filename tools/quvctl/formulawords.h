// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/formula.h>

namespace quv {

class CommandLine;

/**
 * The formula that a user typed: one word of JSON, or words of the form ID=QUANTITY, read by --by and --unit. --levels-check
 * decides about the levels policy; without it the policy of the JSON stands, and is to check where the JSON has none.
 * \throws UsageError
 */
Formula formulaOf(const CommandLine &line);

} // namespace quv
