// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/** The base in which numbers travel to the firmware and back. */
constexpr int serialBase = 246;

} // namespace quv
