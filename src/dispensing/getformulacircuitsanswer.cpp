// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/getformulacircuitsanswer.h"

#include "base/describedanswer_p.h"

struct GetFormulaCircuitsAnswer::Description
{
    using Answer = GetFormulaCircuitsAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {
            quv::Member<Answer>(
                circuitIDs_TAG, &Answer::m_circuitIDs,
                {"DE00717", "GetFormulaCircuitsAnswer: Errors during Circuits ID list creation"},
                {"DE00713", "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list "
                            "of circuit IDs)"})
                .element({"DE00716", "Circuit ID: expected INT parameter"})
                .meaning("circuit IDs"),
            quv::Member<Answer>(
                positionIDs_TAG, &Answer::m_positionIDs,
                {"DE00719", "GetFormulaCircuitsAnswer: Errors during Positions ID list creation"},
                {"DE00714", "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list "
                            "of position IDs)"})
                .element({"DE00718", "Position ID: expected INT parameter"})
                .meaning("the position of each circuit"),
            quv::Member<Answer>(
                quantities_TAG, &Answer::m_quantities,
                {"DE01234", "GetFormulaCircuitsAnswer: Errors during quantities list creation"},
                {"DE01232", "GetFormulaCircuitsAnswer decoding failed: invalid QVariant value (expected list "
                            "of quantities)"})
                .element({"DE01233", "Quantity: expected DOUBLE parameter"})
                .meaning("what each circuit pours, in the formula's own unit")};
    }
};

template class quv::DescribedAnswer<GetFormulaCircuitsAnswer, ConfProtoAnswer>;

GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(const QList<int> &circuitIDs,
                                                   const QList<int> &positionIDs,
                                                   const QList<double> &quantities)
    : m_circuitIDs(circuitIDs),
      m_positionIDs(positionIDs),
      m_quantities(quantities)
{}

GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    read(list, Q_FUNC_INFO);
}

GetFormulaCircuitsAnswer::GetFormulaCircuitsAnswer(const XmlRpc::XmlRpcValue &value)
{
    read(value, Q_FUNC_INFO);
}

GetFormulaCircuitsAnswer *GetFormulaCircuitsAnswer::clone() const
{
    return new GetFormulaCircuitsAnswer(*this);
}
