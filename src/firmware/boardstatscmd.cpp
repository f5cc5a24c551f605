// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/boardstatscmd_p.h"

namespace {

/** The address by which the firmware means all of its boards. */
constexpr int allBoards = 63;

constexpr quv::Refusal noPositionsInValue = {"DE01551",
                                             "Board stats type: expected positions ID list parameter"};
constexpr quv::Refusal noPositionsInList = {"DE01556",
                                            "Board stats type: expected positions ID list parameter"};
constexpr quv::Refusal badPositionInList = {"DE01554", "Position ID: expected INT parameter"};

int actionOf(const QString &command)
{
    using Cmd = ProtoCommandList;
    constexpr std::pair<Cmd::CommandListValue, BoardStatsCmd::Action> actions[] = {
        {Cmd::CLEAR_BOARD_STATS, BoardStatsCmd::Clear},
        {Cmd::SET_BOARD_STATS, BoardStatsCmd::Set},
        {Cmd::GET_REAL_BOARD_STATS, BoardStatsCmd::GetReal},
        {Cmd::GET_LAST_BOARD_STATS, BoardStatsCmd::GetLast}};
    for (const auto &[value, action] : actions) {
        if (command == Cmd::cmdStr(value))
            return action;
    }
    return 0;
}

} // namespace

void BoardStatsCmd::Description::tellArguments(quv::ArgumentTeller &teller)
{
    int type = BoardStat::AnyType;
    arguments(type, teller);
    teller.unread({"positions", "circuits' positions; without any, all boards"}, QList<int>());
    teller.refuse("another type", {noPositionsInValue, noPositionsInList});
    teller.refuse("an element of another type", {noPositionsInValue, badPositionInList});
}

BoardStatsCmd::BoardStatsCmd(const QString &command, const FW_Machine *machine)
    : SerialProtoCommand(command, machine),
      m_action(actionOf(command))
{}

BoardStatsCmd::BoardStatsCmd(const QString &command, const XmlRpc::XmlRpcValue &value,
                             const FW_Machine *machine)
    : SerialProtoCommand(command, value, machine),
      m_action(actionOf(command))
{}

BoardStatsCmd::BoardStatsCmd(const QString &command, const QList<QVariant> &list, const FW_Machine *machine)
    : SerialProtoCommand(command, list, machine),
      m_action(actionOf(command))
{}

void BoardStatsCmd::setBoardStats(int type, const QList<int> &positions)
{
    m_statsType = type;
    m_positionsID = positions;
}

void BoardStatsCmd::readBoardStats(const XmlRpc::XmlRpcValue &value, const char *function)
{
    quv::ValueReader reader(value, function);
    Description::arguments(m_statsType, reader);
    const XmlRpc::XmlRpcValue *positions = FindXmlRpcElement(value, 1);
    if (positions && !DecodeXmlRpcValue(*positions, m_positionsID))
        quv::throwRefusal(noPositionsInValue, function);
}

void BoardStatsCmd::readBoardStats(const QList<QVariant> &list, const char *function)
{
    quv::ListReader reader(list, function);
    Description::arguments(m_statsType, reader);
    if (list.size() < 2 || quv::decodeVariant(list.at(1), m_positionsID))
        return;
    quv::throwRefusal(
        list.at(1).userType() == QMetaType::QVariantList ? badPositionInList : noPositionsInList, function);
}

QList<QVariant> BoardStatsCmd::parameters() const
{
    return boardStatsParameters();
}

XmlRpc::XmlRpcValue BoardStatsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    return EncodeXmlRpcVariant(boardStatsParameters());
}

QList<int> BoardStatsCmd::serialParameters(int family) const
{
    return serialBoardStatsParameters(family);
}

void BoardStatsCmd::setBoardStatsDefaults()
{
    m_action = 0;
    setBoardStats(0, {});
}

QList<QVariant> BoardStatsCmd::boardStatsParameters() const
{
    QList<QVariant> parameters = {m_statsType};
    if (!m_positionsID.isEmpty())
        parameters.append(QVariant(intListToVariant(m_positionsID)));
    return parameters;
}

QList<int> BoardStatsCmd::serialBoardStatsParameters(int) const
{
    const QList<int> boards = m_positionsID.isEmpty() ? QList<int>{allBoards} : m_positionsID;
    QList<int> parameters = {m_action, m_statsType, boards.size()};
    for (const int board : boards)
        parameters << board << 0;
    return parameters;
}

bool BoardStatsCmd::checkBoardStatsAction(int action)
{
    return action >= Clear && action <= GetLast;
}
