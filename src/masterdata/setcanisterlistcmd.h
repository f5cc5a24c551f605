// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_canister.h>

#include <QtCore/QList>

/** SET_CANISTER_LIST: gives the driver the data of canisters, which it then also writes into the machine when asked to. */
class QUVPROTOCOL_EXPORT SetCanisterListCmd
    : public quv::DescribedCommand<SetCanisterListCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char canisterList_TAG[] = "canister_list";
    static constexpr char updateFwConfig_TAG[] = "update_fw_config";

    SetCanisterListCmd() = default; ///< no canisters
    explicit SetCanisterListCmd(const QList<FW_Canister> &canisters, bool updateFwConfig = false);
    /**
     * A struct of both members, of which "update_fw_config" may be missing. Throws DE02129 for what is no struct, and when
     * "update_fw_config" is no bool, DE02130 without an array of canisters, DE02131 for one that cannot be made, and as FW_Canister does.
     */
    explicit SetCanisterListCmd(const XmlRpc::XmlRpcValue &value);
    /** The canisters, as a list, and an optional bool. Throws DE02130 and DE02129 for another type, and as FW_Canister does. */
    explicit SetCanisterListCmd(QList<QVariant> list);
    explicit SetCanisterListCmd(int) = delete; // would be an XML-RPC value

    SetCanisterListCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QList<FW_Canister> &canisterList() const { return m_canisters; }
    bool updateFwConfig() const { return m_updateFwConfig; } ///< true when the firmware is to have them too

private:
    QList<FW_Canister> m_canisters;
    bool m_updateFwConfig = false;
};
