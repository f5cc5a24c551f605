// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** The answer to GET_HOST_INFO: the host on which the driver runs. */
class QUVPROTOCOL_EXPORT GetHostInfoAnswer : public quv::DescribedAnswer<GetHostInfoAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char hostName_TAG[] = "host_name";
    static constexpr char btRadioOn_TAG[] = "BT_radio_ON";

    GetHostInfoAnswer() = default;
    GetHostInfoAnswer(QString hostName, bool btRadioOn);
    explicit GetHostInfoAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE01927 (name), DE01928 (radio)
    explicit GetHostInfoAnswer(QList<QVariant> &list);            ///< throws DE01926 (name), DE01925 (radio)

    GetHostInfoAnswer *clone() const override;

    QString hostName() const { return m_hostName; }
    bool btRadioOn() const { return m_btRadioOn; } ///< whether its Bluetooth is switched on

private:
    QString m_hostName;
    bool m_btRadioOn = false;
};
