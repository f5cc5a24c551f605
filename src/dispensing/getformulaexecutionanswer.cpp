// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulaexecutionanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"

namespace quv {

template <>
inline constexpr const char *markOf<FormulaProgress> = FormulaProgress::CHANNELS;
template <>
inline constexpr const char *nameOf<FormulaProgress> = "formula progress";

template <>
const FieldType &fieldType<FormulaProgress>()
{
    static constexpr FieldType type = objectType<FormulaProgress>();
    return type;
}

} // namespace quv

struct GetFormulaExecutionAnswer::Description
{
    using Answer = GetFormulaExecutionAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    formulaProgress_TAG, &Answer::m_formulaProgress,
                    {"DE02936",
                     "GetFormulaExecutionAnswer failed: expected FormulaProgress type for first parameter"},
                    {"DE02935", "GetFormulaExecutionAnswer decoding failed: invalid QVariant value (expected "
                                "FormulaProgress type)"})
                    .meaning("how far each channel is")};
    }
};

template class quv::DescribedAnswer<GetFormulaExecutionAnswer, ConfProtoAnswer>;

GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(const FormulaProgress &progress)
    : m_formulaProgress(progress)
{}

GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetFormulaExecutionAnswer::GetFormulaExecutionAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetFormulaExecutionAnswer *GetFormulaExecutionAnswer::clone() const
{
    return new GetFormulaExecutionAnswer(*this);
}
