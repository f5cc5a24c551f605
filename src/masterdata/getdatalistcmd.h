// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"

namespace quv {

struct CommandFacts;

} // namespace quv

/**
 * A question for one list of a machine's or the driver's data, by the name that says which: GET_DISP_LIST and GET_MIXER_LIST (answered
 * by a GetActiveDispAnswer), GET_CIRCUIT_LIST (GetCircuitListAnswer), GET_CANISTER_LIST (GetCanisterListAnswer), GET_COLORANT_LIST
 * (GetColorantListAnswer), GET_DEVICE_LIST (GetDeviceListAnswer), GET_CMD_LIST (GetCommandListAnswer). By another name it gets a plain
 * answer.
 */
class QUVPROTOCOL_EXPORT GetDataListCmd : public ConfProtoCommand
{
public:
    GetDataListCmd() = default;
    explicit GetDataListCmd(QString name, bool option = false);
    GetDataListCmd(QString name,
                   const XmlRpc::XmlRpcValue &value);   ///< throws DE00391 for an option that is no bool
    GetDataListCmd(QString name, QList<QVariant> list); ///< likewise
    GetDataListCmd(QString name, int) = delete;         // would be an option, as would the next two
    GetDataListCmd(QString name, double) = delete;
    GetDataListCmd(QString name, const char *) = delete;

    GetDataListCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    QString commandString() const override;
    TString actionString(bool detailed) const override;

    bool option() const { return m_option; } ///< what it stands for only the driver knows

    /** Adds what is known of the command that \a facts name. */
    static void tell(quv::CommandFacts &facts);

private:
    bool m_option = false;
};
