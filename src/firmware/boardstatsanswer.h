// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"

#include <QuvFramework/fw_boardstat.h>

namespace quv {
struct MemberFacts;
}

/** What boards have counted, the answer to the commands about their statistics. Over XML-RPC the struct of the BoardStat. */
class QUVPROTOCOL_EXPORT BoardStatsAnswer : public SerialProtoAnswer
{
public:
    BoardStatsAnswer() = default;
    explicit BoardStatsAnswer(const BoardStat &boardStat);
    /** Behind the length token what a BoardStat is read of. Throws DE01589 for anything else, and what SerialProtoAnswer throws. */
    explicit BoardStatsAnswer(QStringList tokens);
    /** Throws DE01590 for what is no BoardStat. */
    explicit BoardStatsAnswer(const XmlRpc::XmlRpcValue &value);
    /** The parameters of a BoardStat. Throws DE01591 for anything else. */
    explicit BoardStatsAnswer(QList<QVariant> &list);

    BoardStatsAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    const BoardStat &boardStat() const { return m_boardStat; }

    bool operator==(const BoardStatsAnswer &other) const { return m_boardStat == other.m_boardStat; }
    bool operator!=(const BoardStatsAnswer &other) const { return !(*this == other); }

    static QList<quv::MemberFacts> memberFacts();

private:
    BoardStat m_boardStat;
};
