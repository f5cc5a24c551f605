// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "values.h"

#include <QuvFramework/fw_dispenser.h>

#include <vector>

// A dispenser whose numbers are worked out by hand in the tests.

namespace pouring {

/** Steps a gram: 100 up to 1 g; from 100 to 900 steps up to 10 g, from 900 to 8100 up to 100 g; 81 from there on. */
inline FW_Calibration calibration()
{
    return FW_Calibration({{100, 1, 20, 1}, {900, 10, 40, 2}, {8100, 100, 60, 0}});
}

inline FW_Circuit circuit(int id, int position, int queue)
{
    FW_DosingMotor motor;
    motor.setMaxSpeed(50);
    motor.setStepsPerStroke(1000);
    FW_Circuit circuit(id, position);
    circuit.setQueueID(queue);
    circuit.setDosingMotor(motor);
    circuit.setNozzleValvesID({1, 2});
    circuit.setCalibration(calibration());
    return circuit;
}

/** Holds \a current of 1000, with a reserve of 50 and a warning at 100. */
inline FW_Canister canister(int id, const char *colorant, double current, std::vector<FW_Circuit> circuits)
{
    FW_Canister canister(id);
    canister.setColorantCode(QString::fromLatin1(colorant));
    canister.setMaximumQuantity(1000);
    canister.setCurrentQuantity(current);
    canister.setReserveQuantity(50);
    canister.setWarningQuantity(100);
    for (const FW_Circuit &circuit : circuits)
        canister.addCircuit(circuit);
    return canister;
}

/**
 * | Canister | Colorant | Holds | Circuits (position, queue) |
 * |---|---|---|---|
 * | 1 | B | 500 | 11 (1, 1), 12 (2, 2) |
 * | 2 | B | 800 | 21 (3, 1) |
 * | 3 | KX | 300 | 31 (4, 0) disabled, 32 (5, 0) |
 * | 4, disabled | R | 500 | 41 (6, 0) |
 * | 5 | OFF, disabled | 500 | 51 (7, 0) |
 * | 6 | none | 500 | none |
 * | 7 | V | 500 | 71 (8, 0) without calibration and strokes |
 */
inline FW_Dispenser dispenser()
{
    FW_Circuit disabled = circuit(31, 4, 0);
    disabled.setEnabled(false);
    FW_Circuit bare(71, 8);
    FW_Canister closed = canister(4, "R", 500, {circuit(41, 6, 0)});
    closed.setEnabled(false);
    FW_Colorant off(QStringLiteral("OFF"));
    off.setEnabled(false);

    FW_Dispenser dispenser;
    dispenser.setTintingParallelism(3);
    for (const char *code : {"B", "KX", "R", "V", "EMPTY"})
        dispenser.addColorant(FW_Colorant(QString::fromLatin1(code)));
    dispenser.addColorant(off);
    dispenser.addCanister(canister(1, "B", 500, {circuit(11, 1, 1), circuit(12, 2, 2)}));
    dispenser.addCanister(canister(2, "B", 800, {circuit(21, 3, 1)}));
    dispenser.addCanister(canister(3, "KX", 300, {disabled, circuit(32, 5, 0)}));
    dispenser.addCanister(closed);
    dispenser.addCanister(canister(5, "OFF", 500, {circuit(51, 7, 0)}));
    dispenser.addCanister(canister(6, "", 500, {}));
    dispenser.addCanister(canister(7, "V", 500, {bare}));
    return dispenser;
}

} // namespace pouring
