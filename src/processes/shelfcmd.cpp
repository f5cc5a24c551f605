// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/shelfcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "base/notwritten_p.h"
#include "base/wordstable_p.h"

namespace {

constexpr char tooFew[] = "Too few parameters received";
constexpr char noType[] = "Shelf command type: expected INT parameter";
constexpr char noHeight[] = "Expected shelf height for this command type parameter";

constexpr quv::Words words[] = {
    {ShelfCmd::CanPosition, "Shelf move to can position",
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving shelf to can position"),
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving shelf to can position (height %1 mm)")},
    {ShelfCmd::LowPosition, "Shelf move to low position",
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving shelf to low position"),
     QT_TRANSLATE_NOOP("QuvProtocol", "Moving shelf to low position (height %1 mm)")}};

const quv::Words &wordsOf(int commandType)
{
    static constexpr quv::Words others = {-1, "", QT_TRANSLATE_NOOP("QuvProtocol", "In progress")};
    return quv::wordsOf(words, commandType, others);
}

bool needsHeight(int commandType)
{
    return commandType <= ShelfCmd::LowPosition;
}

} // namespace

struct ShelfCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SHELF_MOVE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // none is refused by the base already, as long as the catalogue asks for one
        archive.required({"command_type", "0 to the can position, 1 to the low position"}, self.m_commandType,
                         {"DE00810", "DE00814", tooFew}, {"DE00811", "DE00815", noType});
        // a list is told of the command type: users know the text
        archive.requiredIf(needsHeight(self.m_commandType),
                           {"height", "millimetres; only a command type above 1 may do without"},
                           self.m_height, {"DE00813", "DE00817", noHeight},
                           {{"DE00812", "Shelf height: expected INT parameter"}, {"DE00816", noType}});
    }
};

template class quv::DescribedCommand<ShelfCmd, SerialProtoCommand>;

ShelfCmd::ShelfCmd(int commandType, int height) : m_commandType(commandType), m_height(height) {}

ShelfCmd::ShelfCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    // the contract of this class, should the base ever let such a value pass
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE00809", "ShelfCmd: invalid xml-rpc type (not array)", Q_FUNC_INFO);
    read(value, Q_FUNC_INFO);
}

ShelfCmd::ShelfCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ShelfCmd *ShelfCmd::clone() const
{
    return new ShelfCmd(*this);
}

XmlRpc::XmlRpcValue ShelfCmd::xmlrpc_parameters(bool *ok) const
{
    return m_commandType == noMovement ? quv::notWritten(ok) : DescribedCommand::xmlrpc_parameters(ok);
}

QList<int> ShelfCmd::serialParameters(int) const
{
    QList<int> parameters = {m_commandType};
    quv::appendTwoDigits(parameters, m_height);
    return parameters;
}

long long ShelfCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    constexpr long long movementTime = 5000;
    return movementTime;
}

QString ShelfCmd::commandString() const
{
    return QString::fromLatin1(wordsOf(m_commandType).commandText);
}

TString ShelfCmd::actionString(bool detailed) const
{
    TString action = quv::actionOf(wordsOf(m_commandType), detailed);
    if (detailed && checkCommandType(m_commandType))
        action.arg(QString::number(m_height), false);
    return action;
}

bool ShelfCmd::checkCommandType(int commandType)
{
    return commandType == CanPosition || commandType == LowPosition;
}
