// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/driverqueries.h"

#include "excerpt.h"
#include "machines/refusal.h"
#include "procedures/pouring.h"
#include "requests/commandbuilder.h"
#include "requests/machinequeries.h"
#include "requests/masterdataqueries.h"

#include "base/getcmdestimatedexectimeanswer.h"
#include "base/getcmdestimatedexectimecmd.h"
#include "base/getcommandstatusanswer.h"
#include "base/getcommandstatuscmd.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/checkformulalevelsanswer.h"
#include "dispensing/getformulacircuitsanswer.h"
#include "dispensing/getformulaexecutionanswer.h"
#include "dispensing/getlowlevelformulaanswer.h"
#include "dispensing/setlevelscmd.h"

#include <QuvFramework/formulautils.h>
#include <QuvFramework/purgeformula.h>

#include <QtCore/QLocale>

#include <algorithm>
#include <array>
#include <limits>

namespace quv {
namespace {

using Answer = std::unique_ptr<ProtoAnswer>;
using Catalogue = ProtoCommandList;

struct Query
{
    Catalogue::CommandListValue name;
    bool needsMachine;
    Answer (*answer)(const ProtoCommand &command, const DriverKnowledge &knowledge);
};

/// The dispenser as it is now; its copy is the caller's.
FW_Dispenser dispenserOf(const DriverKnowledge &knowledge)
{
    const std::unique_ptr<FW_Machine> copy = knowledge.machine->copy();
    return dynamic_cast<const FW_Dispenser &>(*copy);
}

/// Passes on why a formula does not fit the dispenser.
void require(bool fits, const FW_DriverError &error)
{
    if (!fits)
        throw CallRefusal{InvalidRequest, error};
}

/// The formula of a command that takes a formula and whether it is a purge, or one purge by quantity.
Formula askedFormula(const ProtoCommand &command, const FW_Dispenser &dispenser)
{
    const QList<QVariant> parameters = command.parameters();
    FW_DriverError error;
    Formula formula;
    if (parameters.value(0).userType() == qMetaTypeId<PurgeFormula>()) {
        const auto asked = parameters.value(0).value<PurgeFormula>();
        require(FormulaUtils::buildPurgeFormula(asked, formula, dispenser, &error), error);
        return formula;
    }
    auto asked = parameters.value(0).value<Formula>();
    if (!parameters.value(1).toBool())
        return asked;
    require(FormulaUtils::buildPurgeFormula(asked, formula, dispenser, &error), error);
    return formula;
}

CircuitFormulaItemList circuitsOf(const Formula &formula, const FW_Dispenser &dispenser)
{
    CircuitFormulaItemList items;
    FW_DriverError error;
    require(formula.getCircuitFormulaItems(items, &dispenser, error), error);
    return items;
}

/// The same circuits in the same order, by what was asked for.
QVector<FormulaItem> positionsOf(const Formula &formula, const FW_Dispenser &dispenser)
{
    Formula byPosition;
    FW_DriverError error;
    require(formula.convertToCircuitPositions(byPosition, &dispenser, &error), error);
    return byPosition.items();
}

CanisterFormulaItemList canistersOf(const Formula &formula, const FW_Dispenser &dispenser)
{
    CanisterFormulaItemList items;
    FW_DriverError error;
    require(formula.getCanisterItems(&items, &dispenser, &error), error);
    return items;
}

Answer commandStatus(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const QString ticket = dynamic_cast<const GetCommandStatusCmd &>(command).ticketID();
    const auto status = knowledge.tickets.status(ticket);
    if (!status)
        refuse(
            InvalidRequest, "DE03111",
            QStringLiteral("There is no ticket \"%1\"; a result is kept for a minute, that of a pour for an "
                           "hour or until it has been read")
                .arg(excerpt(ticket)));
    return std::make_unique<GetCommandStatusAnswer>(*status);
}

Answer estimate(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const ProtoCommand *asked = dynamic_cast<const GetCmdEstimatedExecTimeCmd &>(command).commandToEstimate();
    std::unique_ptr<ProtoCommand> asPoured;
    if (isPour(asked->command())) {
        asPoured = buildCommand(asked->command(), asked->xmlrpc_parameters(), knowledge.machine);
        asked = asPoured.get();
    }
    return std::make_unique<GetCmdEstimatedExecTimeAnswer>(
        static_cast<long long>(estimatedTime(*asked, knowledge.machine)));
}

Answer checkLevels(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const FW_Dispenser dispenser = dispenserOf(knowledge);
    QList<int> belowCritical;
    QList<int> belowWarning;
    for (const CanisterFormulaItem &item : canistersOf(askedFormula(command, dispenser), dispenser)) {
        const double level = item.currentQuantity() - item.quantity();
        if (level < item.reserveQuantity())
            belowCritical.append(item.id());
        else if (level < item.warningQuantity())
            belowWarning.append(item.id());
    }
    return std::make_unique<CheckFormulaLevelsAnswer>(belowCritical, belowWarning);
}

Answer formulaCircuits(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const FW_Dispenser dispenser = dispenserOf(knowledge);
    QList<int> circuits;
    QList<int> positions;
    QList<double> quantities;
    const QVector<FormulaItem> items = positionsOf(askedFormula(command, dispenser), dispenser);
    for (const FormulaItem &item : items) {
        positions.append(item.id.toInt());
        circuits.append(std::as_const(dispenser).getCircuitByPosition(positions.constLast())->id());
        quantities.append(item.quantity);
    }
    return std::make_unique<GetFormulaCircuitsAnswer>(circuits, positions, quantities);
}

Answer lowLevelFormula(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const FW_Dispenser dispenser = dispenserOf(knowledge);
    const auto asked = command.parameters().value(0).value<Formula>();
    Formula inSteps;
    inSteps.setQuantityUnit(Formula::Steps);
    inSteps.setExecutionCriterion(asked.executionCriterion());
    const CircuitFormulaItemList items = circuitsOf(asked, dispenser);
    const QVector<FormulaItem> askedItems = positionsOf(asked, dispenser);
    for (int i = 0; i < items.size(); ++i) {
        const CircuitFormulaItem &item = items.at(i);
        bool isKnown = false;
        const long long steps = item.steps(&isKnown);
        if (!isKnown)
            refuse(InvalidRequest, "DE03119",
                   QStringLiteral("The calibration of circuit %1 tells no steps").arg(item.positionId()));
        // without a speed of its own an item leaves it to the machine here, too
        inSteps.addItem({QString::number(item.positionId()), double(steps), item.queueID(),
                         item.nozzleValveID(), askedItems.at(i).speed});
    }
    return std::make_unique<GetLowLevelFormulaAnswer>(inSteps);
}

Answer formulaExecution(const ProtoCommand & /*command*/, const DriverKnowledge &knowledge)
{
    FormulaProgress progress;
    if (const auto pour = knowledge.machine->runningPour()) {
        constexpr qint64 Longest = std::numeric_limits<int>::max();
        const FormulaChannel channel(pour->channel, pour->progress->percentage(),
                                     static_cast<int>(std::min(pour->progress->timeLeft(), Longest)),
                                     pour->formula);
        progress.setFormulaChannels({channel.clone()});
    }
    return std::make_unique<GetFormulaExecutionAnswer>(progress);
}

QString inFull(double quantity)
{
    return QString::number(quantity, 'g', QLocale::FloatingPointShortest);
}

/// Applies all levels, or refuses one and changes none.
void applyLevels(const SetLevelsCmd &command, FW_Dispenser &dispenser)
{
    const CanisterFormulaItemList items = canistersOf(command.formula(), dispenser);
    QList<double> levels;
    for (const CanisterFormulaItem &item : items) {
        levels.append(item.quantity() + (command.delta() ? item.currentQuantity() : 0));
        if (!(levels.constLast() >= 0 && levels.constLast() <= item.maximumQuantity()))
            refuse(InvalidRequest, "DE03118",
                   QStringLiteral("Canister %1 cannot hold %2; it holds 0 to %3")
                       .arg(QString::number(item.id()), inFull(levels.constLast()),
                            inFull(item.maximumQuantity())));
    }
    for (int i = 0; i < items.size(); ++i)
        dispenser.getCanisterById(items.at(i).id())->setCurrentQuantity(levels.at(i));
}

Answer setLevels(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const auto &levels = dynamic_cast<const SetLevelsCmd &>(command);
    QList<FW_CanisterRefill> refills;
    bool isChanged = false;
    knowledge.machine->change([&](FW_Dispenser &dispenser) {
        const bool fits = SetLevelsCmd::createPreviousQuantities(levels.formula(), dispenser, refills);
        applyLevels(levels, dispenser);
        isChanged = fits && SetLevelsCmd::updateCurrentQuantities(dispenser, refills);
    });
    if (isChanged && levels.refill()) {
        for (const FW_CanisterRefill &refill : refills)
            knowledge.machine->canisterFilled(refill.canisterID, refill.currentQuantity);
    }
    return std::make_unique<ConfProtoAnswer>();
}

const Query *queryOf(const QString &name)
{
    static constexpr std::array<Query, 22> queries{{
        {Catalogue::GET_CMD_STATUS, false, commandStatus},
        {Catalogue::GET_CMD_EST_EXEC_TIME, false, estimate},
        {Catalogue::CHECK_FORMULA_LEVELS, true, checkLevels},
        {Catalogue::GET_FORMULA_CIRCUITS, true, formulaCircuits},
        {Catalogue::GET_LOW_LEVEL_FORMULA, true, lowLevelFormula},
        {Catalogue::GET_FORMULA_EXECUTION, true, formulaExecution},
        {Catalogue::SET_LEVELS, true, setLevels},
        {Catalogue::LOGIN, false, logIn},
        {Catalogue::GET_KEY, false, exchangeKeys},
        {Catalogue::CERTIFY_SESSION, false, certifySession},
        {Catalogue::LOGOUT, false, logOut},
        {Catalogue::GET_ACTIVE_DISP, false, listMachines},
        {Catalogue::GET_DISP_LIST, false, listDispensers},
        {Catalogue::GET_MIXER_LIST, false, listMixers},
        {Catalogue::SET_ACTIVE_DISP, false, activateDispenser},
        {Catalogue::SET_ACTIVE_MACHINE, false, activateMachine},
        {Catalogue::GET_DISP_STATUS, true, dispenserStatus},
        {Catalogue::GET_MIXER_STATUS, true, mixerStatus},
        {Catalogue::GET_CANISTER_LIST, true, canisterList},
        {Catalogue::GET_CIRCUIT_LIST, true, circuitList},
        {Catalogue::GET_COLORANT_LIST, true, colorantList},
        {Catalogue::GET_DEVICE_LIST, true, deviceList},
    }};
    const CMD_STRUCT *row = Catalogue::row(name);
    const auto query = std::find_if(queries.begin(), queries.end(), [row](const Query &candidate) {
        return row && candidate.name == row->id;
    });
    return query == queries.end() ? nullptr : query;
}

} // namespace

void checkDriverQuery(const QString &name, const DrivenMachine *machine)
{
    const Query *query = queryOf(name);
    if (!query)
        refuse(NotCarriedOut, "DE03107",
               QStringLiteral("This driver does not yet carry out this command, which needs no firmware"));
    if (query->needsMachine && !machine)
        refuseWithoutMachine();
}

std::unique_ptr<ProtoAnswer> answerDriverQuery(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    return queryOf(command.command())->answer(command, knowledge);
}

} // namespace quv
