// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamanswer.h"

#include "base/cloned_p.h"
#include "base/latin1_p.h"
#include "base/tokens_p.h"
#include "catalogue/commandfacts.h"
#include "configuration/confclasses_p.h"
#include "configuration/confrow_p.h"

namespace {

constexpr char nameKey[] = "cmd_code";
constexpr char codeKey[] = "cmd_value";
constexpr char rowKey[] = "cmd_parameters";

} // namespace

ReadConfigurationParamAnswer::ReadConfigurationParamAnswer() = default;

ReadConfigurationParamAnswer::ReadConfigurationParamAnswer(QStringList tokens) : SerialProtoAnswer(tokens)
{
    constexpr int rowBegin = 3;
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    reader.require(1, {"DE00078", "Command code not found in answer"});
    const int code = reader.next({"DE00079", "Invalid command code type found in answer"});
    reader.require(1, {"DE00080", "ID number not found in answer"});
    reader.next({"DE00081", "Invalid ID number type found in answer"});
    reader.require(1, {"DE00082", "Fields number not found in answer"});
    const int fieldCount = reader.next({"DE00083", "Invalid fields number type found in answer"});
    m_confData = quv::confDataOfTokens(code, m_parameters.mid(rowBegin), fieldCount);
}

ReadConfigurationParamAnswer::ReadConfigurationParamAnswer(const XmlRpc::XmlRpcValue &value)
    : SerialProtoAnswer(value)
{}

ReadConfigurationParamAnswer::ReadConfigurationParamAnswer(const ReadConfigurationParamAnswer &other)
    : SerialProtoAnswer(other),
      m_confData(quv::cloned(other.m_confData.get()))
{}

ReadConfigurationParamAnswer::~ReadConfigurationParamAnswer() = default;

ReadConfigurationParamAnswer *ReadConfigurationParamAnswer::clone() const
{
    return new ReadConfigurationParamAnswer(*this);
}

void ReadConfigurationParamAnswer::clear()
{
    m_confData.reset();
}

bool ReadConfigurationParamAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const ReadConfigurationParamAnswer *>(other);
    if (!that || !m_confData || !that->m_confData)
        return that && !m_confData && !that->m_confData;
    return m_confData->commandCode() == that->m_confData->commandCode() &&
           m_confData->configurationParamsStr() == that->m_confData->configurationParamsStr();
}

QString ReadConfigurationParamAnswer::configurationDataStr() const
{
    return quv::confDataStr(m_confData.get());
}

bool ReadConfigurationParamAnswer::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                                                       QList<int> *extra)
{
    if (!m_confData)
        return false;
    m_confData->updateConfiguration(machine, profiles, extra);
    return true;
}

XmlRpc::XmlRpcValue ReadConfigurationParamAnswer::toXmlRpcValue() const
{
    if (!m_confData)
        return SerialProtoAnswer::toXmlRpcValue();
    XmlRpc::XmlRpcValue value;
    value[nameKey] = quv::latin1(ConfData::confCommandToString(m_confData->commandCode()));
    value[codeKey] = m_confData->commandCode();
    value[rowKey] = quv::latin1(m_confData->configurationParamsStr());
    return value;
}

QList<quv::MemberFacts> ReadConfigurationParamAnswer::memberFacts()
{
    return {{nameKey, "string", "the structure's name", true, {}},
            {codeKey, "int", "the structure's code", true, {}},
            {rowKey, "string", "the row as text", true, {}}};
}
