// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"
#include "../base/machineid.h"

#include <QtCore/QList>

/** DELETE_MACHINE: makes the driver forget machines. */
class QUVPROTOCOL_EXPORT DeleteMachineCmd : public quv::DescribedCommand<DeleteMachineCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char machineIDList_TAG[] = "machine_id_list";

    DeleteMachineCmd() = default; ///< none
    explicit DeleteMachineCmd(const QList<MachineID> &machineIDs);
    /**
     * A struct with "machine_id_list", an array of the structs of machines' IDs. Throws DE02683 for what is no struct and without the
     * array, and what a machine's ID is refused with.
     */
    explicit DeleteMachineCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * A list of machines' IDs, or of variants that each hold one or its map. Throws DE02682 for an empty list of arguments, DE02681 for
     * another type, and what a machine's ID is refused with.
     */
    explicit DeleteMachineCmd(QList<QVariant> list);
    explicit DeleteMachineCmd(int) = delete; // would be an XML-RPC value

    DeleteMachineCmd *clone() const override;
    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    QVariant machinesIDlistValue() const { return QVariant::fromValue(m_machineIDs); } ///< a QList<MachineID>

private:
    QList<MachineID> m_machineIDs;
};
