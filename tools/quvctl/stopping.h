// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "interrupt.h"

namespace quv {

class Driver;

/// Has the machine stop what it does. \throws RequestRefused, and as Driver::execute
void stopMachine(const Driver &driver);

/// The same plan, by which a second Ctrl-C stops the machine.
InterruptPlan stoppedBySecond(const Driver &driver, InterruptPlan plan);

} // namespace quv
