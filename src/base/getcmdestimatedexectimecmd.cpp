// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcmdestimatedexectimecmd.h"

#include "base/cloned_p.h"
#include "base/describedcommand_p.h"
#include "base/getcmdestimatedexectimeanswer.h"
#include "base/guard_p.h"
#include "base/requestarguments_p.h"
#include "base/requeststruct_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char invalid[] = "Invalid parameters";
constexpr quv::Refusal noCommand = {"DE01182", invalid};
constexpr quv::Refusal noArray = {"DE01183", invalid};
constexpr char decodingFailed[] = "Errors during protocol command parameters decoding";

/** The array of the other command's name and arguments. */
const XmlRpc::XmlRpcValue &commandAndParams(const XmlRpc::XmlRpcValue &value, const char *function)
{
    const XmlRpc::XmlRpcValue *request = FindXmlRpcElement(value, 0);
    if (!request) // the contract: the base asks for one element
        throw FW_Exception("DE01193", invalid, function);
    if (request->getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throw FW_Exception("DE01181", invalid, function);
    const XmlRpc::XmlRpcValue &command = quv::arrayMember(
        *request, GetCmdEstimatedExecTimeCmd::COMMAND_AND_PARAMS, noCommand, noArray, function);
    if (command.size() == 0)
        throw FW_Exception("DE01185", "Invalid parameters: command expected", function);
    return command;
}

std::unique_ptr<ProtoCommand> makeCommand(const XmlRpc::XmlRpcValue &command, const FW_Machine *machine,
                                          const char *function)
{
    QString commandName;
    if (!DecodeXmlRpcValue(command, 0, commandName) || !ProtoCommandList::existsCommand(commandName))
        throw FW_Exception("DE01184", "Invalid parameters: command does not exists", function);
    XmlRpc::XmlRpcValue arguments = quv::argumentsIn(command);
    try {
        return std::unique_ptr<ProtoCommand>(
            ProtoCommandList::getProtoCommand(commandName, arguments, machine));
    } catch (...) {
        // the contract: the factory has codes of its own for what goes wrong in it
        quv::rethrowCurrentException("DE01186", decodingFailed, function);
    }
}

std::unique_ptr<ProtoCommand> makeCommand(const QList<QVariant> &list, const FW_Machine *machine,
                                          const char *function)
{
    if (list.isEmpty() || list.constFirst().userType() != QMetaType::QString)
        throw FW_Exception("DE01188", decodingFailed, function);
    return std::unique_ptr<ProtoCommand>(
        ProtoCommandList::getProtoCommand(list.constFirst().toString(), list.mid(1), machine));
}

} // namespace

struct GetCmdEstimatedExecTimeCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CMD_EST_EXEC_TIME;

    // failures are the plain configuration command's
    static constexpr quv::AnsweredBy<GetCmdEstimatedExecTimeAnswer> answer = {
        {}, {"DE01297", quv::answerFailed}, {"DE00346", quv::answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"command", "member \"command\": an array of the other command's name and its arguments"},
            "struct");
    }
};

template class quv::DescribedCommand<GetCmdEstimatedExecTimeCmd, ConfProtoCommand>;

GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd() = default;

GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd(ProtoCommand *command)
{
    setCommandToEstimate(command);
}

GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd(const XmlRpc::XmlRpcValue &value,
                                                       const FW_Machine *machine)
    : DescribedCommand(value, machine)
{
    const char *function = Q_FUNC_INFO;
    try {
        m_commandToEstimate = makeCommand(commandAndParams(value, function), machine, function);
    } catch (...) {
        quv::rethrowCurrentException("DE01187", decodingFailed, function);
    }
}

GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd(QList<QVariant> list, const FW_Machine *machine)
    : DescribedCommand(list, machine)
{
    const char *function = Q_FUNC_INFO;
    try {
        m_commandToEstimate = makeCommand(list, machine, function);
    } catch (...) {
        // the contract, as above
        quv::rethrowCurrentException("DE01189", decodingFailed, function);
    }
}

GetCmdEstimatedExecTimeCmd::GetCmdEstimatedExecTimeCmd(const GetCmdEstimatedExecTimeCmd &other)
    : DescribedCommand(other),
      m_commandToEstimate(quv::cloned(other.m_commandToEstimate.get()))
{}

GetCmdEstimatedExecTimeCmd::~GetCmdEstimatedExecTimeCmd() = default;

GetCmdEstimatedExecTimeCmd *GetCmdEstimatedExecTimeCmd::clone() const
{
    return new GetCmdEstimatedExecTimeCmd(*this);
}

QList<QVariant> GetCmdEstimatedExecTimeCmd::parameters() const
{
    if (!m_commandToEstimate)
        return {};
    return QList<QVariant>{m_commandToEstimate->command()} + m_commandToEstimate->parameters();
}

XmlRpc::XmlRpcValue GetCmdEstimatedExecTimeCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array.setSize(0);
    if (m_commandToEstimate)
        array[0][COMMAND_AND_PARAMS] = m_commandToEstimate->toXmlRpcValue(QString(), ok);
    return array;
}

void GetCmdEstimatedExecTimeCmd::setCommandToEstimate(ProtoCommand *command)
{
    if (command)
        m_commandToEstimate = quv::cloned(command);
}
