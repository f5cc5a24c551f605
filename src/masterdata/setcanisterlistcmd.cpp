// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/setcanisterlistcmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/objectfield_p.h"
#include "base/requeststruct_p.h"

namespace quv {

template <>
inline constexpr const char *markOf<FW_Canister> = "id";

template <>
const FieldType &fieldType<QList<FW_Canister>>()
{
    static constexpr FieldType type = objectListType<FW_Canister>();
    return type;
}

} // namespace quv

namespace {

constexpr quv::Refusal notDecoded = {"DE02129", "SetCanisterListCmd: xmlrpc decoding failed"};
constexpr char notMade[] = "SetCanisterListCmd: errors during canister creation";
constexpr quv::Refusal noCanisters = {"DE02130", notMade};
constexpr quv::Refusal badCanister = {"DE02131", notMade};

} // namespace

struct SetCanisterListCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_CANISTER_LIST;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"canisters",
             "a struct with canister_list, the canisters, and update_fw_config, true when the "
             "machine's firmware is to have them too (in a list the canisters, and the bool behind "
             "them)"},
            "struct");
        teller.refuse("another type", {notDecoded, noCanisters});
        teller.refuse("canister_list is missing or no array", {noCanisters, {}});
        teller.refuse("a canister with a wrong member", {quv::toldOfMachineData, {}});
        teller.refuse("a canister that cannot be made", {badCanister, {}});
        teller.refuse("update_fw_config is no bool", {notDecoded, notDecoded});
    }
};

template class quv::DescribedCommand<SetCanisterListCmd, ConfProtoCommand>;

SetCanisterListCmd::SetCanisterListCmd(const QList<FW_Canister> &canisters, bool updateFwConfig)
    : m_canisters(canisters),
      m_updateFwConfig(updateFwConfig)
{}

SetCanisterListCmd::SetCanisterListCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpc::XmlRpcValue &request = quv::structArgument(value, notDecoded, Q_FUNC_INFO);
    m_canisters = quv::typedMember<QList<FW_Canister>>(request, canisterList_TAG, noCanisters, badCanister,
                                                       Q_FUNC_INFO);
    quv::readMember(request, updateFwConfig_TAG, m_updateFwConfig, notDecoded, Q_FUNC_INFO);
}

SetCanisterListCmd::SetCanisterListCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (!quv::readObjectsVariant<FW_Canister>(list.value(0), &m_canisters))
        quv::throwRefusal(noCanisters, Q_FUNC_INFO);
    if (list.size() > 1 && !quv::decodeVariant(list.at(1), m_updateFwConfig))
        quv::throwRefusal(notDecoded, Q_FUNC_INFO);
}

SetCanisterListCmd *SetCanisterListCmd::clone() const
{
    return new SetCanisterListCmd(*this);
}

QList<QVariant> SetCanisterListCmd::parameters() const
{
    return {QVariant::fromValue(m_canisters), m_updateFwConfig};
}

XmlRpc::XmlRpcValue SetCanisterListCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    quv::writeObjects<FW_Canister>(&m_canisters, array[0][canisterList_TAG]);
    array[0][updateFwConfig_TAG] = m_updateFwConfig;
    return array;
}
