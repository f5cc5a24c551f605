// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotoanswer.h"
#include "commandrefusederror.h"

/**
 * What the firmware answers to a command that it refuses, in place of that command's own answer. The driver builds it when
 * isAnErrorAnswer holds for the raw text of the answer. Over XML-RPC a struct of one struct of flags, which clients do not
 * read.
 */
class QUVPROTOCOL_EXPORT CommandRefusedAnswer : public SerialProtoAnswer
{
public:
    static constexpr char commandRefusedError_TAG[] = "cmd_refused_error";

    CommandRefusedAnswer() = default;
    explicit CommandRefusedAnswer(const XmlRpc::XmlRpcValue &value); ///< cleared
    /**
     * Six parameters, of which the first two are the masks of reasons. Throws DE00063 (fewer parameters), DE00173 (no reason),
     * DE00065 (anything unforeseen), or what CommandRefusedError and SerialProtoAnswer throw.
     */
    explicit CommandRefusedAnswer(QStringList tokens);

    CommandRefusedAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override; ///< a refusal for the same reasons
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    void clear();

    const CommandRefusedError &commandRefusedError() const { return m_error; }

    /** True when the raw text of an answer, as it came over the serial link, is that of a refusal. */
    static bool isAnErrorAnswer(QString answer);

private:
    CommandRefusedError m_error;
};
