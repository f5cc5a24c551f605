// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "structuretesting.h"

#include <initializer_list>

namespace testing_configuration {

/** A dispenser of circuits at these positions, with IDs from 1 on. */
inline FW_Dispenser dispenserOf(std::initializer_list<int> positions)
{
    FW_Dispenser machine;
    machine.addCanister(FW_Canister(1));
    for (const int position : positions)
        machine.addNewCircuit(1, position, 0);
    return machine;
}

inline FW_DosingMotor &motorOf(FW_Dispenser &machine, int circuitID)
{
    return machine.getCircuitById(circuitID)->changeableDosingMotor();
}

} // namespace testing_configuration
