// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamcmd.h"

#include "base/arguments_p.h"
#include "base/replaceanswer_p.h"
#include "catalogue/protocommandlist.h"
#include "configuration/readconfigurationparamanswer.h"

#include <utility>

namespace {

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::READ_CONFIG_ROW);
}

} // namespace

template <class Self, class Archive>
void ReadConfigurationParamCmd::arguments(Self &self, Archive &archive)
{
    archive.required(self.m_code, {"DE00314", "DE00314", "Command code value expected"},
                     {"DE00084", "DE00084", "Invalid command code found in answer"});
    archive.required(self.m_id, {"DE00316", "DE00316", "ID number value expected"},
                     {"DE00315", "DE00315", "Invalid ID number found in answer"});
}

ReadConfigurationParamCmd::ReadConfigurationParamCmd() : SerialProtoCommand(name(), nullptr) {}

ReadConfigurationParamCmd::ReadConfigurationParamCmd(int code, int id)
    : SerialProtoCommand(name(), nullptr),
      m_code(code),
      m_id(id)
{}

ReadConfigurationParamCmd::ReadConfigurationParamCmd(const XmlRpc::XmlRpcValue &value)
    : SerialProtoCommand(name(), value, nullptr)
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    arguments(*this, reader);
}

ReadConfigurationParamCmd::ReadConfigurationParamCmd(QList<QVariant> list)
    : SerialProtoCommand(name(), list, nullptr)
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    arguments(*this, reader);
}

ReadConfigurationParamCmd *ReadConfigurationParamCmd::clone() const
{
    return new ReadConfigurationParamCmd(*this);
}

void ReadConfigurationParamCmd::setDefaults()
{
    m_code = 0;
    m_id = 1;
}

QList<QVariant> ReadConfigurationParamCmd::parameters() const
{
    quv::ListWriter writer;
    arguments(*this, writer);
    return writer.result();
}

XmlRpc::XmlRpcValue ReadConfigurationParamCmd::xmlrpc_parameters(bool *ok) const
{
    quv::ValueWriter writer;
    arguments(*this, writer);
    return writer.result(ok);
}

QList<int> ReadConfigurationParamCmd::serialParameters(int) const
{
    return {m_code, m_id};
}

bool ReadConfigurationParamCmd::buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error)
{
    return replaceProtoAnswer("DE01295", quv::answerFailed, error,
                              [&] { return new ReadConfigurationParamAnswer(value); });
}

bool ReadConfigurationParamCmd::buildProtoAnswer(QStringList tokens, FW_DriverError *error)
{
    return setSerialAnswer(std::move(tokens), error);
}

bool ReadConfigurationParamCmd::setSerialAnswer(QStringList tokens, FW_DriverError *error)
{
    return replaceProtoAnswer("DE00095", "Failed to create ProtoAnswer", error,
                              [&] { return new ReadConfigurationParamAnswer(std::move(tokens)); });
}
