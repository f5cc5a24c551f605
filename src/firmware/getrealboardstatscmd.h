// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "boardstatscmd.h"

struct FW_Version;

/**
 * GET_REAL_BOARD_STATS: lets the boards tell the machine's firmware what they have counted. It answers later: the driver reads
 * the counts by a GetLastBoardStatsCmd and hands that one's answer to this command.
 */
class QUVPROTOCOL_EXPORT GetRealBoardStatsCmd
    : public quv::DescribedCommand<GetRealBoardStatsCmd, BoardStatsCmd>
{
public:
    struct Description;

    GetRealBoardStatsCmd() = default; ///< all types, of all boards
    GetRealBoardStatsCmd(int type, const QList<int> &positions);
    /**
     * The type (int), and an array of positions (int), which may be left out. Throws DE01550 and DE01551 for another type of
     * argument, DE01549 for a type of statistics that there is not; without any argument the base refuses (DE00312).
     */
    explicit GetRealBoardStatsCmd(const XmlRpc::XmlRpcValue &value);
    /**
     * The same as a list, whose type of statistics is not checked. Throws DE01553 and DE01556 for another type of argument,
     * DE01554 for that of a position; without any argument the base refuses (DE00313).
     */
    explicit GetRealBoardStatsCmd(QList<QVariant> list);
    explicit GetRealBoardStatsCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetRealBoardStatsCmd(int) = delete;
    explicit GetRealBoardStatsCmd(double) = delete;
    explicit GetRealBoardStatsCmd(const char *) = delete;

    GetRealBoardStatsCmd *clone() const override;

    QList<int> serialParameters(int family) const override; ///< the action alone
    using DescribedCommand::setAnswer;
    /** Stores a clone of the answer to a GET_LAST_BOARD_STATS; true, and nothing happens, for one to another command, or none. */
    bool setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error) override;

    /** Whether the firmware counts cleanings. */
    static bool isCleaningStatSupported(const FW_Version &version);
};
