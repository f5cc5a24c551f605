// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdscmd.h"

#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"
#include "configuration/getconfigcmdsanswer.h"

#include <utility>

namespace {

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::GET_CONFIG_CMDS);
}

} // namespace

GetConfigCmdsCmd::GetConfigCmdsCmd() : SerialProtoCommand(name(), nullptr) {}

GetConfigCmdsCmd::GetConfigCmdsCmd(const XmlRpc::XmlRpcValue &value)
    : SerialProtoCommand(name(), value, nullptr)
{}

GetConfigCmdsCmd::GetConfigCmdsCmd(QList<QVariant> list) : SerialProtoCommand(name(), list, nullptr) {}

GetConfigCmdsCmd *GetConfigCmdsCmd::clone() const
{
    return new GetConfigCmdsCmd(*this);
}

QList<int> GetConfigCmdsCmd::serialParameters(int) const
{
    return {0};
}

bool GetConfigCmdsCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01295", quv::answerFailed, error,
                              [&] { return new GetConfigCmdsAnswer(value); });
}

bool GetConfigCmdsCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return setSerialAnswer(std::move(tokens), error);
}

bool GetConfigCmdsCmd::setSerialAnswer(QStringList tokens, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01648", "Failed to create ProtoAnswer", error,
                              [&] { return new GetConfigCmdsAnswer(std::move(tokens)); });
}
