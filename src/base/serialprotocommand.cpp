// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/serialprotocommand.h"

#include "base/answerdispatch_p.h"
#include "base/prototypes_p.h"
#include "base/replaceanswer_p.h"

#include <utility>

SerialProtoCommand::SerialProtoCommand() : ProtoCommand(quv::SerialType) {}

SerialProtoCommand::SerialProtoCommand(QString command, const FW_Machine *machine)
    : ProtoCommand(quv::SerialType, command, machine)
{}

SerialProtoCommand::SerialProtoCommand(QString command, const XmlRpc::XmlRpcValue &value,
                                       const FW_Machine *machine)
    : ProtoCommand(quv::SerialType, command, value, machine)
{}

SerialProtoCommand::SerialProtoCommand(QString command, QList<QVariant> parameters, const FW_Machine *machine)
    : ProtoCommand(quv::SerialType, command, parameters, machine)
{}

SerialProtoCommand *SerialProtoCommand::clone() const
{
    return new SerialProtoCommand(*this);
}

bool SerialProtoCommand::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01295", quv::answerFailed, error,
                              [&] { return quv::makeSerialAnswer(m_command, value); });
}

bool SerialProtoCommand::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE00473", quv::answerFailed, error,
                              [&] { return quv::makeSerialAnswer(m_command, list); });
}

bool SerialProtoCommand::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return replaceProtoAnswer("DE00102", quv::answerFailed, error,
                              [&] { return quv::makeSerialAnswer(m_command, tokens); });
}

bool SerialProtoCommand::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE00349", quv::answerFailed, error);
}

bool SerialProtoCommand::setAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return buildProtoAnswer(list, error);
}

bool SerialProtoCommand::setAnswer(ProtoAnswer *answer, ProtoCommand *, FW_DriverError *error)
{
    // DE01151 is also the code of a configuration command's envelope: users know it from both places
    return takeProtoAnswer(answer, "DE01150", "DE01151", error);
}

int SerialProtoCommand::moduleID() const
{
    return m_moduleID;
}

bool SerialProtoCommand::setModuleID(int moduleID)
{
    m_moduleID = moduleID;
    return true;
}

QList<int> SerialProtoCommand::serialParameters(int) const
{
    return {};
}

bool SerialProtoCommand::setSerialAnswer(QStringList tokens, FW_DriverError *error)
{
    return buildProtoAnswer(std::move(tokens), error);
}
