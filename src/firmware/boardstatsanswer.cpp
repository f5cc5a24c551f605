// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardstatsanswer.h"

#include "base/argumentteller_p.h"
#include "base/decoding_p.h"

#include <utility>

namespace {

constexpr char noBoardStat[] = "BoardStatsAnswer decoding failed: expected BoardStat type";
constexpr quv::Refusal noneInTokens = {"DE01589", noBoardStat};
constexpr quv::Refusal noneInValue = {"DE01590", noBoardStat};
constexpr quv::Refusal noneInList = {"DE01591", noBoardStat};

} // namespace

BoardStatsAnswer::BoardStatsAnswer(const BoardStat &boardStat) : m_boardStat(boardStat) {}

BoardStatsAnswer::BoardStatsAnswer(QStringList tokens)
    : SerialProtoAnswer(std::move(tokens)),
      m_boardStat(quv::madeOrRefused(noneInTokens, Q_FUNC_INFO, [this] { return BoardStat(m_parameters); }))
{}

BoardStatsAnswer::BoardStatsAnswer(const XmlRpc::XmlRpcValue &value)
    : SerialProtoAnswer(value),
      m_boardStat(quv::madeOrRefused(noneInValue, Q_FUNC_INFO, [&] { return BoardStat(value); }))
{}

BoardStatsAnswer::BoardStatsAnswer(QList<QVariant> &list)
    : SerialProtoAnswer(list),
      m_boardStat(quv::madeOrRefused(noneInList, Q_FUNC_INFO, [&] { return BoardStat(list); }))
{}

BoardStatsAnswer *BoardStatsAnswer::clone() const
{
    return new BoardStatsAnswer(*this);
}

bool BoardStatsAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const BoardStatsAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue BoardStatsAnswer::toXmlRpcValue() const
{
    return m_boardStat.toXmlRpcValue();
}

QList<quv::MemberFacts> BoardStatsAnswer::memberFacts()
{
    QList<quv::RefusalFacts> refusals;
    quv::appendRefusal(refusals, "tokens", "unreadable", noneInTokens);
    quv::appendRefusal(refusals, "XML-RPC", "missing or another type", noneInValue);
    quv::appendRefusal(refusals, "list", "missing or another type", noneInList);
    return {{BoardStat::STATS_TYPE, "int", "what was counted", true, refusals},
            {BoardStat::COUNTS, "array of structs",
             "of each board \"position_id\", 0 for the master board, and \"count\"", true, refusals}};
}
