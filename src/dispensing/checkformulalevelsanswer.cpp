// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/checkformulalevelsanswer.h"

#include "base/describedanswer_p.h"

struct CheckFormulaLevelsAnswer::Description
{
    using Answer = CheckFormulaLevelsAnswer;

    static constexpr char noCanister[] = "Canister ID: expected INT parameter";

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(
                canistersBelowCritical_TAG, &Answer::m_canistersBelowCritical,
                {"DE00460", "CheckFormulaLevelsAnswer: Errors during Canister below critical list creation"},
                {"DE00456", "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list "
                            "of canister below critical)"})
                .element({"DE00459", noCanister})
                .meaning("canister IDs"),
            quv::Member<Answer>(
                canistersBelowWarning_TAG, &Answer::m_canistersBelowWarning,
                {"DE00462", "CheckFormulaLevelsAnswer: Errors during Canister below warning list creation"},
                {"DE00457", "CheckFormulaLevelsAnswer decoding failed: invalid QVariant value (expected list "
                            "of canister below warning)"})
                .element({"DE00461", noCanister})
                .meaning("canister IDs")};
    }
};

template class quv::DescribedAnswer<CheckFormulaLevelsAnswer, ConfProtoAnswer>;

CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(const QList<int> &belowCritical,
                                                   const QList<int> &belowWarning)
    : m_canistersBelowCritical(belowCritical),
      m_canistersBelowWarning(belowWarning)
{}

CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

CheckFormulaLevelsAnswer::CheckFormulaLevelsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

CheckFormulaLevelsAnswer *CheckFormulaLevelsAnswer::clone() const
{
    return new CheckFormulaLevelsAnswer(*this);
}
