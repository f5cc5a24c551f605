// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/confprotocommand.h"

/** GET_CMD_STATUS: asks the driver how far the command behind a ticket is; the answer is a GetCommandStatusAnswer. */
class QUVPROTOCOL_EXPORT GetCommandStatusCmd : public ConfProtoCommand
{
public:
    GetCommandStatusCmd();
    explicit GetCommandStatusCmd(QString ticketID);
    /** One string, the ticket. Throws DE00371 for another type. */
    explicit GetCommandStatusCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetCommandStatusCmd(QList<QVariant> list); ///< likewise
    GetCommandStatusCmd(const GetCommandStatusCmd &) = default;
    explicit GetCommandStatusCmd(const char *) = delete; // a QString or a value? say which

    GetCommandStatusCmd *clone() const override;

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    using ConfProtoCommand::setAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;

    QString ticketID() const { return m_ticketID; }

private:
    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive);

    QString m_ticketID;
};
