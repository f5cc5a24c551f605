// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protoanswer.h"

/** An answer of the driver itself; a plain one keeps the values that it was made of. */
class QUVPROTOCOL_EXPORT ConfProtoAnswer : public ProtoAnswer
{
public:
    ConfProtoAnswer();
    explicit ConfProtoAnswer(QList<QVariant> &list); ///< keeps the list
    explicit ConfProtoAnswer(
        const XmlRpc::XmlRpcValue &value);               ///< keeps nothing of the value; throws DE00909
    explicit ConfProtoAnswer(const ProtoAnswer &answer); ///< keeps the type only
    ConfProtoAnswer(const ConfProtoAnswer &) = default;
    ConfProtoAnswer &operator=(const ConfProtoAnswer &) = default;

    ConfProtoAnswer *clone() const override;

    void clearConfProtoAnswer() { m_parameters.clear(); }

protected:
    QList<QVariant> m_parameters;
};
