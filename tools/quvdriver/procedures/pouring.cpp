// SPDX-License-Identifier: LGPL-3.0-or-later
#include "procedures/pouring.h"

#include "machines/refusal.h"
#include "procedures/amounts.h"
#include "procedures/waiting.h"
#include "quantities.h"

#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "status/dispenserstatusanswer.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>

namespace quv {
namespace {

/// Takes the steps of one circuit from its canister. What a circuit without a calibration poured, nobody can tell.
void takeSteps(FW_Dispenser &dispenser, const FormulaItem &item)
{
    const FW_Circuit *circuit = std::as_const(dispenser).getCircuitByPosition(item.id.toInt());
    const FW_Canister *canister = circuit ? dispenser.getCanisterOfCircuitID(circuit->id()) : nullptr;
    if (!canister)
        return;
    const auto quantity = quantityOf(static_cast<qint64>(item.quantity), *circuit, Formula::WeightOrVolume);
    if (quantity) {
        FW_Canister *changed = dispenser.getCanisterById(canister->id());
        changed->setCurrentQuantity(std::max(changed->currentQuantity() - *quantity, 0.0));
    }
}

FW_ErrorList levelsAsTheyWere(const QString &reason)
{
    FW_ErrorList errors;
    errors.append(FW_DriverError(
        QStringLiteral("DE03117"),
        QStringLiteral("The firmware does not tell what it poured, so the levels are as they were: %1")
            .arg(reason)));
    return errors;
}

/// What of the formula a circuit pours, in the words of who asked: of "B" 4 of 10.
QString pouredInWords(const ProtoCommand &command, int position, qint64 poured)
{
    const std::optional<Formula> formula = pouredFormula(command);
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(command.machine());
    const FW_Circuit *circuit = dispenser ? dispenser->getCircuitByPosition(position) : nullptr;
    if (!formula || !circuit)
        return QStringLiteral("position %1").arg(position);
    const std::vector<Amount> amounts = amountsOf(*formula, *dispenser);
    const auto amount = std::find_if(amounts.begin(), amounts.end(), [position](const Amount &candidate) {
        return candidate.position == position;
    });
    const auto quantity = quantityOf(poured, *circuit, formula->quantityUnit());
    if (amount == amounts.end() || !quantity)
        return QStringLiteral("position %1").arg(position);
    const QString name = nameInWords(amount->asked.id, formula->formulaType());
    return formula->quantityUnit() == Formula::Steps
               ? name
               : QStringLiteral("%1 %2 of %3, in steps")
                     .arg(name, quantityInWords(*quantity), quantityInWords(amount->asked.quantity));
}

/// A pack and an air purge move the pumps, and nothing is to leave the nozzles.
bool isToPour(const QString &name)
{
    return name != ProtoCommandList::cmdStr(ProtoCommandList::PACK) &&
           name != ProtoCommandList::cmdStr(ProtoCommandList::PACK2) &&
           name != ProtoCommandList::cmdStr(ProtoCommandList::AIRPURGE);
}

FW_ErrorList lessThanAsked(const ProtoCommand &command, const GetDispensedFormulaAnswer &report)
{
    FW_ErrorList errors;
    if (!isToPour(command.command()))
        return errors;
    for (const FormulaItem &total : report.totalFormula().items()) {
        const double poured = quantityIn(report.dispensedFormula(), total.id);
        if (poured < total.quantity)
            errors.append(FW_DriverError(
                QStringLiteral("DE03142"),
                QStringLiteral("Less was poured than asked: %1 %2 of %3")
                    .arg(pouredInWords(command, total.id.toInt(), static_cast<qint64>(poured)),
                         QString::number(poured, 'f', 0), QString::number(total.quantity, 'f', 0))));
    }
    return errors;
}

/// What others can be told of it.
RunningPour describedPour(const ProcedureRun &run)
{
    RunningPour pour;
    pour.command = run.command.command();
    pour.progress = run.progress;
    pour.formula = formulaOf(run.command).value_or(Formula());
    if (pour.command == ProtoCommandList::cmdStr(ProtoCommandList::CHANNEL_TINT))
        pour.channel = run.command.parameters().value(0).toInt();
    return pour;
}

/// What the machine tells when it pours no more.
struct PourEnd
{
    bool isInterrupted = false;
    bool isReset = false; ///< it resets, which forgets an interruption
};

PourEnd waitForEndOfPour(const ProcedureRun &run)
{
    PourEnd end;
    const auto hasEnded = [&end](const MachineStatusAnswer &status) {
        const auto &answer = dynamic_cast<const DispenserStatusAnswer &>(status);
        end = {answer.formula_interrupted, answer.resetting};
        return !answer.tinting;
    };
    WaitRules rules;
    rules.expected = run.progress->expected();
    if (waitUntil(hasEnded, run.machine, rules, run.isDriverGoing) == WaitEnd::Stopped)
        run.requireToGoOn();
    return end;
}

/// What is told of the report, which lowers the levels. \a isLess tells whether something was not poured.
FW_ErrorList takePourFromLevels(const ProcedureRun &run, bool &isLess)
{
    const auto reply =
        askPatiently(run.machine, ProtoCommandList::GET_DISPENSED_FORMULA, 0, run.isDriverGoing);
    if (!reply)
        run.requireToGoOn();
    if (reply->refused)
        return levelsAsTheyWere(QStringLiteral("it refuses to"));
    try {
        const GetDispensedFormulaAnswer report(reply->tokens);
        const Formula &poured = report.dispensedFormula();
        run.machine.change([&poured](FW_Dispenser &dispenser) {
            for (const FormulaItem &item : poured.items())
                takeSteps(dispenser, item);
        });
        FW_ErrorList lacking = lessThanAsked(run.command, report);
        isLess = !lacking.isEmpty();
        return lacking;
    } catch (const FW_Exception &error) {
        return levelsAsTheyWere(error.text());
    }
}

} // namespace

bool isPour(const QString &command)
{
    return ProtoCommandList::erogationCommand(command) && ProtoCommandList::targetIsDispenser(command);
}

FW_ErrorList pour(ProcedureRun &run)
{
    // before the machine's status can tell anybody that it pours
    run.machine.setRunningPour(describedPour(run));
    run.begin(dynamic_cast<SerialProtoCommand &>(run.command));
    const PourEnd end = waitForEndOfPour(run);
    bool isLess = false;
    FW_ErrorList told = takePourFromLevels(run, isLess);
    // What was stopped, or came to a reset, may have been at its end already.
    const bool isCutShort = isLess && (end.isReset || run.stopped.hasBegun());
    if (!end.isInterrupted && !isCutShort)
        return told;
    FW_ErrorList errors;
    errors.append(FW_DriverError(QStringLiteral("DE03411"),
                                 QStringLiteral("%1 was stopped; the levels are lowered by what was poured")
                                     .arg(run.command.command())));
    errors.append(told);
    throw CallRefusal(Interrupted, errors);
}

} // namespace quv
