// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/getconfigcmdsanswer.h"

#include "base/tokens_p.h"

#include "catalogue/commandfacts.h"

#include <QuvFramework/fw_exception.h>

namespace {

constexpr char versionKey[] = "version";
constexpr char minorVersionKey[] = "minor_version";
constexpr char commandsKey[] = "command_codes";

} // namespace

GetConfigCmdsAnswer::GetConfigCmdsAnswer(QStringList tokens) : SerialProtoAnswer(tokens)
{
    constexpr int headerTokens = 4; // with the length
    if (tokens.size() < headerTokens)
        throw FW_Exception("DE01642", "Invalid answer length", Q_FUNC_INFO);
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    m_version = reader.nextUnsigned({"DE01643", "Invalid version type found in answer"});
    m_minorVersion = reader.nextUnsigned({"DE01644", "Invalid minor version type found in answer"});
    const unsigned count = reader.nextUnsigned({"DE01645", "Invalid command count type found in answer"});
    for (unsigned i = 0; i < count; ++i) {
        const unsigned code = reader.nextUnsigned({"DE01646", "Invalid command code type found in answer"});
        const unsigned fields = reader.nextUnsigned({"DE01647", "Invalid field count type found in answer"});
        m_commands.append({code, fields});
    }
}

GetConfigCmdsAnswer::GetConfigCmdsAnswer(const XmlRpc::XmlRpcValue &value) : SerialProtoAnswer(value) {}

GetConfigCmdsAnswer *GetConfigCmdsAnswer::clone() const
{
    return new GetConfigCmdsAnswer(*this);
}

bool GetConfigCmdsAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetConfigCmdsAnswer *>(other);
    return that && m_version == that->m_version && m_minorVersion == that->m_minorVersion &&
           m_commands == that->m_commands;
}

QList<unsigned int> GetConfigCmdsAnswer::getConfigCommands() const
{
    QList<unsigned int> codes;
    for (const auto &[code, fields] : m_commands)
        codes.append(code);
    return codes;
}

XmlRpc::XmlRpcValue GetConfigCmdsAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[versionKey] = static_cast<int>(m_version);
    value[minorVersionKey] = static_cast<int>(m_minorVersion);
    for (int i = 0; i < m_commands.size(); ++i) {
        XmlRpc::XmlRpcValue &command = value[commandsKey][i];
        command["cmd_code"] = static_cast<int>(m_commands.at(i).first);
        command["field_count"] = static_cast<int>(m_commands.at(i).second);
    }
    return value;
}

QList<quv::MemberFacts> GetConfigCmdsAnswer::memberFacts()
{
    return {{versionKey, "int", "", true, {}},
            {minorVersionKey, "int", "", true, {}},
            {commandsKey,
             "array of structs",
             "\"cmd_code\" and \"field_count\" of each structure; left out when there is none",
             false,
             {}}};
}
