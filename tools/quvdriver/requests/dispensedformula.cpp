// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/dispensedformula.h"

#include "machines/drivenmachine.h"
#include "machines/refusal.h"
#include "procedures/amounts.h"
#include "quantities.h"

#include "base/protocommand.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/getdispensedformulacmdbase.h"

namespace quv {
namespace {

[[noreturn]] void refuseToTell(const QString &position, const char *as)
{
    refuse(InvalidRequest, "DE03143",
           QStringLiteral("What the circuit at position %1 poured cannot be told in %2")
               .arg(position, QLatin1String(as)));
}

/// Asks a machine's circuits for the names and amounts of a formula.
class Teller
{
public:
    Teller(const GetDispensedFormulaCmdBase &asked, const FW_Dispenser &dispenser)
        : m_type(asked.formulaType()),
          m_unit(asked.quantityUnit()),
          m_dispenser(dispenser)
    {}

    Formula told(const Formula &bySteps) const;

private:
    QString nameOf(const QString &position, const FW_Circuit &circuit) const;
    FormulaItem told(const FormulaItem &item) const;

    int m_type = 0;
    int m_unit = 0;
    const FW_Dispenser &m_dispenser;
};

QString Teller::nameOf(const QString &position, const FW_Circuit &circuit) const
{
    if (m_type == Formula::CircuitPositions)
        return position;
    if (m_type == Formula::CircuitIDs)
        return QString::number(circuit.id());
    const FW_Canister *canister = m_dispenser.getCanisterOfCircuitID(circuit.id());
    if (!canister)
        refuseToTell(position, "canisters");
    if (m_type == Formula::CanisterIDs)
        return QString::number(canister->id());
    if (canister->colorantCode().isEmpty())
        refuseToTell(position, "colorants");
    return canister->colorantCode();
}

FormulaItem Teller::told(const FormulaItem &item) const
{
    const FW_Circuit *circuit = m_dispenser.getCircuitByPosition(item.id.toInt());
    if (!circuit)
        refuseToTell(item.id, "other terms, since the driver does not know the circuit");
    const auto quantity = quantityOf(static_cast<qint64>(item.quantity), *circuit, m_unit);
    if (!quantity)
        refuseToTell(item.id, m_unit == Formula::Strokes ? "strokes" : "weight or volume");
    FormulaItem told = item;
    told.id = nameOf(item.id, *circuit);
    told.quantity = *quantity;
    return told;
}

Formula Teller::told(const Formula &bySteps) const
{
    Formula formula = bySteps;
    formula.setFormulaType(m_type);
    formula.setQuantityUnit(m_unit);
    formula.setItems({});
    for (const FormulaItem &item : bySteps.items())
        formula.addItem(told(item));
    return addedUp(formula);
}

} // namespace

void answerAsAsked(ProtoCommand &command, const DrivenMachine &machine)
{
    const auto &asked = dynamic_cast<const GetDispensedFormulaCmdBase &>(command);
    const auto &report = dynamic_cast<const GetDispensedFormulaAnswer &>(*command.getProtoAnswer());
    const std::unique_ptr<FW_Machine> copy = machine.copy();
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(copy.get());
    if (!dispenser ||
        (asked.formulaType() == Formula::CircuitPositions && asked.quantityUnit() == Formula::Steps))
        return;
    const Teller teller(asked, *dispenser);
    GetDispensedFormulaAnswer answer(teller.told(report.dispensedFormula()), report.remainingFormula(),
                                     teller.told(report.totalFormula()));
    command.setProtoAnswer(&answer);
}

} // namespace quv
