// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/getconfiganswer.h"

#include "base/describedanswer_p.h"
#include "setup/configurationfield_p.h"

namespace {

constexpr quv::Refusal emptyList = {"DE00368", "GetConfigAnswer decoding failed: invalid QVariant value"};

} // namespace

struct GetConfigAnswer::Description
{
    static std::vector<quv::Member<GetConfigAnswer>> members()
    {
        return {quv::Member<GetConfigAnswer>(configuration_TAG, &GetConfigAnswer::m_configuration,
                                             {"DE03363", "GetConfigAnswer: expected configuration value"},
                                             emptyList)
                    .meaning("\"machines\", each as its own struct, and the IDs of the active ones, "
                             "\"active_dispenser\" and \"active_mixer\"")};
    }
};

template class quv::DescribedAnswer<GetConfigAnswer, ConfProtoAnswer>;

GetConfigAnswer::GetConfigAnswer(const FW_Configuration &configuration) : m_configuration(configuration) {}

GetConfigAnswer::GetConfigAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetConfigAnswer::GetConfigAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    const QVariant &configuration = qAsConst(list).first();
    if (quv::holds<FW_Configuration>(configuration))
        m_configuration = configuration.value<FW_Configuration>();
}

GetConfigAnswer *GetConfigAnswer::clone() const
{
    return new GetConfigAnswer(*this);
}
