// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commandidcmd.h"

#include "base/describedcommand_p.h"
#include "machine/commandidanswer.h"

struct CommandIDCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CMD_ID;

    static constexpr quv::AnsweredBy<CommandIDAnswer> answer = {
        {"DE00096", "Failed to create ProtoAnswer"}, {"DE01295", quv::answerFailed}, {}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        // none is refused by the base already, as long as the catalogue asks for one
        archive.required({"code", "a command's firmware code"}, self.m_commandCode,
                         {"DE00293", "DE00295", "Too few parameters received"},
                         {"DE00294", "DE00296", "Command code: expected INT parameter"});
    }
};

template class quv::DescribedCommand<CommandIDCmd, SerialProtoCommand>;

CommandIDCmd::CommandIDCmd(int commandCode) : m_commandCode(commandCode) {}

CommandIDCmd::CommandIDCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

CommandIDCmd::CommandIDCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

CommandIDCmd *CommandIDCmd::clone() const
{
    return new CommandIDCmd(*this);
}

QList<int> CommandIDCmd::serialParameters(int) const
{
    return {m_commandCode};
}
