// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

class FW_Dispenser;

/** PURGE: pours colorant to waste. What the commands for it have in common; by itself it purges nothing. */
class QUVPROTOCOL_EXPORT PurgeCmd : public quv::DescribedCommand<PurgeCmd, SerialProtoCommand>
{
public:
    struct Description;

    PurgeCmd() = default;
    explicit PurgeCmd(const FW_Dispenser *dispenser);
    PurgeCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    PurgeCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    PurgeCmd *clone() const override;

protected:
    /** What is purged, for displays. */
    static TString purgeOf(const QString &formula);
};
