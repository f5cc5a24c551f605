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

} // namespace quv
