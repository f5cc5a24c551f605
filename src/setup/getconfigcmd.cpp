// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getconfigcmd.h"

#include "base/describedcommand_p.h"
#include "setup/getconfiganswer.h"

namespace {

constexpr quv::Refusal noInt = {"DE00930", "Get config command: expected Int type for first parameter"};
constexpr quv::Refusal invalid = {"DE00929", "Get config command: invalid parameter"};

constexpr int noType = -1;

} // namespace

struct GetConfigCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_CONFIG;
    static constexpr auto commandText = "Configuration read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Retrieving configuration");

    static constexpr char answerFailed[] = "Failed to create GetConfigAnswer";
    static constexpr quv::AnsweredBy<GetConfigAnswer> answer = {
        {}, {"DE00932", answerFailed}, {"DE00932", answerFailed}, {"DE00932", answerFailed}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"configuration_type", "0 or 1"}, "int",
                        XmlRpc::XmlRpcValue(defaultConfigurationType()));
        teller.refuse("another type", {noInt, {}});
        teller.refuse("out of range", {invalid, {}});
    }
};

template class quv::DescribedCommand<GetConfigCmd, ConfProtoCommand>;

GetConfigCmd::GetConfigCmd()
{
    setConfigurationType(defaultConfigurationType());
}

GetConfigCmd::GetConfigCmd(int configurationType) : GetConfigCmd()
{
    setConfigurationType(configurationType);
}

GetConfigCmd::GetConfigCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    int type = defaultConfigurationType();
    const XmlRpc::XmlRpcValue *argument = FindXmlRpcElement(value, 0);
    if (argument && !DecodeXmlRpcValue(*argument, type))
        quv::throwRefusal(noInt, Q_FUNC_INFO);
    if (!setConfigurationType(type))
        quv::throwRefusal(invalid, Q_FUNC_INFO);
}

GetConfigCmd::GetConfigCmd(QList<QVariant> list) : DescribedCommand(list) {}

GetConfigCmd *GetConfigCmd::clone() const
{
    return new GetConfigCmd(*this);
}

XmlRpc::XmlRpcValue GetConfigCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0] = m_parameters.isEmpty() ? defaultConfigurationType() : configurationType();
    return array;
}

bool GetConfigCmd::isAValidConfigurationType(int configurationType)
{
    return configurationType == 0 || configurationType == 1;
}

int GetConfigCmd::configurationType() const
{
    int type = noType;
    quv::decodeVariant(m_parameters.value(0), type);
    return type;
}

bool GetConfigCmd::setConfigurationType(int configurationType)
{
    if (!isAValidConfigurationType(configurationType))
        return false;
    m_parameters = {configurationType};
    return true;
}
