// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/deletedispensercmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"

namespace {

using XmlRpc::XmlRpcValue;

const bool areComparable = QMetaType::registerEqualsComparator<QList<int>>(); // which Qt leaves undone

constexpr quv::Refusal noList = {"DE01529", "DeleteDispenserCmd: invalid xml-rpc type (not struct)"};
constexpr quv::Refusal noID = {"DE01532",
                               "DeleteDispenserCmd failed: expected Int type for dispenser ID parameter"};
constexpr quv::Refusal emptyList = {"DE01528", "DeleteDispenserCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE01527", "DeleteDispenserCmd: Failed to parse dispenser ID list"};

} // namespace

struct DeleteDispenserCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::DELETE_DISPENSER;
    static constexpr auto commandText = "Dispenser configuration delete";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Deleting dispenser configuration");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"dispensers", "\"disp_id_list\", an array of IDs; in a list that array itself"},
                        "struct");
        teller.refuse("another type", {noList, badVariant});
        teller.refuse("disp_id_list is missing or no array", {noList, {}});
        teller.refuse("an element of another type", {noID, badVariant});
    }
};

template class quv::DescribedCommand<DeleteDispenserCmd, ConfProtoCommand>;

DeleteDispenserCmd::DeleteDispenserCmd(QList<int> dispIDs) : m_dispIDs(std::move(dispIDs)) {}

DeleteDispenserCmd::DeleteDispenserCmd(const XmlRpcValue &value)
    : DescribedCommand(value),
      m_dispIDs(quv::memberArgument<QList<int>>(value, 0, dispIDList_TAG, noList, noID, Q_FUNC_INFO))
{}

DeleteDispenserCmd::DeleteDispenserCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    if (!quv::decodeVariant(list.at(0), m_dispIDs))
        quv::throwRefusal(badVariant, Q_FUNC_INFO);
}

DeleteDispenserCmd *DeleteDispenserCmd::clone() const
{
    return new DeleteDispenserCmd(*this);
}

QList<QVariant> DeleteDispenserCmd::parameters() const
{
    return {dispIDValue()};
}

XmlRpcValue DeleteDispenserCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    EncodeXmlRpcValue(array[0], QLatin1String(dispIDList_TAG), m_dispIDs);
    return array;
}
