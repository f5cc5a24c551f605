// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/serialprotocommand.h"

/** READ_CONFIG_ROW: asks the firmware for its row of one structure; the answer is a ReadConfigurationParamAnswer. */
class QUVPROTOCOL_EXPORT ReadConfigurationParamCmd : public SerialProtoCommand
{
public:
    ReadConfigurationParamCmd();
    /** \a id is the circuit or reference of a structure that exists once for each. */
    ReadConfigurationParamCmd(int code, int id);
    /** Two ints, code and ID. Throws DE00314 or DE00084 for the code, DE00316 or DE00315 for the ID. */
    explicit ReadConfigurationParamCmd(const XmlRpc::XmlRpcValue &value);
    explicit ReadConfigurationParamCmd(QList<QVariant> list); ///< the same as a list, with the same codes
    ReadConfigurationParamCmd(const ReadConfigurationParamCmd &) = default;

    ReadConfigurationParamCmd *clone() const override;
    void setDefaults();

    int commandCode() const { return m_code; }
    int id() const { return m_id; }

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override; ///< code, ID

    using SerialProtoCommand::buildProtoAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
    bool setSerialAnswer(QStringList tokens, FW_DriverError *error) override;

private:
    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive);

    int m_code = 0;
    int m_id = 1;
};
