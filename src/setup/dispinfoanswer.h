// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/** The answer to GET_DISP_INFO: a text about the machine that its firmware keeps, the member "value" of a struct. */
class QUVPROTOCOL_EXPORT DispInfoAnswer : public quv::DescribedAnswer<DispInfoAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char value_TAG[] = "value";

    DispInfoAnswer() = default;
    explicit DispInfoAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE00302 without the member
    /**
     * The Latin-1 code of each character. A first parameter that is \a infoType, the type that was asked for, is passed over.
     * Throws DE00453 for a parameter that is no such code, and what SerialProtoAnswer throws.
     */
    explicit DispInfoAnswer(QStringList tokens, int infoType = 0);
    explicit DispInfoAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DispInfoAnswer(int) = delete;
    explicit DispInfoAnswer(double) = delete;
    explicit DispInfoAnswer(const char *) = delete;

    DispInfoAnswer *clone() const override;

    QString value() const { return m_value; }

private:
    QString m_value;
};
