// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

#include <xmlrpcpp/XmlRpcValue.h>

/** The cap that closes the nozzles by itself. */
class QUVFRAMEWORK_EXPORT FW_Autocap : public FW_Device
{
public:
    /** Types that this library tells apart; there are others. */
    enum Type { Sliding = 1, SlidingWithCleaning = 3 };

    FW_Autocap() : FW_Device(Autocap) {}
    FW_Autocap *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int type() const { return m_type; }
    void setType(int type) { m_type = type; }
    /** True for a type that rinses the nozzles while it is closed. */
    bool hasAutomaticCleaningSystem() const { return m_type == SlidingWithCleaning; }
    int movementType() const { return m_movementType; }
    void setMovementType(int type) { m_movementType = type; }
    int openingTimeout() const { return m_openingTimeout; } ///< seconds
    void setOpeningTimeout(int seconds) { m_openingTimeout = seconds; }
    int closingTimeout() const { return m_closingTimeout; } ///< seconds
    void setClosingTimeout(int seconds) { m_closingTimeout = seconds; }
    int closingDelay() const { return m_closingDelay; } ///< seconds after the last pour
    void setClosingDelay(int seconds) { m_closingDelay = seconds; }
    int powerOffDelay() const { return m_powerOffDelay; } ///< seconds
    void setPowerOffDelay(int seconds) { m_powerOffDelay = seconds; }
    bool automaticClosure() const { return m_automaticClosure; }
    void setAutomaticClosure(bool automatic) { m_automaticClosure = automatic; }
    int movementSpeed() const { return m_movementSpeed; }
    void setMovementSpeed(int speed) { m_movementSpeed = speed; }
    int workingMode() const { return m_workingMode; }
    void setWorkingMode(int mode) { m_workingMode = mode; }
    /** Seconds that the slide takes to its place when the machine goes offline. */
    int slidingOfflinePosTime() const { return m_slidingOfflinePosTime; }
    void setSlidingOfflinePosTime(int seconds) { m_slidingOfflinePosTime = seconds; }

    void setTypeValue(XmlRpc::XmlRpcValue &value) const;         ///< writes "autocap_type"
    void setMovementTypeValue(XmlRpc::XmlRpcValue &value) const; ///< writes "movement_type"

private:
    int m_type = Sliding;
    int m_movementType = 1;
    int m_openingTimeout = 10;
    int m_closingTimeout = 10;
    int m_closingDelay = 5;
    int m_powerOffDelay = 2;
    bool m_automaticClosure = true;
    int m_movementSpeed = 50;
    int m_workingMode = 1;
    int m_slidingOfflinePosTime = 3;
};
