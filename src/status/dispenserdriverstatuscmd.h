// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/**
 * GET_DISP_STATUS: asks the driver what it has under way on a dispenser, and for the machine's last status; the answer is a
 * DispenserDriverStatusAnswer.
 */
class QUVPROTOCOL_EXPORT DispenserDriverStatusCmd
    : public quv::DescribedCommand<DispenserDriverStatusCmd, ConfProtoCommand>
{
public:
    struct Description;

    DispenserDriverStatusCmd() = default;
    explicit DispenserDriverStatusCmd(int position); ///< a circuit's; 0 is the machine
    /** One optional int, the position ID. Throws DE00498 for another type. */
    explicit DispenserDriverStatusCmd(const XmlRpc::XmlRpcValue &value);
    explicit DispenserDriverStatusCmd(QList<QVariant> list); ///< likewise
    explicit DispenserDriverStatusCmd(bool) = delete; // would read as a position, as would the next two
    explicit DispenserDriverStatusCmd(double) = delete;
    explicit DispenserDriverStatusCmd(const char *) = delete;

    DispenserDriverStatusCmd *clone() const override;

    int positionID() const { return m_positionID; }

private:
    int m_positionID = 0;
};
