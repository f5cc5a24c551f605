// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "../base/describedanswer.h"

/**
 * The answer to GET_FORMULA_CIRCUITS: three parallel lists, the circuits that a formula uses, their positions, and how
 * much each pours. Over XML-RPC a struct of two arrays of int and one of double.
 */
class QUVPROTOCOL_EXPORT GetFormulaCircuitsAnswer
    : public quv::DescribedAnswer<GetFormulaCircuitsAnswer, ConfProtoAnswer>
{
public:
    struct Description;

    static constexpr char circuitIDs_TAG[] = "circuits";
    static constexpr char positionIDs_TAG[] = "positions";
    static constexpr char quantities_TAG[] = "quantities";

    GetFormulaCircuitsAnswer() = default;
    GetFormulaCircuitsAnswer(const QList<int> &circuitIDs, const QList<int> &positionIDs,
                             const QList<double> &quantities);
    /** The three lists. Throws DE00713, DE00714, DE01232. */
    explicit GetFormulaCircuitsAnswer(QList<QVariant> &list);
    /**
     * Throws DE00717, DE00719, DE01234 for a member that is no array, DE00716, DE00718, DE01233 for an element of another
     * type.
     */
    explicit GetFormulaCircuitsAnswer(const XmlRpc::XmlRpcValue &value);

    GetFormulaCircuitsAnswer *clone() const override;

    const QList<int> &circuitIDs() const { return m_circuitIDs; }
    const QList<int> &positionIDs() const { return m_positionIDs; }
    const QList<double> &quantities() const { return m_quantities; }

private:
    QList<int> m_circuitIDs;
    QList<int> m_positionIDs;
    QList<double> m_quantities;
};
