// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/configparamcmd.h"

#include "base/describedcommand_p.h"
#include "setup/configparamanswer.h"
#include "setup/configparams_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_ultrasoundcleaning.h>

namespace {

constexpr int paramsPlace = 2;

QString textOf(const char *name)
{
    return QString::fromLatin1(name);
}

/** Whether the parameter was there, and was set. */
template <class T>
bool take(const QMap<QString, QVariant> &params, const char *name, FW_UltrasoundCleaning &cleaning,
          void (FW_UltrasoundCleaning::*set)(T))
{
    T value = 0;
    if (!quv::decodeVariant(params.value(textOf(name)), value))
        return false;
    (cleaning.*set)(value);
    return true;
}

} // namespace

struct ConfigParamCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CONFIG_PARAM;

    static constexpr quv::AnsweredBy<ConfigParamAnswer> answer = {
        {}, {"DE02813", quv::answerFailed}, {"DE02821", quv::answerFailed}, {"DE02822", quv::answerFailed}};

    template <class Self, class Archive>
    static void groupAndType(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noGroup = {"DE02816", "DE02818", quv::badConfigParam};
        constexpr quv::ArgumentRefusal noType = {"DE02817", "DE02819", quv::badConfigParam};
        archive.required({"config_param", "0 the ultrasound cleaning"}, self.m_configParam, noGroup, noGroup);
        archive.required({"cmd_type", "0 read, 1 write"}, self.m_configCmdType, noType, noType);
    }

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        groupAndType(self, archive);
        archive.unread("params", self.m_configParams); // whose form is another in XML-RPC and in a list
    }

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        const ConfigParamCmd fresh;
        groupAndType(fresh, teller);
        teller.argument({"params",
                         "a struct with the member \"config_params\": ultrasound_duration (int), "
                         "emptying_time and filling_time, in seconds (in a list these three themselves)"},
                        "struct", fresh.xmlrpcvalue(nullptr));
        teller.refuse("config_params is missing or of another type",
                      {quv::noConfigParams, quv::noConfigParams});
    }
};

template class quv::DescribedCommand<ConfigParamCmd, ConfProtoCommand>;

ConfigParamCmd::ConfigParamCmd(ConfigParam configParam, ConfigCmdType type,
                               const QMap<QString, QVariant> &params)
    : ConfigParams(params),
      m_configParam(configParam),
      m_configCmdType(type)
{}

ConfigParamCmd::ConfigParamCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
    if (const XmlRpc::XmlRpcValue *params = FindXmlRpcElement(value, paramsPlace))
        m_configParams = ConfigParams(*params).configParams();
}

ConfigParamCmd::ConfigParamCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
    if (list.size() > paramsPlace)
        m_configParams = ConfigParams(list.mid(paramsPlace)).configParams();
}

ConfigParamCmd *ConfigParamCmd::clone() const
{
    return new ConfigParamCmd(*this);
}

XmlRpc::XmlRpcValue ConfigParamCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array = DescribedCommand::xmlrpc_parameters(ok);
    array[paramsPlace] = xmlrpcvalue(nullptr);
    return array;
}

bool ConfigParamCmd::updateMachine(FW_Machine *machine) const
{
    using Cleaning = FW_UltrasoundCleaning;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (m_configCmdType != Write || !dispenser)
        return false;
    auto *cleaning = dynamic_cast<Cleaning *>(dispenser->getDevice(FW_Device::UltrasoundCleaning));
    if (!cleaning)
        return false;
    const bool duration =
        take(m_configParams, Cleaning::ultrasoundDuration_TAG, *cleaning, &Cleaning::setUltrasoundDuration);
    const bool emptying =
        take(m_configParams, Cleaning::emptyingTime_TAG, *cleaning, &Cleaning::setEmptyingTime);
    const bool filling =
        take(m_configParams, Cleaning::fillingTime_TAG, *cleaning, &Cleaning::setFillingTime);
    return duration || emptying || filling;
}

QMap<QString, QVariant> ConfigParamCmd::buildAnswerParams(const FW_Machine *machine)
{
    using Cleaning = FW_UltrasoundCleaning;
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    const auto *cleaning =
        dispenser ? dynamic_cast<const Cleaning *>(dispenser->getDevice(FW_Device::UltrasoundCleaning))
                  : nullptr;
    if (!cleaning)
        return {};
    return {{textOf(Cleaning::ultrasoundDuration_TAG), cleaning->ultrasoundDuration()},
            {textOf(Cleaning::emptyingTime_TAG), cleaning->emptyingTime()},
            {textOf(Cleaning::fillingTime_TAG), cleaning->fillingTime()}};
}

bool ConfigParamCmd::operator==(const ConfigParamCmd &other) const
{
    return m_configParam == other.m_configParam && m_configCmdType == other.m_configCmdType &&
           ConfigParams::operator==(other);
}
