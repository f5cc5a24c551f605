// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protoanswer.h"

/** An answer of a scale; a plain one keeps the values that it was made of. */
class QUVPROTOCOL_EXPORT ScaleProtoAnswer : public ProtoAnswer
{
public:
    ScaleProtoAnswer();
    explicit ScaleProtoAnswer(QList<QVariant> &list); ///< keeps the list
    explicit ScaleProtoAnswer(
        const XmlRpc::XmlRpcValue &value);                ///< keeps nothing of the value; throws DE00909
    explicit ScaleProtoAnswer(const ProtoAnswer &answer); ///< keeps the type only
    ScaleProtoAnswer(const ScaleProtoAnswer &) = default;
    ScaleProtoAnswer &operator=(const ScaleProtoAnswer &) = default;

    ScaleProtoAnswer *clone() const override;

    virtual QList<QVariant> parameters() const; ///< nothing, unless a subclass has something to tell

    void clearScaleProtoAnswer() { m_parameters.clear(); }

protected:
    QList<QVariant> m_parameters;
};
