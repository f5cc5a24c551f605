// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "cmdstatus.h"
#include "confprotoanswer.h"

/** The answer to GET_CMD_STATUS: a copy of the ticket's CmdStatus, in whose form it travels. */
class QUVPROTOCOL_EXPORT GetCommandStatusAnswer : public ConfProtoAnswer
{
public:
    GetCommandStatusAnswer() = default;
    explicit GetCommandStatusAnswer(const CmdStatus &status);
    explicit GetCommandStatusAnswer(
        const XmlRpc::XmlRpcValue &value); ///< throws DE00374, or what CmdStatus throws
    explicit GetCommandStatusAnswer(
        QList<QVariant> &list); ///< a CmdStatus as the first element; throws DE00375

    GetCommandStatusAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    static QList<quv::MemberFacts> memberFacts();

    const CmdStatus &cmdStatus() const { return m_cmdStatus; }
    void setCmdStatus(const QVariant &status); ///< leaves the status alone when the variant holds none

private:
    CmdStatus m_cmdStatus;
};
