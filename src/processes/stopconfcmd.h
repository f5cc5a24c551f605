// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "stopcmd.h"

/** STOP for a driver that stops a procedure of its own. The factory makes it only where a driver's command is asked for. */
class QUVPROTOCOL_EXPORT StopConfCmd : public StopCmd,
                                       public quv::DescribedCommand<StopConfCmd, ConfProtoCommand>
{
public:
    struct Description;

    StopConfCmd() = default;
    StopConfCmd(int fwStopType, int swStopType); ///< throws as StopCmd
    /** Both types (int), which may be left out. Throws DE01332 and DE01334 for another type of argument, too. */
    explicit StopConfCmd(const XmlRpc::XmlRpcValue &value);
    explicit StopConfCmd(QList<QVariant> list); ///< the same as a list

    StopConfCmd *clone() const override;
};
