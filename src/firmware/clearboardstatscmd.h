// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "boardstatscmd.h"

/** CLEAR_BOARD_STATS: sets what boards have counted back to 0. */
class QUVPROTOCOL_EXPORT ClearBoardStatsCmd : public quv::DescribedCommand<ClearBoardStatsCmd, BoardStatsCmd>
{
public:
    struct Description;

    ClearBoardStatsCmd() = default; ///< all types, of all boards
    ClearBoardStatsCmd(int type, const QList<int> &positions);
    /**
     * The type (int), and an array of positions (int), which may be left out. Throws DE01550 and DE01551 for another type of
     * argument, DE01549 for a type of statistics that there is not; without any argument the base refuses (DE00312).
     */
    explicit ClearBoardStatsCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The same as a list, whose type of statistics is not checked. Throws DE01553 and DE01556 for another type of argument,
     * DE01554 for that of a position; without any argument the base refuses (DE00313).
     */
    explicit ClearBoardStatsCmd(QList<QVariant> list);
    explicit ClearBoardStatsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ClearBoardStatsCmd(int) = delete;
    explicit ClearBoardStatsCmd(double) = delete;
    explicit ClearBoardStatsCmd(const char *) = delete;

    ClearBoardStatsCmd *clone() const override;
};
