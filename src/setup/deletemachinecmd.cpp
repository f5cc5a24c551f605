// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/deletemachinecmd.h"

#include "base/describedcommand_p.h"
#include "base/machineid_p.h"
#include "base/objectlist_p.h"
#include "base/requeststruct_p.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr quv::Refusal noList = {"DE02683", "DeleteMachineCmd: invalid xml-rpc type (not struct)"};
constexpr quv::Refusal emptyList = {"DE02682", "DeleteMachineCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE02681", "DeleteMachineCmd: Failed to parse machine ID list"};

} // namespace

struct DeleteMachineCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::DELETE_MACHINE;
    static constexpr auto commandText = "Machine configuration delete";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Deleting machine configuration");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"machines",
                         "\"machine_id_list\", an array of structs of \"id\" and \"machine\" (1 dispenser, "
                         "2 scale, 4 mixer); in a list that array itself"},
                        "struct");
        teller.refuse("another type", {noList, badVariant});
        teller.refuse("machine_id_list is missing or no array", {noList, {}});
        for (const auto &[when, refusal] : quv::ownRefusals<MachineID>)
            teller.refuse(when, {refusal, {}});
    }
};

template class quv::DescribedCommand<DeleteMachineCmd, ConfProtoCommand>;

DeleteMachineCmd::DeleteMachineCmd(const QList<MachineID> &machineIDs) : m_machineIDs(machineIDs) {}

DeleteMachineCmd::DeleteMachineCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpcValue &argument = quv::structArgument(value, noList, Q_FUNC_INFO);
    const XmlRpcValue &list = quv::arrayMember(argument, machineIDList_TAG, noList, noList, Q_FUNC_INFO);
    m_machineIDs.reserve(list.size());
    for (int i = 0; i < list.size(); ++i)
        m_machineIDs.append(MachineID(list[i]));
}

DeleteMachineCmd::DeleteMachineCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    m_machineIDs = quv::decodedList<MachineID>(list.at(0), badVariant, badVariant, Q_FUNC_INFO);
}

DeleteMachineCmd *DeleteMachineCmd::clone() const
{
    return new DeleteMachineCmd(*this);
}

QList<QVariant> DeleteMachineCmd::parameters() const
{
    return {machinesIDlistValue()};
}

XmlRpcValue DeleteMachineCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    quv::writeObjects<MachineID>(&m_machineIDs, array[0][machineIDList_TAG]);
    return array;
}
