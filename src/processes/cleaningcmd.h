// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "fwprocess.h"

/**
 * CLEANING: runs the cleaning motors of a rotating machine. The position is the serial address, 0 for all circuits; a duration
 * of 0 stops the process.
 */
class QUVPROTOCOL_EXPORT CleaningCmd : public quv::DescribedCommand<CleaningCmd, SerialProtoCommand>,
                                       public FWProcess
{
public:
    struct Description;

    CleaningCmd() = default; ///< of type 1
    /**
     * A position below 1 is all circuits; a duration of 0 is the time that a brush cleans itself. Throws DE01729 for a type
     * that there is not, and as FWProcess does.
     */
    CleaningCmd(int type, int speed, qlonglong duration, int position, bool busyExecution);
    /**
     * The type, then speed, duration, position (int) and busy execution (bool), which may be left out: the speed is then the
     * configured one. Throws DE01731, DE01733, DE01735, DE01736 or DE02418 for another type of argument, DE01730, DE01732 or
     * DE01734 for a type, speed or duration that there is not.
     */
    explicit CleaningCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The same as a list, whose ranges are not checked: so it can stop the process. Throws DE01737, DE01739, DE01740, DE01742
     * or DE02419 for another type of argument, DE01738, DE01741 or DE01743 without type, duration or position.
     */
    explicit CleaningCmd(QList<QVariant> list);

    CleaningCmd *clone() const override;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** Speed, two digits of the seconds, fwCleaningType(), busy execution. */
    QList<int> serialParameters(int family) const override;
    TString actionString(bool detailed) const override;

    int cleaningType() const { return m_cleaningType; }
    int fwCleaningType() const;              ///< the type as the firmware numbers it
    static bool checkCleaningType(int type); ///< 0 and 1
    static bool isBusyExecutionSupported(const FW_Version &version);

private:
    int m_cleaningType = 1;
};
