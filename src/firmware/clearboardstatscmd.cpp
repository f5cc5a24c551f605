// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/clearboardstatscmd.h"

#include "firmware/boardstatscmd_p.h"

struct ClearBoardStatsCmd::Description : BoardStatsCmd::Description
{
    static constexpr auto command = ProtoCommandList::CLEAR_BOARD_STATS;
};

template class quv::DescribedCommand<ClearBoardStatsCmd, BoardStatsCmd>;

ClearBoardStatsCmd::ClearBoardStatsCmd(int type, const QList<int> &positions)
{
    setBoardStats(type, positions);
}

ClearBoardStatsCmd::ClearBoardStatsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    readBoardStats(value, Q_FUNC_INFO);
}

ClearBoardStatsCmd::ClearBoardStatsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    readBoardStats(list, Q_FUNC_INFO);
}

ClearBoardStatsCmd *ClearBoardStatsCmd::clone() const
{
    return new ClearBoardStatsCmd(*this);
}
