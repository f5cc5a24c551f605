// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_canisterlevelsensor.h>
#include <QuvFramework/fw_circuit.h>

#include <QtCore/QList>

namespace quv {

/** All that a row of "@CPT" tells, while it is read or written. */
struct CircuitRow
{
    static constexpr int quantityUnit = 100; ///< of a canister's size
    static constexpr int hundredths = 100;   ///< of a stroke, in which a machine tells of level sensors
    static constexpr int layoutPositions = 6;
    static constexpr int lastLayoutPosition = 29; ///< its place in the row

    int canisterID = 0;
    int canisterSize = 0;
    int positionID = 0;
    bool activationFlag = false;
    FW_Valve valve;
    FW_DosingMotor motor;
    bool hasRecirculation = false;
    FW_RecirculationMotor recirculation;
    bool hasCleaning = false;
    FW_CleaningMotor cleaning;
    bool hasSensor = false;
    FW_CanisterLevelSensor sensor;
    int wireBoardID = 0;
    int wireConnectorID = 0;
    int rampReference = 0;
    int singleTransmissionReference = 0;
    int flowCorrectionReference = 0;
    QList<int> layoutPositionsId;
};

} // namespace quv
