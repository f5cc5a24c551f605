// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_calibration.h>
#include <QuvFramework/fw_dosingmotor.h>
#include <QuvFramework/fw_valve.h>

#include <QtCore/QList>

/** The way from a canister to the nozzle: motor and pump, valves, and how they pour. */
class QUVFRAMEWORK_EXPORT FW_Circuit
{
public:
    FW_Circuit() = default;
    FW_Circuit(int id, int positionId) : m_id(id), m_positionId(positionId) {}

    int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    /** Where the circuit sits: the address by which the firmware knows it. */
    int positionId() const { return m_positionId; }
    void setPositionId(int position) { m_positionId = position; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    int headId() const { return m_headId; } ///< 1, or 2 on the second head of a dual machine
    void setHeadId(int head) { m_headId = head; }
    /** Circuits of one queue pour one after the other; 0 for none. */
    int queueID() const { return m_queueID; }
    void setQueueID(int queue) { m_queueID = queue; }

    const FW_DosingMotor &dosingMotor() const { return m_dosingMotor; }
    void setDosingMotor(const FW_DosingMotor &motor) { m_dosingMotor = motor; }
    int maxSpeed() const { return m_dosingMotor.maxSpeed(); }
    const QList<FW_Valve> &valves() const { return m_valves; }
    void setValves(const QList<FW_Valve> &valves) { m_valves = valves; }
    /** The nozzle valves that the circuit can pour through. */
    const QList<int> &nozzleValvesID() const { return m_nozzleValvesID; }
    void setNozzleValvesID(const QList<int> &valves) { m_nozzleValvesID = valves; }
    const FW_Calibration &calibration() const { return m_calibration; }
    void setCalibration(const FW_Calibration &calibration) { m_calibration = calibration; }

    bool operator==(const FW_Circuit &other) const;
    bool operator!=(const FW_Circuit &other) const { return !(*this == other); }

private:
    int m_id = 0;
    int m_positionId = 0;
    bool m_enabled = true;
    int m_headId = 1;
    int m_queueID = 0;
    FW_DosingMotor m_dosingMotor;
    QList<FW_Valve> m_valves;
    QList<int> m_nozzleValvesID;
    FW_Calibration m_calibration;
};
