// SPDX-License-Identifier: LGPL-3.0-or-later
#include "pouring.h"

#include "refusal.h"

#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "status/dispenserstatusanswer.h"

#include <QuvFramework/fw_exception.h>

#include <algorithm>

namespace quv {
namespace {

FirmwareReply ask(DrivenMachine &machine, ProtoCommandList::CommandListValue question)
{
    return machine.exchange(ProtoCommandList::cmdCode(ProtoCommandList::cmdStr(question), machine.family()),
                            0, {});
}

bool isPouring(DrivenMachine &machine)
{
    const FirmwareReply reply = ask(machine, ProtoCommandList::GET_STATUS);
    if (reply.refused)
        return false; // it pours nothing that anybody could be told of
    try {
        return DispenserStatusAnswer(reply.tokens).tinting;
    } catch (const FW_Exception &error) {
        throw CallRefusal{InvalidSerialAnswer, FW_DriverError(error.code(), error.text())};
    }
}

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

void waitForEndOfPour(DrivenMachine &machine, qint64 expected, const Ending &ending)
{
    constexpr qint64 Shortest = 5;
    constexpr qint64 Longest = 100;
    const std::chrono::milliseconds interval(std::clamp(expected / 50, Shortest, Longest));
    while (isPouring(machine)) {
        if (!ending.wait(interval))
            refuse(Interrupted, "DE03116",
                   QStringLiteral("The driver ends before the command has; the machine goes on by itself"));
    }
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
