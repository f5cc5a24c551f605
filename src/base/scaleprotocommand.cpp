// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/scaleprotocommand.h"

#include "base/prototypes_p.h"
#include "base/replaceanswer_p.h"
#include "base/scaleprotoanswer.h"

ScaleProtoCommand::ScaleProtoCommand() : ProtoCommand(quv::ScaleType) {}

ScaleProtoCommand::ScaleProtoCommand(QString command) : ProtoCommand(quv::ScaleType, command, nullptr) {}

ScaleProtoCommand::ScaleProtoCommand(QString command, const XmlRpc::XmlRpcValue &value)
    : ProtoCommand(quv::ScaleType, command, value, nullptr)
{}

ScaleProtoCommand::ScaleProtoCommand(QString command, QList<QVariant> parameters)
    : ProtoCommand(quv::ScaleType, command, parameters, nullptr)
{}

ScaleProtoCommand::ScaleProtoCommand(QString command, const FW_Machine *) : ScaleProtoCommand(command) {}

ScaleProtoCommand::ScaleProtoCommand(QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *)
    : ScaleProtoCommand(command, value)
{}

ScaleProtoCommand::ScaleProtoCommand(QString command, QList<QVariant> parameters, const FW_Machine *)
    : ScaleProtoCommand(command, parameters)
{}

ScaleProtoCommand *ScaleProtoCommand::clone() const
{
    return new ScaleProtoCommand(*this);
}

bool ScaleProtoCommand::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE02075", quv::answerFailed, error,
                              [&] { return new ScaleProtoAnswer(value); });
}

bool ScaleProtoCommand::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE02076", quv::answerFailed, error,
                              [&] { return new ScaleProtoAnswer(list); });
}

bool ScaleProtoCommand::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE02077", "Failed to create xml-rpc answer", error);
}

bool ScaleProtoCommand::setAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return buildProtoAnswer(list, error);
}

bool ScaleProtoCommand::setScaleAnswer(ScaleProtoAnswer *answer, FW_DriverError *error)
{
    return takeProtoAnswer(answer, "DE02078", "DE02079", error);
}
