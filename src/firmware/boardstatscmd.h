// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotocommand.h"

/**
 * What the commands about the statistics of boards share: a type of statistics and the positions of the circuits whose boards
 * are meant, none for all boards. The firmware has one code for them and tells them apart by the action; the answer is a
 * BoardStatsAnswer.
 */
class QUVPROTOCOL_EXPORT BoardStatsCmd : public SerialProtoCommand
{
public:
    struct Description;

    enum Action : int { Clear = 1, Set = 2, GetReal = 3, GetLast = 4 };

    QList<QVariant> parameters() const override; ///< boardStatsParameters()
    /** The type and an array of the positions, which is left out when there are none. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    QList<int> serialParameters(int family) const override; ///< serialBoardStatsParameters()

    int boardStatsAction() const { return m_action; }  ///< Action
    int boardStatsType() const { return m_statsType; } ///< BoardStat::Type
    const QList<int> &positionsID() const { return m_positionsID; }

    void setBoardStatsDefaults(); ///< action and type 0, no positions
    /** The type, and a list of the positions when there are any. */
    QList<QVariant> boardStatsParameters() const;
    /** Action, type, number of positions, and each position followed by a 0; 1, 63, 0 for all boards. */
    QList<int> serialBoardStatsParameters(int family) const;

    static bool checkBoardStatsAction(int action); ///< 1 to 4

protected:
    // The name tells the action.
    BoardStatsCmd(const QString &command, const FW_Machine *machine);
    BoardStatsCmd(const QString &command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    BoardStatsCmd(const QString &command, const QList<QVariant> &list, const FW_Machine *machine);
    BoardStatsCmd(const BoardStatsCmd &) = default;

    void setBoardStats(int type, const QList<int> &positions);
    // Both read type and positions; refusals name the \a function. The list form takes any type.
    void readBoardStats(const XmlRpc::XmlRpcValue &value, const char *function);
    void readBoardStats(const QList<QVariant> &list, const char *function);

private:
    int m_action = 0;
    int m_statsType = 0;
    QList<int> m_positionsID;
};
