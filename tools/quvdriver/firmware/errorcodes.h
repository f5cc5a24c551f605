// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/// The codes of the errors that a simulated firmware raises. docs/driver.md tells them.
enum FirmwareErrorCode : int {
    EmergencyPressedError = 1,
    CanisterEmptyError = 2,
    CircuitBlockedError = 3,
    BoardRefusesError = 4,
    FieldOutOfRangeError = 5,
    ErrorsLostError = 6,
};

} // namespace quv
