// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

#include <QuvFramework/formulaprogress.h>

/** The answer to GET_FORMULA_EXECUTION: how far each channel is. Over XML-RPC a struct with one member. */
class QUVPROTOCOL_EXPORT GetFormulaExecutionAnswer
    : public quv::DescribedAnswer<GetFormulaExecutionAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char formulaProgress_TAG[] = "frm_progress";

    GetFormulaExecutionAnswer() = default;
    explicit GetFormulaExecutionAnswer(const FormulaProgress &progress);
    /** A FormulaProgress as the first element; throws DE02935. */
    explicit GetFormulaExecutionAnswer(QList<QVariant> &list);
    explicit GetFormulaExecutionAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE02936

    GetFormulaExecutionAnswer *clone() const override;

    const FormulaProgress &formulaProgress() const { return m_formulaProgress; }

private:
    FormulaProgress m_formulaProgress;
};
