// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/firmwarecommandscmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"
#include "machine/firmwarecommandsanswer.h"

namespace {

constexpr quv::FamilyGate readsExecution[] = {{63, 38}, {70, 1}, {72}, {78}};

} // namespace

struct FirmwareCommandsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_FW_COMMANDS;
    static constexpr auto commandText = "Read protocol commands";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading protocol commands");

    static constexpr char answerFailed[] = "Failed to create FirmwareCommandsAnswer";
    static constexpr quv::AnsweredBy<FirmwareCommandsAnswer> answer = {{"DE02601", answerFailed},
                                                                       {"DE02598", answerFailed},
                                                                       {"DE02598", answerFailed},
                                                                       {"DE02602", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"execution", "0, or 1 to ask which commands can be carried out"}, self.m_execution,
                         {"DE02596", "DE02596", "FirmwareCommandsCmd: invalid parameter"});
    }
};

template class quv::DescribedCommand<FirmwareCommandsCmd, SerialProtoCommand>;

FirmwareCommandsCmd::FirmwareCommandsCmd(CmdExecution execution) : m_execution(static_cast<int>(execution)) {}

FirmwareCommandsCmd::FirmwareCommandsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

FirmwareCommandsCmd::FirmwareCommandsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

FirmwareCommandsCmd *FirmwareCommandsCmd::clone() const
{
    return new FirmwareCommandsCmd(*this);
}

QList<int> FirmwareCommandsCmd::serialParameters(int) const
{
    return {m_execution};
}

bool FirmwareCommandsCmd::isCommandsExecParamSupported(const FW_Version &version)
{
    return quv::passesGate(readsExecution, version);
}
