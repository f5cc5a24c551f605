// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** MOTOR_RUNNING: runs the motor of a circuit for a time. The position is the serial address. */
class QUVPROTOCOL_EXPORT MotorRunningCmd : public quv::DescribedCommand<MotorRunningCmd, SerialProtoCommand>
{
public:
    struct Description;

    MotorRunningCmd() = default;
    MotorRunningCmd(int position, qlonglong duration);
    /**
     * Position (int) and duration (int), whose range is not checked and which may be left out. Throws DE00637 without a position,
     * DE00965 or DE00966 for another type.
     */
    explicit MotorRunningCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01458, DE01542 or DE01543 likewise. */
    explicit MotorRunningCmd(QList<QVariant> list);
    explicit MotorRunningCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit MotorRunningCmd(int) = delete;
    explicit MotorRunningCmd(double) = delete;
    explicit MotorRunningCmd(const char *) = delete;

    MotorRunningCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Two digits of the duration, or more of one above 60515; 0 for a negative one. */
    QList<int> serialParameters(int family) const override;
    TString actionString(bool detailed) const override;

    qlonglong duration() const { return m_duration; }

    static bool checkDuration(unsigned long long duration); ///< 1 to 120540

private:
    long long m_duration = 300;
};
