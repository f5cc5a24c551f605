// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protoanswer.h"

#include <QtCore/QStringList>

/** An answer of the machine's firmware; a plain one keeps the tokens that it was made of. */
class QUVPROTOCOL_EXPORT SerialProtoAnswer : public ProtoAnswer
{
public:
    SerialProtoAnswer();
    /**
     * Hexadecimal tokens: the number of parameters, then at least as many parameters; all that follow are kept.
     * Throws DE00076 (no token), DE00070 (length not hexadecimal) or DE00077 (too few tokens).
     */
    SerialProtoAnswer(QStringList tokens);
    explicit SerialProtoAnswer(QList<QVariant> &list); ///< keeps nothing of the list
    explicit SerialProtoAnswer(
        const XmlRpc::XmlRpcValue &value);                 ///< keeps nothing of the value; throws DE00909
    explicit SerialProtoAnswer(const ProtoAnswer &answer); ///< keeps the type only
    SerialProtoAnswer(const SerialProtoAnswer &) = default;
    SerialProtoAnswer &operator=(const SerialProtoAnswer &) = default;

    SerialProtoAnswer *clone() const override;

    QStringList serialParameters() const { return m_parameters; } ///< the tokens after the length
    void clearSerialProtoAnswer() { m_parameters.clear(); }

protected:
    QStringList m_parameters;
};
