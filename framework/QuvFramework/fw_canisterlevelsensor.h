// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/** The sensor that tells when a canister runs low. */
class QUVFRAMEWORK_EXPORT FW_CanisterLevelSensor
{
public:
    /** In what the check frequency is told. */
    enum FrequencyUnit { FirmwareUnit = 0, HundredthsOfStroke = 1 };

    FW_CanisterLevelSensor() = default;
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_CanisterLevelSensor(const XmlRpc::XmlRpcValue &value);
    FW_CanisterLevelSensor *clone() const; ///< owned by the caller

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    int wireBoardId() const { return m_wireBoardId; }
    void setWireBoardId(int id) { m_wireBoardId = id; }
    int wireConnectorId() const { return m_wireConnectorId; }
    void setWireConnectorId(int id) { m_wireConnectorId = id; }
    /** What the canister can still give when the sensor falls, in hundredths of a stroke. */
    int criticalLevel() const { return m_criticalLevel; }
    void setCriticalLevel(int level) { m_criticalLevel = level; }
    /** How much is poured between two looks at the sensor. The number stands in the unit in which it was given. */
    int checkFrequency() const { return m_checkFrequency; }
    int checkFrequencyUnit() const { return m_checkFrequencyUnit; }
    void setCheckFrequency(int frequency, int unit);

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_CanisterLevelSensor &other) const;
    bool operator!=(const FW_CanisterLevelSensor &other) const { return !(*this == other); }

private:
    bool m_enabled = true;
    int m_wireBoardId = 0;
    int m_wireConnectorId = 0;
    int m_criticalLevel = 500;
    int m_checkFrequency = 100;
    int m_checkFrequencyUnit = HundredthsOfStroke;
};

Q_DECLARE_METATYPE(FW_CanisterLevelSensor)
