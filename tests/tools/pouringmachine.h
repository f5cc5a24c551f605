// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_turntable.h>

/**
 * A dispenser for tests of pours: canisters 11 to 14 of 500 of at most 1000, reserve 20, warning 50, with colorants "A" to
 * "D" and circuits 21 to 24 at the positions 1 to 4. 100 steps pour a quantity of 1; at speed 50 a motor of 200 steps a turn
 * takes 6 ms a step, so that a quantity of 10 takes 6 s. A stroke has 400 steps. Circuits 23 and 24 share queue 5.
 */
inline FW_Dispenser pouringMachine(int parallelism = 1)
{
    FW_Dispenser machine;
    machine.setTintingParallelism(parallelism);
    for (int number = 1; number <= 4; ++number) {
        FW_Circuit circuit(20 + number, number);
        FW_DosingMotor motor;
        motor.setResolution(200);
        motor.setMaxSpeed(50);
        motor.setStepsPerStroke(400);
        circuit.setDosingMotor(motor);
        circuit.setCalibration(FW_Calibration({{1000, 10, 50, 0}}));
        if (number > 2)
            circuit.setQueueID(5);
        const QString colorant = QChar('A' + number - 1);
        FW_Canister canister(10 + number);
        canister.setColorantCode(colorant);
        canister.setMaximumQuantity(1000);
        canister.setCurrentQuantity(500);
        canister.setReserveQuantity(20);
        canister.setWarningQuantity(50);
        canister.addCircuit(circuit);
        machine.addCanister(canister);
        machine.addColorant(FW_Colorant(colorant));
    }
    return machine;
}

/// The same on a turntable, whose positions are 3, 1, 2, 4 in this order, a second apart.
inline FW_Dispenser rotatingMachine()
{
    FW_Dispenser machine = pouringMachine(2);
    FW_Turntable table;
    table.setPositions({3, 1, 2, 4});
    table.setStepTime(1000);
    machine.setDevice(table);
    return machine;
}
