// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

/** The answer to DEEP_SERVICE: what the board answered to the command that was handed through to it. */
class QUVPROTOCOL_EXPORT NewTransparentCmdAnswer
    : public quv::DescribedAnswer<NewTransparentCmdAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char parameters_TAG[] = "parameters";

    NewTransparentCmdAnswer() = default;
    explicit NewTransparentCmdAnswer(const QList<int> &parameters);
    /** All tokens behind the length. Throws DE03186 for one that is no number, and what SerialProtoAnswer throws. */
    explicit NewTransparentCmdAnswer(QStringList tokens);
    explicit NewTransparentCmdAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE03187 without the member
    /** The list of numbers as the first element. Throws DE03188 without it. */
    explicit NewTransparentCmdAnswer(QList<QVariant> &list);

    NewTransparentCmdAnswer *clone() const override;

    const QList<int> &parameters() const { return m_answerParameters; } ///< as the board numbers them

private:
    QList<int> m_answerParameters;
};
