// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

#include <QuvFramework/fw_colorant.h>

#include <QtCore/QList>
#include <QtCore/QPair>

/** SET_COLORANT_LIST: tells the driver which colorant is in which canister. */
class QUVPROTOCOL_EXPORT SetColorantListCmd
    : public quv::DescribedCommand<SetColorantListCmd, ConfProtoCommand>
{
public:
    struct Description;

    static constexpr char colorantList_TAG[] = "colorant_list";
    static constexpr char canisterID_TAG[] = "canister_id";
    static constexpr char colorant_TAG[] = "colorant";

    SetColorantListCmd() = default; ///< no canisters
    /** Of each canister its ID, and the colorant that is in it. */
    explicit SetColorantListCmd(const QList<QPair<int, FW_Colorant>> &colorants);
    /**
     * A struct with "colorant_list", an array of structs with "canister_id" and "colorant". Throws DE03394 for what is no struct,
     * DE03395 without the array, DE03396 for an element that cannot be read, and as FW_Colorant does.
     */
    explicit SetColorantListCmd(const XmlRpc::XmlRpcValue &value);
    /** The pairs as a list; each may also be the map that its struct is. Throws DE03395 for another type, the others likewise. */
    explicit SetColorantListCmd(QList<QVariant> list);
    explicit SetColorantListCmd(int) = delete; // would be an XML-RPC value

    SetColorantListCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    const QList<QPair<int, FW_Colorant>> &colorantList() const { return m_colorants; }

private:
    QList<QPair<int, FW_Colorant>> m_colorants;
};
