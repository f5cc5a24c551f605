// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/writeconfigurationparamcmd.h"

#include "base/cloned_p.h"
#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "configuration/confclasses_p.h"
#include "configuration/confrow_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace {

constexpr char codeMember[] = "cmd_value";
constexpr char rowMember[] = "cmd_parameters";

constexpr quv::Refusal noCode = {
    "DE00169", "Invalid configuration parameters. Expected Int type for attribute 'cmd_value'"};
constexpr quv::Refusal noRow = {
    "DE00170", "Invalid configuration parameters. Expected String type for attribute 'cmd_parameters'"};

/** The struct of the row: the value itself, or what stands first in a request's array. */
const XmlRpc::XmlRpcValue &structIn(const XmlRpc::XmlRpcValue &value, const char *function)
{
    const XmlRpc::XmlRpcValue *element = FindXmlRpcElement(value, 0);
    const XmlRpc::XmlRpcValue &members = element ? *element : value;
    if (members.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throw FW_Exception("DE00171", "Error decoding xmp-rpc type", function);
    return members;
}

} // namespace

struct WriteConfigurationParamCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::WRITE_CONFIG_ROW;

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"row", "members \"cmd_value\" (int, the structure's code) and \"cmd_parameters\" "
                                "(string, the row as text)"},
                        "struct");
    }
};

template class quv::DescribedCommand<WriteConfigurationParamCmd, SerialProtoCommand>;

WriteConfigurationParamCmd::WriteConfigurationParamCmd() = default;

WriteConfigurationParamCmd::WriteConfigurationParamCmd(int code, const FW_Machine *machine, int id) : m_id(id)
{
    if (!ConfData::checkCommandCode(code))
        throw FW_Exception("DE00172", "Unknown command code", Q_FUNC_INFO);
    m_code = code;
    auto row = quv::confDataOfMachine(code, machine, id);
    if (!row)
        throw FW_Exception("DE00582", "Write configuration row parameters: unknown command", Q_FUNC_INFO);
    takeRow(std::move(row), "DE00176", Q_FUNC_INFO);
}

WriteConfigurationParamCmd::WriteConfigurationParamCmd(const XmlRpc::XmlRpcValue &value)
{
    const XmlRpc::XmlRpcValue &members = structIn(value, Q_FUNC_INFO);
    int code = 0;
    QString text;
    quv::readMember(members, codeMember, code, noCode, Q_FUNC_INFO);
    quv::readMember(members, rowMember, text, noRow, Q_FUNC_INFO);
    if (code == 0 || text.isEmpty())
        return;
    setCommandCode(code);
    takeRow(quv::confDataOfText(code, text), "DE00175", Q_FUNC_INFO);
}

WriteConfigurationParamCmd::WriteConfigurationParamCmd(QList<QVariant> list) : DescribedCommand(list) {}

WriteConfigurationParamCmd::WriteConfigurationParamCmd(const WriteConfigurationParamCmd &other)
    : DescribedCommand(other),
      m_confData(quv::cloned(other.m_confData.get())),
      m_code(other.m_code),
      m_serialParameters(other.m_serialParameters),
      m_id(other.m_id),
      m_parameterCount(other.m_parameterCount)
{}

WriteConfigurationParamCmd::~WriteConfigurationParamCmd() = default;

WriteConfigurationParamCmd *WriteConfigurationParamCmd::clone() const
{
    return new WriteConfigurationParamCmd(*this);
}

void WriteConfigurationParamCmd::takeRow(std::unique_ptr<ConfData> row, const char *failureCode,
                                         const char *function)
{
    bool ok = false;
    m_serialParameters = row->serialParams(&ok);
    if (!ok)
        throw FW_Exception(failureCode, "Write configuration row parameters: error in decoding", function);
    m_parameterCount = row->numOfConfigurationParams();
    m_confData = std::move(row);
}

QString WriteConfigurationParamCmd::configurationDataStr() const
{
    return quv::confDataStr(m_confData.get());
}

bool WriteConfigurationParamCmd::updateConfiguration(FW_Machine *machine)
{
    return m_confData && m_confData->updateConfiguration(machine, nullptr, nullptr);
}

QList<QVariant> WriteConfigurationParamCmd::parameters() const
{
    QList<QVariant> parameters{m_code, m_serialParameters.size()};
    for (const int parameter : m_serialParameters)
        parameters.append(parameter);
    return parameters;
}

XmlRpc::XmlRpcValue WriteConfigurationParamCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array.setSize(0);
    if (m_confData) {
        array[0][codeMember] = m_code;
        array[0][rowMember] = EncodeXmlRpcText(m_confData->configurationParamsStr());
    }
    return array;
}

QList<int> WriteConfigurationParamCmd::serialParameters(int family) const
{
    if (family != FW_Dispenser::CommandFamily1)
        return {};
    return QList<int>{m_code, m_parameterCount + 1} + m_serialParameters;
}
