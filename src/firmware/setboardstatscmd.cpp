// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/setboardstatscmd.h"

#include "firmware/boardstatscmd_p.h"

namespace {

constexpr char noBoardStat[] = "SetBoardStatsCmd decoding failed: expected BoardStat type";
constexpr quv::Refusal noneInValue = {"DE01566", noBoardStat};
constexpr quv::Refusal noneInList = {"DE01567", noBoardStat};

} // namespace

struct SetBoardStatsCmd::Description : BoardStatsCmd::Description
{
    static constexpr auto command = ProtoCommandList::SET_BOARD_STATS;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({BoardStat::STATS_TYPE, quv::boardStatsTypes}, "int");
        for (const char *when : {"another type", "out of range"})
            teller.refuse(when, {noneInValue, noneInList});
        teller.argument(
            {BoardStat::COUNTS, "of each board \"position_id\", 0 for the master board, and \"count\""},
            "array of structs");
        for (const char *when : {"another type", "out of range"})
            teller.refuse(when, {noneInValue, noneInList});
    }
};

template class quv::DescribedCommand<SetBoardStatsCmd, BoardStatsCmd>;

SetBoardStatsCmd::SetBoardStatsCmd(const BoardStat &boardStat)
{
    setBoardStat(boardStat);
}

SetBoardStatsCmd::SetBoardStatsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    setBoardStat(quv::madeOrRefused(noneInValue, Q_FUNC_INFO, [&] { return BoardStat(value); }));
}

SetBoardStatsCmd::SetBoardStatsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    setBoardStat(quv::madeOrRefused(noneInList, Q_FUNC_INFO, [&] { return BoardStat(list); }));
}

SetBoardStatsCmd *SetBoardStatsCmd::clone() const
{
    return new SetBoardStatsCmd(*this);
}

void SetBoardStatsCmd::setBoardStat(const BoardStat &boardStat)
{
    m_boardStat = boardStat;
    setBoardStats(boardStat.type(), boardStat.positionsID());
}

QList<QVariant> SetBoardStatsCmd::parameters() const
{
    return m_boardStat.parameters();
}

XmlRpc::XmlRpcValue SetBoardStatsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    return EncodeXmlRpcVariant(m_boardStat.parameters());
}

QList<int> SetBoardStatsCmd::serialParameters(int family) const
{
    return QList<int>{boardStatsAction()} + m_boardStat.serialParameters(family);
}
