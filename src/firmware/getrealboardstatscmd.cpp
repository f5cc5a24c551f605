// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/getrealboardstatscmd.h"

#include "base/gate_p.h"
#include "firmware/boardstatscmd_p.h"

namespace {

constexpr quv::FamilyGate countsCleanings[] = {{63, 38}, {70, 1}};

} // namespace

struct GetRealBoardStatsCmd::Description : BoardStatsCmd::Description
{
    static constexpr auto command = ProtoCommandList::GET_REAL_BOARD_STATS;
};

template class quv::DescribedCommand<GetRealBoardStatsCmd, BoardStatsCmd>;

GetRealBoardStatsCmd::GetRealBoardStatsCmd(int type, const QList<int> &positions)
{
    setBoardStats(type, positions);
}

GetRealBoardStatsCmd::GetRealBoardStatsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    readBoardStats(value, Q_FUNC_INFO);
}

GetRealBoardStatsCmd::GetRealBoardStatsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    readBoardStats(list, Q_FUNC_INFO);
}

GetRealBoardStatsCmd *GetRealBoardStatsCmd::clone() const
{
    return new GetRealBoardStatsCmd(*this);
}

QList<int> GetRealBoardStatsCmd::serialParameters(int) const
{
    return {boardStatsAction()};
}

bool GetRealBoardStatsCmd::setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error)
{
    const bool isRead =
        command && command->command() == ProtoCommandList::cmdStr(ProtoCommandList::GET_LAST_BOARD_STATS);
    return !isRead || DescribedCommand::setAnswer(answer, command, error);
}

bool GetRealBoardStatsCmd::isCleaningStatSupported(const FW_Version &version)
{
    return quv::passesGate(countsCleanings, version);
}
