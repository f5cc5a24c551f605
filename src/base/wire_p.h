// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/** The base in which numbers travel to the firmware and back. */
constexpr int serialBase = 246;

// The greatest numbers of one digit and of two: not set, without end, or as the firmware is configured.
constexpr int unsetDigit = serialBase - 1;
constexpr int unsetTwoDigits = serialBase * serialBase - 1;

} // namespace quv
