// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/** The answer to GET_KEY: the driver's public value, the member "driver_key" of a struct. */
class QUVPROTOCOL_EXPORT GetKeyAnswer : public quv::DescribedAnswer<GetKeyAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char driverKey_TAG[] = "driver_key";

    GetKeyAnswer() = default;
    explicit GetKeyAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE00908 without the member
    explicit GetKeyAnswer(QList<QVariant> &list);            ///< a string; throws DE00908 without one

    GetKeyAnswer *clone() const override;

    QString driverKey() const { return m_driverKey; }
    // For the driver; both take a text, and leave the key alone for anything else.
    void setDriverKey(const QVariant &driverKey);
    void setDriverKey(const XmlRpc::XmlRpcValue &driverKey);

private:
    QString m_driverKey;
};
