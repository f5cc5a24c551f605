// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machine/autotestcmd.h"

namespace quv {

/** The commands that test the dispenser, in so many cycles. */
AutotestCmd::CommandList autotestSeries(const FW_Dispenser &dispenser, int cycles);

} // namespace quv
