// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/**
 * The answer to CHECK_FORMULA_LEVELS: the IDs of the canisters that the formula would bring below their critical level,
 * and of those below their warning level. Over XML-RPC a struct of two arrays of int.
 */
class QUVPROTOCOL_EXPORT CheckFormulaLevelsAnswer
    : public quv::DescribedAnswer<CheckFormulaLevelsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char canistersBelowCritical_TAG[] = "canisters_below_critical";
    static constexpr char canistersBelowWarning_TAG[] = "canisters_below_warning";

    CheckFormulaLevelsAnswer() = default;
    CheckFormulaLevelsAnswer(const QList<int> &belowCritical, const QList<int> &belowWarning);
    /** The two lists. Throws DE00456, DE00457. */
    explicit CheckFormulaLevelsAnswer(QList<QVariant> &list);
    /** Throws DE00460, DE00462 for a member that is no array, DE00459, DE00461 for an element that is no int. */
    explicit CheckFormulaLevelsAnswer(const XmlRpc::XmlRpcValue &value);

    CheckFormulaLevelsAnswer *clone() const override;

    const QList<int> &canistersBelowCritical() const { return m_canistersBelowCritical; }
    const QList<int> &canistersBelowWarning() const { return m_canistersBelowWarning; }

private:
    QList<int> m_canistersBelowCritical;
    QList<int> m_canistersBelowWarning;
};
