// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "boardstatscmd.h"

#include <QuvFramework/fw_boardstat.h>

/** SET_BOARD_STATS: gives boards counts to go on from, as after one has been replaced. */
class QUVPROTOCOL_EXPORT SetBoardStatsCmd : public quv::DescribedCommand<SetBoardStatsCmd, BoardStatsCmd>
{
public:
    struct Description;

    SetBoardStatsCmd() = default; ///< no counts
    explicit SetBoardStatsCmd(const BoardStat &boardStat);
    /** The two members of a BoardStat. Throws DE01566 for anything else. */
    explicit SetBoardStatsCmd(const XmlRpc::XmlRpcValue &value);
    /** The two parameters of a BoardStat. Throws DE01567 for anything else. */
    explicit SetBoardStatsCmd(QList<QVariant> list);
    explicit SetBoardStatsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SetBoardStatsCmd(int) = delete;
    explicit SetBoardStatsCmd(double) = delete;
    explicit SetBoardStatsCmd(const char *) = delete;

    SetBoardStatsCmd *clone() const override;

    QList<QVariant> parameters() const override; ///< those of the BoardStat
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override; ///< the action, then those of the BoardStat

    const BoardStat &boardStat() const { return m_boardStat; }

private:
    void setBoardStat(const BoardStat &boardStat);

    BoardStat m_boardStat;
};
