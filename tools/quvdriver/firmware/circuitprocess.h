// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace quv {

/// The processes for which a firmware tells the circuits that are engaged, by their numbers (001A).
enum class CircuitProcess {
    Dosing = 1, ///< tints
    Recirculating = 2,
    Stirring = 3,
    Cleaning = 4,
    Purging = 5,
    Priming = 6,
    Packing = 7, ///< pumps that move and pour nothing
    Resetting = 8,
    CleaningNozzles = 9,
    Blocked = 10,
    NozzleValves = 11, ///< the second value is the valve
    CriticalLevel = 12,
    Stall = 13 ///< the second value is the level: 0 none, 1 low, 2 high, 3 both
};

/// What is told beside the position of an engaged circuit, but for the processes that say otherwise.
enum CircuitState : int {
    LogicalState = 1,  ///< it belongs to the process and is not through with it
    PhysicalState = 2, ///< it works at this moment
};

} // namespace quv
