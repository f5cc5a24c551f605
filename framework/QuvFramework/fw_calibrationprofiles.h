// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_dosingmotor.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/** The pumps whose calibration is known beforehand. Pointers point into the object and are null for what it does not have. */
class QUVFRAMEWORK_EXPORT FW_CalibrationProfiles
{
public:
    FW_CalibrationProfiles() = default;
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_CalibrationProfiles(const XmlRpc::XmlRpcValue &value);

    bool hasPumps() const { return !m_pumps.isEmpty(); }
    const QList<FW_DosingMotor> &pumps() const { return m_pumps; }
    void addPump(const FW_DosingMotor &pump) { m_pumps.append(pump); }

    const FW_DosingMotor *getPumpByID(int motorID) const; ///< an ID of 0 is no pump's
    /** The pump of this type and value, \a index 0 for the first that was added. */
    const FW_DosingMotor *getDefaultPumpByType(int pumpType, int pumpValue, int index) const;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_CalibrationProfiles &other) const { return m_pumps == other.m_pumps; }
    bool operator!=(const FW_CalibrationProfiles &other) const { return !(*this == other); }

private:
    QList<FW_DosingMotor> m_pumps;
};

Q_DECLARE_METATYPE(FW_CalibrationProfiles)
