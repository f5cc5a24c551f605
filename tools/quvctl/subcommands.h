// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandline.h"

namespace quv {

extern const Subcommand listSubcommand;
extern const Subcommand showSubcommand;
extern const Subcommand encodeSubcommand;
extern const Subcommand decodeSubcommand;
extern const Subcommand callSubcommand;
extern const Subcommand ticketSubcommand;
extern const Subcommand tintSubcommand;
extern const Subcommand configSubcommand;
extern const Subcommand watchSubcommand;
extern const Subcommand batchSubcommand;
extern const Subcommand machineSubcommand;
extern const Subcommand explainSubcommand;
// of machines, in people's words
extern const Subcommand statusSubcommand;
extern const Subcommand errorsSubcommand;
extern const Subcommand sensorsSubcommand;
extern const Subcommand circuitsSubcommand;
extern const Subcommand stirSubcommand;
extern const Subcommand recirculateSubcommand;
extern const Subcommand cleanSubcommand;
extern const Subcommand mixSubcommand;
extern const Subcommand moveSubcommand;
extern const Subcommand refillSubcommand;
extern const Subcommand stopSubcommand;

} // namespace quv
