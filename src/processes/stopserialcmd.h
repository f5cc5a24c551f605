// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "stopcmd.h"

/** STOP for a driver that passes it on to the firmware, which gets the firmware stop type. */
class QUVPROTOCOL_EXPORT StopSerialCmd : public StopCmd,
                                         public quv::DescribedCommand<StopSerialCmd, SerialProtoCommand>
{
public:
    struct Description;

    StopSerialCmd() = default;
    StopSerialCmd(int fwStopType, int swStopType); ///< throws as StopCmd
    /** Both types (int), which may be left out. Throws DE01332 and DE01334 for another type of argument, too. */
    explicit StopSerialCmd(const XmlRpc::XmlRpcValue &value);
    explicit StopSerialCmd(QList<QVariant> list); ///< the same as a list

    StopSerialCmd *clone() const override;
    QList<int> serialParameters(int family) const override;
};
