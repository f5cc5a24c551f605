// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/turntablepurgeformulacmd.h"

#include "dispensing/formula_p.h"

TurntablePurgeFormulaCmd::TurntablePurgeFormulaCmd(const Formula &formula, int currentPosition,
                                                   const FW_Dispenser *dispenser)
    : PurgeFormulaCmd(formula, dispenser),
      m_currentPosition(currentPosition)
{}

TurntablePurgeFormulaCmd::TurntablePurgeFormulaCmd(const XmlRpc::XmlRpcValue &value, int currentPosition,
                                                   const FW_Dispenser *dispenser)
    : PurgeFormulaCmd(value, dispenser),
      m_currentPosition(currentPosition)
{}

TurntablePurgeFormulaCmd::TurntablePurgeFormulaCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : PurgeFormulaCmd(list, dispenser)
{
    if (!quv::convertVariant(list.constLast(), m_currentPosition))
        throw FW_Exception("DE01727", "TurntablePurgeFormulaCmd failed: expected current position parameter",
                           Q_FUNC_INFO);
}

TurntablePurgeFormulaCmd *TurntablePurgeFormulaCmd::clone() const
{
    return new TurntablePurgeFormulaCmd(*this);
}

QList<QVariant> TurntablePurgeFormulaCmd::parameters() const
{
    return PurgeFormulaCmd::parameters() << m_currentPosition;
}

QList<int> TurntablePurgeFormulaCmd::serialParameters(int) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        return {};
    qCDebug(quv::dispensingLog).noquote() << m_formula.toPrintableString(false, m_currentPosition, dispenser);
    CircuitFormulaItemList items;
    if (!m_formula.getCircuitFormulaItems(items, m_currentPosition, dispenser, nullptr))
        return {};
    return quv::pourParameters(*this, m_formula, items, true);
}
