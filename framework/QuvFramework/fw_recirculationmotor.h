// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_motor.h>
#include <QuvFramework/fw_timespan.h>

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/** The motor that keeps the colorant of a circuit going round. Speeds are in turns per minute. */
class QUVFRAMEWORK_EXPORT FW_RecirculationMotor : public FW_Motor
{
public:
    FW_RecirculationMotor() : FW_Motor(Recirculation) {}
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_RecirculationMotor(const XmlRpc::XmlRpcValue &value);

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    int speed() const { return m_speed; }
    void setSpeed(int speed) { m_speed = speed; }
    int suctionSpeed() const { return m_suctionSpeed; }
    void setSuctionSpeed(int speed) { m_suctionSpeed = speed; }
    int recirculationActivity() const
    {
        return m_recirculationActivity;
    } ///< seconds of recirculation at a time
    void setRecirculationActivity(int seconds) { m_recirculationActivity = seconds; }
    /** The time between two times of recirculation. \a unit is one of FW_TimeSpan::Unit. */
    int recirculationPause(int unit) const { return m_recirculationPause.in(unit); }
    void setRecirculationPause(int value, int unit) { m_recirculationPause = FW_TimeSpan(value, unit); }

    static int defaultRecirculationActivity(FW_ModelNumber model);
    static int defaultRecirculationPause(int unit); ///< an hour

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_RecirculationMotor &other) const;
    bool operator!=(const FW_RecirculationMotor &other) const { return !(*this == other); }

private:
    bool m_enabled = true;
    int m_speed = 50;
    int m_suctionSpeed = 100;
    int m_recirculationActivity = defaultRecirculationActivity(-1);
    FW_TimeSpan m_recirculationPause =
        FW_TimeSpan(defaultRecirculationPause(FW_TimeSpan::Seconds), FW_TimeSpan::Seconds);
};

Q_DECLARE_METATYPE(FW_RecirculationMotor)
