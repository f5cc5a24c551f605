// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_cleanjob.h>
#include <QuvFramework/fw_motor.h>

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/** The motor that cleans the nozzle of a circuit, with its job of accurate cleaning. */
class QUVFRAMEWORK_EXPORT FW_CleaningMotor : public FW_Motor, public FW_CleanJob
{
public:
    explicit FW_CleaningMotor(FW_ModelNumber model = -1);
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_CleaningMotor(const XmlRpc::XmlRpcValue &value);

    int duration() const { return m_duration; } ///< seconds
    void setDuration(int seconds) { m_duration = seconds; }
    int brushType() const { return m_brushType; }
    void setBrushType(int type) { m_brushType = type; }
    int target() const { return m_target; } ///< which circuits a scheduled job cleans; 0 for all
    void setTarget(int target) { m_target = target; }
    int process() const { return m_process; } ///< the kind of process that cleans
    void setProcess(int process) { m_process = process; }

    static bool checkDuration(int seconds); ///< 1 to 3600
    static int defaultDurationValue(FW_ModelNumber model);

    /**
     * The firmware's one number of a schedule mask (0 to 15, its low four bits), a target (0 to 3, the next two) and a process
     * (0 to 3, the two above); -1 when one of them does not fit.
     */
    static int cleanPolicyFwMask(int schedule, int target, int process);
    /** The inverse. False, and the results as they were, for what is not 0 to 255. */
    static bool decodeCleanPolicyFwMask(int policy, int &schedule, int &target, int &process);

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_CleaningMotor &other) const;
    bool operator!=(const FW_CleaningMotor &other) const { return !(*this == other); }

private:
    int m_duration = 0;
    int m_brushType = 1;
    int m_target = 0;
    int m_process = 0;
};

Q_DECLARE_METATYPE(FW_CleaningMotor)
