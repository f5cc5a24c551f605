// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/** The working mode in which the firmware holds timed processes for a while. */
constexpr int timedProcessesHeld = 5;

} // namespace quv
