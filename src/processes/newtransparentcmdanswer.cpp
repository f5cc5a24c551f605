// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/newtransparentcmdanswer.h"

#include "base/describedanswer_p.h"
#include "base/tokens_p.h"

#include <utility>

namespace {

constexpr char noParameters[] = "NewTransparentCmdAnswer: expected parameters value";

} // namespace

struct NewTransparentCmdAnswer::Description
{
    using Answer = NewTransparentCmdAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(parameters_TAG, &Answer::m_answerParameters, {"DE03187", noParameters},
                                    {"DE03188", noParameters})
                    .meaning("what the board answered")};
    }
};

template class quv::DescribedAnswer<NewTransparentCmdAnswer, SerialProtoAnswer>;

NewTransparentCmdAnswer::NewTransparentCmdAnswer(const QList<int> &parameters)
    : m_answerParameters(parameters)
{}

NewTransparentCmdAnswer::NewTransparentCmdAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    quv::TokenReader reader(m_parameters, 0, Q_FUNC_INFO);
    while (!reader.atEnd())
        m_answerParameters.append(
            reader.next({"DE03186", "NewTransparentCmdAnswer: expected a hexadecimal number"}));
}

NewTransparentCmdAnswer::NewTransparentCmdAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

NewTransparentCmdAnswer::NewTransparentCmdAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

NewTransparentCmdAnswer *NewTransparentCmdAnswer::clone() const
{
    return new NewTransparentCmdAnswer(*this);
}
