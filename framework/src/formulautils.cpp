// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/formula.h>
#include <QuvFramework/formulautils.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_error.h>
#include <QuvFramework/purgeformula.h>

bool FormulaUtils::buildPurgeFormula(const Formula &asked, Formula &built, const FW_Dispenser &dispenser,
                                     FW_DriverError *error)
{
    Formula byPosition;
    if (!asked.convertToCircuitPositions(byPosition, &dispenser, error))
        return false;
    // what names a circuit twice is added up there, where a negative quantity would escape whoever checks the purge
    built = asked.hasNegativeValues(&dispenser) ? asked : byPosition;
    return true;
}

bool FormulaUtils::buildPurgeFormula(const PurgeFormula &asked, Formula &built, const FW_Dispenser &dispenser,
                                     FW_DriverError *error)
{
    Formula formula;
    formula.setQuantityUnit(asked.quantityUnit());
    for (const FW_Circuit *circuit : asked.circuits(dispenser))
        formula.addItem({QString::number(circuit->positionId()), asked.quantity()});
    if (formula.isEmpty())
        return FW_DriverError::D_E(QStringLiteral("DE03024"),
                                   QStringLiteral("PurgeFormula: the dispenser has no circuit to purge"),
                                   error);
    built = formula;
    return true;
}
