// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionstatusanswer.h"

#include "base/describedanswer_p.h"

namespace {

constexpr char invalid[] = "GetConnectionStatusAnswer decoding failed: invalid QVariant value";
constexpr char meaning[] = "-1 not used, 0 not connected, 1 connected";

} // namespace

struct GetConnectionStatusAnswer::Description
{
    static std::vector<quv::Member<GetConnectionStatusAnswer>> members()
    {
        using Answer = GetConnectionStatusAnswer;
        using Member = quv::Member<Answer>;
        constexpr quv::Refusal noSerial = {"DE01670", invalid};
        constexpr quv::Refusal noBluetooth = {"DE01671", invalid};
        constexpr quv::Refusal noScale = {"DE01672", invalid};
        return {
            Member(serialConnectionStatus_TAG, &Answer::m_serial, noSerial, noSerial).meaning(meaning),
            Member(btConnectionStatus_TAG, &Answer::m_bluetooth, noBluetooth, noBluetooth).meaning(meaning),
            Member(scaleConnectionStatus_TAG, &Answer::m_scale, noScale, noScale).meaning(meaning)};
    }
};

template class quv::DescribedAnswer<GetConnectionStatusAnswer, ConfProtoAnswer>;

GetConnectionStatusAnswer::GetConnectionStatusAnswer(ConnectionStatus serial, ConnectionStatus bluetooth,
                                                     ConnectionStatus scale)
    : m_serial(static_cast<int>(serial)),
      m_bluetooth(static_cast<int>(bluetooth)),
      m_scale(static_cast<int>(scale))
{}

GetConnectionStatusAnswer::GetConnectionStatusAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

GetConnectionStatusAnswer::GetConnectionStatusAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetConnectionStatusAnswer *GetConnectionStatusAnswer::clone() const
{
    return new GetConnectionStatusAnswer(*this);
}
