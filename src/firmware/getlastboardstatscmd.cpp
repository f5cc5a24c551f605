// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/getlastboardstatscmd.h"

#include "firmware/boardstatscmd_p.h"

struct GetLastBoardStatsCmd::Description : BoardStatsCmd::Description
{
    static constexpr auto command = ProtoCommandList::GET_LAST_BOARD_STATS;
};

template class quv::DescribedCommand<GetLastBoardStatsCmd, BoardStatsCmd>;

GetLastBoardStatsCmd::GetLastBoardStatsCmd(int type, const QList<int> &positions)
{
    setBoardStats(type, positions);
}

GetLastBoardStatsCmd::GetLastBoardStatsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    readBoardStats(value, Q_FUNC_INFO);
}

GetLastBoardStatsCmd::GetLastBoardStatsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    readBoardStats(list, Q_FUNC_INFO);
}

GetLastBoardStatsCmd *GetLastBoardStatsCmd::clone() const
{
    return new GetLastBoardStatsCmd(*this);
}
