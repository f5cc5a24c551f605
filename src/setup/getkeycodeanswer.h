// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/**
 * The answer to GET_KEY_CODE: the text that identifies the machine, the member "key_code" of a struct. The firmware's tokens never
 * become one: the driver makes it of what GET_DISP_INFO gives for the type 6.
 */
class QUVPROTOCOL_EXPORT GetKeyCodeAnswer : public quv::DescribedAnswer<GetKeyCodeAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char keyCode_TAG[] = "key_code";

    GetKeyCodeAnswer() = default;
    explicit GetKeyCodeAnswer(const QString &keyCode);
    explicit GetKeyCodeAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE01769 without the member
    explicit GetKeyCodeAnswer(QList<QVariant> &list);            ///< a string; throws DE01768 without one
    explicit GetKeyCodeAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GetKeyCodeAnswer(int) = delete;
    explicit GetKeyCodeAnswer(double) = delete;
    explicit GetKeyCodeAnswer(const char *) = delete;

    GetKeyCodeAnswer *clone() const override;

    QString keyCode() const { return m_keyCode; }

private:
    QString m_keyCode;
};
