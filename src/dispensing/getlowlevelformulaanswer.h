// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/confprotoanswer.h"

#include <QuvFramework/formula.h>

/** The answer to GET_LOW_LEVEL_FORMULA: the formula in the machine's own terms. Over XML-RPC a struct with one member. */
class QUVPROTOCOL_EXPORT GetLowLevelFormulaAnswer : public ConfProtoAnswer
{
public:
    static constexpr char formula_TAG[] = "low_level_formula";

    GetLowLevelFormulaAnswer() = default;
    explicit GetLowLevelFormulaAnswer(const Formula &formula);
    explicit GetLowLevelFormulaAnswer(
        QList<QVariant> &list); ///< a Formula as the first element; throws DE00902
    explicit GetLowLevelFormulaAnswer(const XmlRpc::XmlRpcValue &value); ///< throws DE00904

    GetLowLevelFormulaAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

    bool operator==(const GetLowLevelFormulaAnswer &other) const { return m_formula == other.m_formula; }
    bool operator!=(const GetLowLevelFormulaAnswer &other) const { return !(*this == other); }

    const Formula &formula() const { return m_formula; }

private:
    Formula m_formula;
};
