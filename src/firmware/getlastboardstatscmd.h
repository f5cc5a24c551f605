// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "boardstatscmd.h"

/** GET_LAST_BOARD_STATS: reads what boards have told of their counts last. */
class QUVPROTOCOL_EXPORT GetLastBoardStatsCmd
    : public quv::DescribedCommand<GetLastBoardStatsCmd, BoardStatsCmd>
{
public:
    struct Description;

    GetLastBoardStatsCmd() = default; ///< all types, of all boards
    GetLastBoardStatsCmd(int type, const QList<int> &positions);
    /**
     * The type (int), and an array of positions (int), which may be left out. Throws DE01550 and DE01551 for another type of
     * argument, DE01549 for a type of statistics that there is not; without any argument the base refuses (DE00312).
     */
    explicit GetLastBoardStatsCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The same as a list, whose type of statistics is not checked. Throws DE01553 and DE01556 for another type of argument,
     * DE01554 for that of a position; without any argument the base refuses (DE00313).
     */
    explicit GetLastBoardStatsCmd(QList<QVariant> list);
    explicit GetLastBoardStatsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetLastBoardStatsCmd(int) = delete;
    explicit GetLastBoardStatsCmd(double) = delete;
    explicit GetLastBoardStatsCmd(const char *) = delete;

    GetLastBoardStatsCmd *clone() const override;
};
