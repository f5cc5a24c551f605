// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/turntabletintcmd.h"

#include "dispensing/formula_p.h"

TurntableTintCmd::TurntableTintCmd(const Formula &formula, int currentPosition, const FW_Dispenser *dispenser)
    : TintCmd(formula, dispenser),
      m_currentPosition(currentPosition)
{}

TurntableTintCmd::TurntableTintCmd(const XmlRpc::XmlRpcValue &value, int currentPosition,
                                   const FW_Dispenser *dispenser)
    : TintCmd(value, dispenser),
      m_currentPosition(currentPosition)
{}

TurntableTintCmd::TurntableTintCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : TintCmd(list, dispenser)
{
    if (!quv::convertVariant(list.constLast(), m_currentPosition))
        throw FW_Exception("DE01697", "TurntableTintCmd failed: expected current position parameter",
                           Q_FUNC_INFO);
}

TurntableTintCmd *TurntableTintCmd::clone() const
{
    return new TurntableTintCmd(*this);
}

void TurntableTintCmd::setDefaults()
{
    m_currentPosition = 0;
}

QList<QVariant> TurntableTintCmd::parameters() const
{
    return TintCmd::parameters() << m_currentPosition;
}

QList<int> TurntableTintCmd::serialParameters(int) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, m_currentPosition, dispenser, nullptr))
        return {};
    return quv::pourParameters(*this, m_formula, items, false);
}

long long TurntableTintCmd::getCmdEstimatedExecutionTime(const FW_Machine *) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    CircuitFormulaItemList items;
    long long time = 0;
    if (!dispenser || !m_formula.getCircuitFormulaItems(items, m_currentPosition, dispenser, nullptr) ||
        !items.getEstimatedDosingTime(m_currentPosition, dispenser, time))
        return 0;
    return time;
}
