// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** GET_STATUS: asks a dispenser's firmware what the machine is doing; the answer is a DispenserStatusAnswer. */
class QUVPROTOCOL_EXPORT DispenserStatusCmd
    : public quv::DescribedCommand<DispenserStatusCmd, SerialProtoCommand>
{
public:
    struct Description;

    DispenserStatusCmd() = default;
    explicit DispenserStatusCmd(int positionID); ///< a circuit's position; 0 is the machine
    /** One optional int, the position ID. Throws DE00298 for another type. */
    explicit DispenserStatusCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00300 for another type. */
    explicit DispenserStatusCmd(QList<QVariant> list);
    explicit DispenserStatusCmd(bool) = delete; // would read as a position, as would the next two
    explicit DispenserStatusCmd(double) = delete;
    explicit DispenserStatusCmd(const char *) = delete;

    DispenserStatusCmd *clone() const override;
    using DescribedCommand::setDefaults;
};
