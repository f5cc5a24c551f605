// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandline.h"

namespace quv {

/// What there is, on standard output, as wide as columnsOfText().
void printOverview(const std::vector<const Subcommand *> &subcommands);
/// One subcommand with its options.
void printHelp(const Subcommand &subcommand);

} // namespace quv
