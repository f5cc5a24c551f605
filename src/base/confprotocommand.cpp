// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/confprotocommand.h"

#include "base/answerdispatch_p.h"
#include "base/prototypes_p.h"
#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"

namespace {

constexpr long long usualTime = 20000; // ms

} // namespace

ConfProtoCommand::ConfProtoCommand() : ProtoCommand(quv::ConfigurationType) {}

ConfProtoCommand::ConfProtoCommand(QString command, const FW_Machine *machine)
    : ProtoCommand(quv::ConfigurationType, command, machine)
{}

ConfProtoCommand::ConfProtoCommand(QString command, const XmlRpc::XmlRpcValue &value,
                                   const FW_Machine *machine)
    : ProtoCommand(quv::ConfigurationType, command, value, machine)
{}

ConfProtoCommand::ConfProtoCommand(QString command, QList<QVariant> parameters, const FW_Machine *machine)
    : ProtoCommand(quv::ConfigurationType, command, parameters, machine)
{}

ConfProtoCommand *ConfProtoCommand::clone() const
{
    return new ConfProtoCommand(*this);
}

bool ConfProtoCommand::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01297", quv::answerFailed, error,
                              [&] { return quv::makeConfigurationAnswer(m_command, value); });
}

bool ConfProtoCommand::buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return replaceProtoAnswer("DE00346", quv::answerFailed, error,
                              [&] { return quv::makeConfigurationAnswer(m_command, list); });
}

bool ConfProtoCommand::setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error)
{
    return takeXmlRpcAnswer(value, async, "DE01151", quv::answerFailed, error);
}

bool ConfProtoCommand::setAnswer(QList<QVariant> &list, FW_DriverError *error)
{
    return buildProtoAnswer(list, error);
}

bool ConfProtoCommand::setAnswer(ProtoAnswer *answer, ProtoCommand *, FW_DriverError *error)
{
    return takeProtoAnswer(answer, "DE01152", "DE01153", error);
}

long long ConfProtoCommand::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    const QString waterStatus = ProtoCommandList::cmdStr(ProtoCommandList::GET_USS_W_STATUS);
    return m_command == waterStatus ? ProtoCommandList::busyTimeout(waterStatus) : usualTime;
}
