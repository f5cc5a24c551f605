// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"
#include "../base/machineid.h"

/** The answer to CLONE_MACHINE: which machine the copy is, the member "machine_id" of a struct. */
class QUVPROTOCOL_EXPORT CloneMachineAnswer : public quv::DescribedAnswer<CloneMachineAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char machineID_TAG[] = "machine_id";

    CloneMachineAnswer() = default;
    explicit CloneMachineAnswer(const MachineID &machineID);
    /** Throws DE03364 without the member, and what the machine's ID is refused with. */
    explicit CloneMachineAnswer(const XmlRpc::XmlRpcValue &value);
    /** A machine's ID or its map. Throws DE02692 for an empty list, DE02691 for another type, and what it is refused with. */
    explicit CloneMachineAnswer(QList<QVariant> &list);
    explicit CloneMachineAnswer(int) = delete; // would be an XML-RPC value

    CloneMachineAnswer *clone() const override;

    const MachineID &machineID() const { return m_machineID; }

private:
    MachineID m_machineID;
};
