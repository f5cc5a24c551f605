// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/clonedispensercmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "setup/clonedispenseranswer.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notStruct[] = "CloneDispenserCmd: invalid xml-rpc type (not struct)";
constexpr quv::Refusal noStruct = {"DE01535", notStruct};
constexpr quv::Refusal noData = {"DE01536", notStruct};
constexpr quv::Refusal badData = {"DE01537", notStruct};
constexpr quv::Refusal noID = {"DE01538",
                               "CloneDispenserCmd failed: expected Int type for dispenser ID parameter"};
constexpr quv::Refusal emptyList = {"DE01534", "CloneDispenserCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE01533", "CloneDispenserCmd: Failed to parse dispenser ID"};

} // namespace

struct CloneDispenserCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CLONE_DISPENSER;
    static constexpr auto commandText = "Dispenser configuration clone";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Cloning dispenser configuration");

    static constexpr char answerFailed[] = "Failed to create CloneDispenserAnswer";
    static constexpr quv::AnsweredBy<CloneDispenserAnswer> answer = {
        {}, {"DE01540", answerFailed}, {"DE01540", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"dispenser", "\"disp_data\" with \"disp_id\"; in a list the ID"}, "struct");
        teller.refuse("another type", {noStruct, badVariant});
        teller.refuse("without disp_data", {noData, {}});
        teller.refuse("disp_data is no struct", {badData, {}});
        teller.refuse("without a good disp_id", {noID, {}});
    }
};

template class quv::DescribedCommand<CloneDispenserCmd, ConfProtoCommand>;

CloneDispenserCmd::CloneDispenserCmd(int dispID) : m_dispID(dispID) {}

CloneDispenserCmd::CloneDispenserCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpcValue &argument = quv::structArgument(value, noStruct, Q_FUNC_INFO);
    const XmlRpcValue &data = quv::structMember(argument, dispData_TAG, noData, badData, Q_FUNC_INFO);
    if (!DecodeXmlRpcValue(data, QLatin1String(dispID_TAG), m_dispID))
        quv::throwRefusal(noID, Q_FUNC_INFO);
}

CloneDispenserCmd::CloneDispenserCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    if (!quv::decodeVariant(list.at(0), m_dispID))
        quv::throwRefusal(badVariant, Q_FUNC_INFO);
}

CloneDispenserCmd *CloneDispenserCmd::clone() const
{
    return new CloneDispenserCmd(*this);
}

QList<QVariant> CloneDispenserCmd::parameters() const
{
    return {dispIDValue()};
}

XmlRpcValue CloneDispenserCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array[0][dispData_TAG][dispID_TAG] = m_dispID;
    return array;
}
