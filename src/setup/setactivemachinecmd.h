// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "../base/machineid.h"

/** SET_ACTIVE_MACHINE: makes a machine of the driver the active one of its kind. */
class QUVPROTOCOL_EXPORT SetActiveMachineCmd
    : public quv::DescribedCommand<SetActiveMachineCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetActiveMachineCmd() = default;
    /** \a flag is between client and driver: it only travels. */
    SetActiveMachineCmd(const MachineID &machineID, const MachineID &source, bool flag);
    /**
     * The structs of the two IDs and, if given, the flag (bool). Throws what a machine's ID is refused with, and DE02531 for a flag of
     * another type.
     */
    explicit SetActiveMachineCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * Two IDs, each as a MachineID or its map, and if given the flag. Throws DE02532, DE02533, DE02534 in this order for another type, and
     * what a machine's ID is refused with.
     */
    explicit SetActiveMachineCmd(QList<QVariant> list);
    explicit SetActiveMachineCmd(int) = delete; // would be an XML-RPC value

    SetActiveMachineCmd *clone() const override;
    TString actionString(bool detailed) const override;

    const MachineID &machineID() const { return m_machineID; }
    const MachineID &source() const { return m_source; }
    bool flag() const { return m_flag; }

private:
    MachineID m_machineID;
    MachineID m_source;
    bool m_flag = false;
};
