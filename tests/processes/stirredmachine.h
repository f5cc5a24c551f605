// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "processes/processtesting.h"

#include <QuvFramework/fw_colorant.h>
#include <QuvFramework/fw_stirringmotor.h>

namespace testing_processes {

/** Adds a canister with circuits at these positions; each has a motor that stirs for so many seconds. */
inline void addStirred(FW_Dispenser &dispenser, int canisterID, const char *colorant,
                       std::initializer_list<int> positions, int activity)
{
    FW_StirringMotor motor;
    motor.setStirringActivity(activity);
    FW_Canister canister(canisterID);
    canister.setColorantCode(colorant);
    for (const int position : positions) {
        FW_Circuit circuit(10 * position, position);
        circuit.setStirringMotor(motor);
        canister.addCircuit(circuit);
    }
    dispenser.addCanister(canister);
}

/**
 * A dispenser that stirs two circuits at once:
 *
 * | Position | Circuit | Canister | Colorant | System | Activity |
 * |---|---|---|---|---|---|
 * | 5 | 50 | 101 | B | 7 | 20 s |
 * | 1, 2 | 10, 20 | 102 | C | 8 | 30 s |
 * | 3 | 30 | 103 | C | 8 | 40 s |
 */
inline FW_Dispenser stirredMachine()
{
    FW_Dispenser dispenser;
    addStirred(dispenser, 101, "B", {5}, 20);
    addStirred(dispenser, 102, "C", {1, 2}, 30);
    addStirred(dispenser, 103, "C", {3}, 40);
    FW_Colorant black("B", "Black");
    black.setSystemColorantID(7);
    FW_Colorant cyan("C", "Cyan");
    cyan.setSystemColorantID(8);
    dispenser.addColorant(cyan);
    dispenser.addColorant(black);
    dispenser.addColorant(FW_Colorant("N", "Not held"));
    dispenser.setStirringParallelism(2);
    return dispenser;
}

/** The same with one circuit more, at position 6 of canister 104, which has no motor and holds N. */
inline FW_Dispenser partlyStirredMachine()
{
    FW_Dispenser dispenser = stirredMachine();
    FW_Canister canister(104);
    canister.setColorantCode("N");
    canister.addCircuit(FW_Circuit(60, 6));
    dispenser.addCanister(canister);
    return dispenser;
}

} // namespace testing_processes
