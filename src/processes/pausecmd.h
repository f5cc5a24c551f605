// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** PAUSE: lets the driver itself wait, between the commands of a series. */
class QUVPROTOCOL_EXPORT PauseCmd : public quv::DescribedCommand<PauseCmd, SerialProtoCommand>
{
public:
    struct Description;

    PauseCmd() = default; ///< no pause
    explicit PauseCmd(int milliseconds);
    /** The milliseconds (int). Throws DE02945 for another type. */
    explicit PauseCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02946 for another type. */
    explicit PauseCmd(QList<QVariant> list);
    explicit PauseCmd(bool) = delete; // would read as a time, as would the next two
    explicit PauseCmd(double) = delete;
    explicit PauseCmd(const char *) = delete;

    PauseCmd *clone() const override;
    using DescribedCommand::setDefaults;

    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override; ///< milliseconds()

    int milliseconds() const { return m_milliseconds; }

private:
    int m_milliseconds = 0;
};
