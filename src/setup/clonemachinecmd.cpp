// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/clonemachinecmd.h"

#include "base/describedcommand_p.h"
#include "base/machineid_p.h"
#include "base/requeststruct_p.h"
#include "setup/clonemachineanswer.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notStruct[] = "CloneMachineCmd: invalid xml-rpc type (not struct)";
constexpr quv::Refusal noStruct = {"DE02686", notStruct};
constexpr quv::Refusal noMachine = {"DE02687", notStruct};
constexpr quv::Refusal emptyList = {"DE02685", "CloneMachineCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE02684", "CloneMachineCmd: Failed to parse machine ID"};

} // namespace

struct CloneMachineCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CLONE_MACHINE;
    static constexpr auto commandText = "Machine configuration clone";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Cloning machine configuration");

    static constexpr char answerFailed[] = "Failed to create CloneMachineAnswer";
    static constexpr quv::AnsweredBy<CloneMachineAnswer> answer = {
        {}, {"DE03362", answerFailed}, {"DE03362", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"machine",
                         "\"machine_id\" with \"id\" and \"machine\" (1 dispenser, 2 scale, 4 mixer); in a "
                         "list that struct itself"},
                        "struct");
        teller.refuse("another type", {noStruct, badVariant});
        teller.refuse("machine_id is missing or no struct", {noMachine, {}});
        for (const auto &[when, refusal] : quv::ownRefusals<MachineID>)
            teller.refuse(when, {refusal, {}});
    }
};

template class quv::DescribedCommand<CloneMachineCmd, ConfProtoCommand>;

CloneMachineCmd::CloneMachineCmd(const MachineID &machineID) : m_machineID(machineID) {}

CloneMachineCmd::CloneMachineCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpcValue &argument = quv::structArgument(value, noStruct, Q_FUNC_INFO);
    m_machineID = MachineID(quv::structMember(argument, machineID_TAG, noMachine, noMachine, Q_FUNC_INFO));
}

CloneMachineCmd::CloneMachineCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    m_machineID = quv::decodedVariant<MachineID>(list.at(0), badVariant, badVariant, Q_FUNC_INFO);
}

CloneMachineCmd *CloneMachineCmd::clone() const
{
    return new CloneMachineCmd(*this);
}

QList<QVariant> CloneMachineCmd::parameters() const
{
    return {machineIDValue()};
}

XmlRpcValue CloneMachineCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array[0][machineID_TAG] = m_machineID.toXmlRpcValue();
    return array;
}
