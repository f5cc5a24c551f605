// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_motor.h>
#include <QuvFramework/fw_timespan.h>

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/** The motor that stirs a canister, or all of them. */
class QUVFRAMEWORK_EXPORT FW_StirringMotor : public FW_Motor
{
public:
    FW_StirringMotor() : FW_Motor(Stirring) {}
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_StirringMotor(const XmlRpc::XmlRpcValue &value);

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    int stirringActivity() const { return m_stirringActivity; } ///< seconds of stirring at a time
    void setStirringActivity(int seconds) { m_stirringActivity = seconds; }
    /** The time between two times of stirring. \a unit is one of FW_TimeSpan::Unit. */
    int stirringPause(int unit) const { return m_stirringPause.in(unit); }
    void setStirringPause(int value, int unit) { m_stirringPause = FW_TimeSpan(value, unit); }
    int stirringPolicy() const { return m_stirringPolicy; }
    void setStirringPolicy(int policy) { m_stirringPolicy = policy; }
    int speed() const { return m_speed; }
    void setSpeed(int speed) { m_speed = speed; }
    int wireBoardId() const { return m_wireBoardId; }
    void setWireBoardId(int id) { m_wireBoardId = id; }
    /** The connectors of the board, connector 1 the lowest bit. */
    int wireConnectorsIdBitMask() const { return m_wireConnectorsIdBitMask; }
    void setWireConnectorsIdBitMask(int mask) { m_wireConnectorsIdBitMask = mask; }
    void setWireConnectorId(int connector); ///< this one alone; none for what is not 1 to 31

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_StirringMotor &other) const;
    bool operator!=(const FW_StirringMotor &other) const { return !(*this == other); }

private:
    bool m_enabled = true;
    int m_stirringActivity = 60;
    FW_TimeSpan m_stirringPause = FW_TimeSpan(30, FW_TimeSpan::Minutes);
    int m_stirringPolicy = 1;
    int m_speed = 100;
    int m_wireBoardId = 0;
    int m_wireConnectorsIdBitMask = 0;
};

Q_DECLARE_METATYPE(FW_StirringMotor)
