// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "../base/machineid.h"

/** CLONE_MACHINE: makes a copy of what the driver keeps of a machine; the answer is a CloneMachineAnswer. */
class QUVPROTOCOL_EXPORT CloneMachineCmd : public quv::DescribedCommand<CloneMachineCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char machineID_TAG[] = "machine_id";

    CloneMachineCmd() = default;
    explicit CloneMachineCmd(const MachineID &machineID);
    /**
     * A struct with "machine_id", the struct of a machine's ID. Throws DE02686 for what is no struct, DE02687 without the machine's ID, or
     * one that is no struct, and what the machine's ID is refused with.
     */
    explicit CloneMachineCmd(const XmlRpc::XmlRpcValue &value);
    /** A machine's ID or its map. Throws DE02685 for an empty list, DE02684 for another type, and what it is refused with. */
    explicit CloneMachineCmd(QList<QVariant> list);
    explicit CloneMachineCmd(int) = delete; // would be an XML-RPC value

    CloneMachineCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QVariant machineIDValue() const { return QVariant::fromValue(m_machineID); }

private:
    MachineID m_machineID;
};
