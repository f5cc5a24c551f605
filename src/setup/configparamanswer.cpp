// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/configparamanswer.h"

#include "base/describedanswer_p.h"
#include "setup/configparams_p.h"

struct ConfigParamAnswer::Description
{
    static std::vector<quv::Member<ConfigParamAnswer>> members()
    {
        return ConfigParams::Description::members<ConfigParamAnswer>();
    }
};

template class quv::DescribedAnswer<ConfigParamAnswer, ConfProtoAnswer>;

ConfigParamAnswer::ConfigParamAnswer(const QMap<QString, QVariant> &params) : ConfigParams(params) {}

ConfigParamAnswer::ConfigParamAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value),
      ConfigParams(value)
{}

ConfigParamAnswer::ConfigParamAnswer(QList<QVariant> &list) : DescribedAnswer(list), ConfigParams(list) {}

ConfigParamAnswer *ConfigParamAnswer::clone() const
{
    return new ConfigParamAnswer(*this);
}
