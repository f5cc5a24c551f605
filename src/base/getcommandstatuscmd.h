// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confprotocommand.h"
#include "describedcommand.h"

/** GET_CMD_STATUS: asks the driver how far the command behind a ticket is; the answer is a GetCommandStatusAnswer. */
class QUVPROTOCOL_EXPORT GetCommandStatusCmd
    : public quv::DescribedCommand<GetCommandStatusCmd, ConfProtoCommand>
{
public:
    struct Description;

    GetCommandStatusCmd() = default;
    explicit GetCommandStatusCmd(QString ticketID);
    /** One string, the ticket. Throws DE00371 for another type. */
    explicit GetCommandStatusCmd(const XmlRpc::XmlRpcValue &value);
    explicit GetCommandStatusCmd(QList<QVariant> list);  ///< likewise
    explicit GetCommandStatusCmd(const char *) = delete; // a QString or a value? say which

    GetCommandStatusCmd *clone() const override;

    QString ticketID() const { return m_ticketID; }

private:
    QString m_ticketID;
};
