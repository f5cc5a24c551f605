// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QuvFramework/formula.h>

/** The answer to GET_LOW_LEVEL_FORMULA: the formula in the machine's own terms. Over XML-RPC a struct with one member. */
class QUVPROTOCOL_EXPORT GetLowLevelFormulaAnswer
    : public quv::DescribedAnswer<GetLowLevelFormulaAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char formula_TAG[] = "low_level_formula";

    GetLowLevelFormulaAnswer() = default;
    explicit GetLowLevelFormulaAnswer(const Formula &formula);
    explicit GetLowLevelFormulaAnswer(
        QList<QVariant> &list); ///< a Formula as the first element; throws DE00902
    explicit GetLowLevelFormulaAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE00904

    GetLowLevelFormulaAnswer *clone() const override;

    const Formula &formula() const { return m_formula; }

private:
    Formula m_formula;
};
