// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"

#include <QuvFramework/formula.h>

/**
 * The answer to GET_DISPENSED_FORMULA: what was dispensed of a formula, what remains, and the whole. Over XML-RPC a struct
 * of three formulas; the firmware tells two and never what remains.
 */
class QUVPROTOCOL_EXPORT GetDispensedFormulaAnswer
    : public quv::DescribedAnswer<GetDispensedFormulaAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char dispensedFormula_TAG[] = "dispensed_formula";
    static constexpr char remainingFormula_TAG[] = "remaining_formula";
    static constexpr char totalFormula_TAG[] = "total_formula";

    GetDispensedFormulaAnswer() = default;
    GetDispensedFormulaAnswer(const Formula &dispensed, const Formula &remaining, const Formula &total);
    /**
     * Tokens: execution criterion and number of circuits, then for each circuit its position, its queue, and the steps of
     * the whole and those dispensed, each as a number of digits and base-246 digits. The formulas are by position and
     * in steps. Throws DE01698, DE01699, DE01701 to DE01708 for tokens that are not that, DE01709 for what no formula
     * can hold, and what SerialProtoAnswer throws.
     */
    explicit GetDispensedFormulaAnswer(QStringList tokens);
    /** Dispensed, remaining, total. Throws DE01719 (not three), DE01716, DE01531, DE01718. */
    explicit GetDispensedFormulaAnswer(QList<QVariant> &list);
    /** Throws DE01711, DE01713, DE01715 (member missing), DE01710, DE01712, DE01714 (no formula). */
    explicit GetDispensedFormulaAnswer(const XmlRpc::XmlRpcValue &value);

    GetDispensedFormulaAnswer *clone() const override;
    void setDefaults();

    const Formula &dispensedFormula() const { return m_dispensedFormula; }
    const Formula &remainingFormula() const { return m_remainingFormula; }
    const Formula &totalFormula() const { return m_totalFormula; }

private:
    Formula m_dispensedFormula;
    Formula m_remainingFormula;
    Formula m_totalFormula;
};
