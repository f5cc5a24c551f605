// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getlowlevelformulaanswer.h"

#include "base/describedanswer_p.h"
#include "dispensing/formulafield_p.h"

struct GetLowLevelFormulaAnswer::Description
{
    using Answer = GetLowLevelFormulaAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(
                    formula_TAG, &Answer::m_formula,
                    {"DE00904", "GetLowLevelFormulaAnswer failed: expected Formula type for first parameter"},
                    {"DE00902", "GetLowLevelFormulaAnswer decoding failed: invalid QVariant value (expected "
                                "Formula type)"})
                    .meaning("in the machine's own terms")};
    }
};

template class quv::DescribedAnswer<GetLowLevelFormulaAnswer, ConfProtoAnswer>;

GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(const Formula &formula) : m_formula(formula) {}

GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetLowLevelFormulaAnswer::GetLowLevelFormulaAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetLowLevelFormulaAnswer *GetLowLevelFormulaAnswer::clone() const
{
    return new GetLowLevelFormulaAnswer(*this);
}
