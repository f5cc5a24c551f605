// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_circuit.h>

bool FW_Circuit::operator==(const FW_Circuit &other) const
{
    return m_id == other.m_id && m_positionId == other.m_positionId && m_enabled == other.m_enabled &&
           m_headId == other.m_headId && m_queueID == other.m_queueID &&
           m_dosingMotor == other.m_dosingMotor && m_valves == other.m_valves &&
           m_nozzleValvesID == other.m_nozzleValvesID && m_calibration == other.m_calibration;
}
