// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "fwprocess.h"

class FW_Dispenser;

/**
 * NOZZLE_CLEAN: cleans the nozzles of a circuit, or of all circuits. The position is the serial address, 0 for all circuits;
 * without a duration of its own it takes as long as each cleaning motor is configured to.
 */
class QUVPROTOCOL_EXPORT NozzleCleanCmd : public quv::DescribedCommand<NozzleCleanCmd, SerialProtoCommand>,
                                          public FWProcess
{
public:
    struct Description;

    NozzleCleanCmd(); ///< all circuits, for the configured time
    /** A position below 1 is all circuits, a duration of 0 the configured one. Throws DE01745 for a bad duration. */
    NozzleCleanCmd(int position, qlonglong duration);
    /** Position and duration (int), whose ranges are not checked. Throws DE02566 or DE02567 for another type. */
    explicit NozzleCleanCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE02568 or DE02569 for another type. */
    explicit NozzleCleanCmd(QList<QVariant> list);

    NozzleCleanCmd *clone() const override;

    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override; ///< two digits of the seconds
    /** That of the circuits one after the other, or of the ultrasound station where the dispenser has one. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    bool isSupportedCommand(const FW_Version &version) const override;
    TString actionString(bool detailed) const override;

    static bool checkSupportedCommand(const FW_Version &version);
    /** True for a machine that cleans its nozzles by itself: on its table, in its cap or by ultrasound. */
    static bool hasMachineCleaning(const FW_Dispenser &dispenser);
};
