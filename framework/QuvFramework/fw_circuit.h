// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_calibration.h>
#include <QuvFramework/fw_cleaningmotor.h>
#include <QuvFramework/fw_dosingmotor.h>
#include <QuvFramework/fw_recirculationmotor.h>
#include <QuvFramework/fw_stirringmotor.h>
#include <QuvFramework/fw_valve.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/** The way from a canister to the nozzle: motor and pump, valves, and how they pour. */
class QUVFRAMEWORK_EXPORT FW_Circuit
{
public:
    /** What a new dosing motor brings along: all, or all but the references to ramp, transmission and flow correction. */
    enum MotorReplacement { KeepReferences = 1, ReplaceAll = 2 };

    FW_Circuit() = default;
    FW_Circuit(int id, int positionId) : m_id(id), m_positionId(positionId) {}
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_Circuit(const XmlRpc::XmlRpcValue &value);

    int id() const { return m_id; }
    void setId(int id) { m_id = id; }
    /** Where the circuit sits: the address by which the firmware knows it. */
    int positionId() const { return m_positionId; }
    void setPositionId(int position) { m_positionId = position; }
    /** The same; every model, empty for none in particular, has its circuits anywhere. */
    void setPositionId(int position, const QString & /*model*/) { m_positionId = position; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    int headId() const { return m_headId; } ///< 1, or 2 on the second head of a dual machine
    void setHeadId(int head) { m_headId = head; }
    /** Circuits of one queue pour one after the other; 0 for none. */
    int queueID() const { return m_queueID; }
    void setQueueID(int queue) { m_queueID = queue; }

    /** A circuit has one until it is removed; then this is one with its defaults. */
    const FW_DosingMotor &dosingMotor() const { return m_dosingMotor; }
    FW_DosingMotor &changeableDosingMotor() { return m_dosingMotor; } ///< of a circuit that has one
    bool hasDosingMotor() const { return m_hasDosingMotor; }
    void setDosingMotor(const FW_DosingMotor &motor) { setDosingMotor(motor, ReplaceAll); }
    void setDosingMotor(const FW_DosingMotor &motor, int replacement);
    void removeDosingMotor();
    int maxSpeed() const { return m_dosingMotor.maxSpeed(); }
    const QList<FW_Valve> &valves() const { return m_valves; }
    void setValves(const QList<FW_Valve> &valves) { m_valves = valves; }
    const FW_Valve *firstValve() const { return firstOf(m_valves); } ///< null for none, as all pointers here
    void addValve(const FW_Valve &valve); ///< in the place of the one of its ID, or behind the others
    /** The nozzle valves that the circuit can pour through. */
    const QList<int> &nozzleValvesID() const { return m_nozzleValvesID; }
    void setNozzleValvesID(const QList<int> &valves) { m_nozzleValvesID = valves; }
    const FW_Calibration &calibration() const { return m_calibration; }
    void setCalibration(const FW_Calibration &calibration) { m_calibration = calibration; }
    /** What the calibration tells of a quantity. False, and both as they were, when it tells nothing. */
    bool getStepsAndSpeed(double quantity, long long &steps, int &speed) const;

    // A circuit has one motor of each kind at most, but for cleaning motors, of which a second can be added.
    const QList<FW_StirringMotor> &stirringMotors() const { return m_stirringMotors; }
    const FW_StirringMotor *firstStirringMotor() const { return firstOf(m_stirringMotors); }
    void setStirringMotor(const FW_StirringMotor &motor) { m_stirringMotors = {motor}; }
    void removeStirringMotors() { m_stirringMotors.clear(); }
    const QList<FW_RecirculationMotor> &recirculationMotors() const { return m_recirculationMotors; }
    const FW_RecirculationMotor *firstRecirculationMotor() const { return firstOf(m_recirculationMotors); }
    void setRecirculationMotor(const FW_RecirculationMotor &motor) { m_recirculationMotors = {motor}; }
    void removeRecirculationMotors() { m_recirculationMotors.clear(); }
    const QList<FW_CleaningMotor> &cleaningMotors() const { return m_cleaningMotors; }
    QList<FW_CleaningMotor> &changeableCleaningMotors() { return m_cleaningMotors; }
    const FW_CleaningMotor *firstCleaningMotor() const { return firstOf(m_cleaningMotors); }
    void setCleaningMotor(const FW_CleaningMotor &motor) { m_cleaningMotors = {motor}; }
    void addCleaningMotor(const FW_CleaningMotor &motor) { m_cleaningMotors.append(motor); }
    void removeCleaningMotors() { m_cleaningMotors.clear(); }

    int wireBoardId() const { return m_wireBoardId; }
    void setWireBoardId(int id) { m_wireBoardId = id; }
    int wireConnectorId() const { return m_wireConnectorId; }
    void setWireConnectorId(int id) { m_wireConnectorId = id; }

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Circuit &other) const;
    bool operator!=(const FW_Circuit &other) const { return !(*this == other); }

private:
    template <class Part>
    static const Part *firstOf(const QList<Part> &parts)
    {
        return parts.isEmpty() ? nullptr : &parts.first();
    }

    int m_id = 0;
    int m_positionId = 0;
    bool m_enabled = true;
    int m_headId = 1;
    int m_queueID = 0;
    int m_wireBoardId = 0;
    int m_wireConnectorId = 0;
    bool m_hasDosingMotor = true;
    FW_DosingMotor m_dosingMotor;
    QList<FW_StirringMotor> m_stirringMotors;
    QList<FW_RecirculationMotor> m_recirculationMotors;
    QList<FW_CleaningMotor> m_cleaningMotors;
    QList<FW_Valve> m_valves;
    QList<int> m_nozzleValvesID;
    FW_Calibration m_calibration;
};

Q_DECLARE_METATYPE(FW_Circuit)
