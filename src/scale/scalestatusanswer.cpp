// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/scalestatusanswer.h"

#include "base/describedanswer_p.h"

namespace {

constexpr char notConnected[] = "ScaleStatusAnswer failed: expected bool type parameter";

} // namespace

struct ScaleStatusAnswer::Description
{
    static std::vector<quv::Member<ScaleStatusAnswer>> members()
    {
        return {{connected_TAG,
                 &ScaleStatusAnswer::m_connected,
                 {"DE02359", notConnected},
                 {"DE02360", notConnected}}};
    }
};

template class quv::DescribedAnswer<ScaleStatusAnswer, ConfProtoAnswer>;

ScaleStatusAnswer::ScaleStatusAnswer(bool connected) : m_connected(connected) {}

ScaleStatusAnswer::ScaleStatusAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

ScaleStatusAnswer::ScaleStatusAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

ScaleStatusAnswer *ScaleStatusAnswer::clone() const
{
    return new ScaleStatusAnswer(*this);
}
