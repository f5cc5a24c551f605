// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include "machinewatch.h"

#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"

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
    bool isKnown = false;
    const double quantity = circuit->calibration().quantity(static_cast<long long>(item.quantity), &isKnown);
    if (isKnown) {
        FW_Canister *changed = dispenser.getCanisterById(canister->id());
        changed->setCurrentQuantity(std::max(changed->currentQuantity() - quantity, 0.0));
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

} // namespace

RunningPour describedPour(const ProtoCommand &command, qint64 expected)
{
    RunningPour pour;
    pour.command = command.command();
    pour.progress = Progress(expected);
    const QList<QVariant> parameters = command.parameters();
    for (const QVariant &parameter : parameters) {
        if (parameter.userType() == qMetaTypeId<Formula>())
            pour.formula = parameter.value<Formula>();
    }
    if (pour.command == ProtoCommandList::cmdStr(ProtoCommandList::CHANNEL_TINT))
        pour.channel = parameters.value(0).toInt();
    return pour;
}

FW_ErrorList takePourFromLevels(DrivenMachine &machine)
{
    const FirmwareReply reply = ask(machine, ProtoCommandList::GET_DISPENSED_FORMULA);
    if (reply.refused)
        return levelsAsTheyWere(QStringLiteral("it refuses to"));
    try {
        const Formula poured = GetDispensedFormulaAnswer(reply.tokens).dispensedFormula();
        machine.change([&poured](FW_Dispenser &dispenser) {
            for (const FormulaItem &item : poured.items())
                takeSteps(dispenser, item);
        });
        if (!poured.isEmpty())
            machine.setTablePosition(poured.items().constLast().id.toInt());
    } catch (const FW_Exception &error) {
        return levelsAsTheyWere(error.text());
    }
    return {};
}

} // namespace quv
