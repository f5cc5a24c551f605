// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/formula_p.h"

#include "base/protocommand.h"
#include "catalogue/protocommandlist.h"
#include "dispensing/tintcmd.h"
#include "processes/autocapcmd.h"

#include <algorithm>

namespace {

bool levelsAllow(const Formula &pour, const FW_Dispenser *dispenser, const quv::LevelsCodes &codes,
                 FW_DriverError *error)
{
    constexpr char checkFailed[] = "Formula interrupted because of errors in level check";
    int result = Formula::LevelsGood;
    if (!pour.checkDispenserLevels(dispenser, &result, true))
        return FW_DriverError::D_E(codes.failed, checkFailed, error);
    if (result == Formula::BelowReserve)
        return FW_DriverError::D_E(
            codes.belowReserve,
            "Formula interrupted because the current amount will would below the critical level", error);
    if (result == Formula::BelowZero)
        return FW_DriverError::D_E(
            codes.belowZero, "Formula interrupted because the current amount would go below zero", error);
    if (result > Formula::BelowZero)
        return FW_DriverError::D_E(codes.worse, checkFailed, error);
    return true;
}

bool hasGoodLevels(const Formula &formula, const FW_Dispenser *dispenser, const quv::LevelsCodes &codes,
                   FW_DriverError *error)
{
    if (!(formula.levelsManagementPolicy() & Formula::CheckLevels))
        return true;
    Formula pour = formula;
    return pour.convertToNegativeQuantities(dispenser, error) && levelsAllow(pour, dispenser, codes, error);
}

bool canPourItem(const CircuitFormulaItem &item, const quv::PourCodes &codes, FW_DriverError *error)
{
    bool ok = false;
    item.steps(&ok);
    if (!ok)
        return FW_DriverError::D_E(
            codes.steps, "Formula stopped because of errors in steps calculus due to bad calibration", error);
    item.speed(&ok);
    if (!ok)
        return FW_DriverError::D_E(
            codes.speed, "Formula stopped because of errors in speed calculus due to bad calibration", error);
    return true;
}

bool hasNozzleValve(const CircuitFormulaItem &item, int quantityUnit, const quv::PourCodes &codes,
                    FW_DriverError *error)
{
    // nothing but the formula itself can tell the valve of a number of steps
    if (quantityUnit == Formula::Steps && item.nozzleValveID() == 0)
        return FW_DriverError::D_E(codes.noNozzleValve, "Nozzle valve ID is missing in steps based formula",
                                   error);
    bool ok = false;
    item.nozzleValveID(&ok);
    return ok ||
           FW_DriverError::D_E(
               codes.nozzleValve,
               "Formula stopped because of errors in nozzle valve id calculus due to bad calibration", error);
}

/** The check, with the circuits that it worked out. */
bool canPourItems(const ProtoCommand &command, const Formula &formula, const quv::PourCodes &codes,
                  CircuitFormulaItemList &items, FW_DriverError *error)
{
    const FW_Dispenser *dispenser = quv::dispenserOf(command);
    if (!dispenser)
        return FW_DriverError::D_E(codes.dispenser, "Invalid dispenser data", error);
    if (formula.hasNegativeValues(dispenser))
        return FW_DriverError::D_E(codes.negative, "Bad values in formula! Values have to be positive",
                                   error);
    if (!hasGoodLevels(formula, dispenser, codes.levels, error))
        return false;
    if (!formula.getCircuitFormulaItems(items, dispenser, error))
        return false;
    if (items.isEmpty())
        return FW_DriverError::D_E(codes.empty, "Empty Formula found", error);
    const bool byNozzle = codes.noNozzleValve && dispenser->hasNozzleBasedDosing();
    return std::all_of(items.cbegin(), items.cend(), [&](const CircuitFormulaItem &item) {
        return canPourItem(item, codes, error) &&
               (!byNozzle || hasNozzleValve(item, formula.quantityUnit(), codes, error));
    });
}

/** The formula's own criterion, or what suits the queues. */
int criterionOf(const Formula &formula, const CircuitFormulaItemList &items, bool tint2)
{
    constexpr int queued = 2;
    if (formula.executionCriterion() != 0)
        return formula.executionCriterion();
    return tint2 || !items.hasNullQueueID() ? queued : 0;
}

} // namespace

namespace quv {

Q_LOGGING_CATEGORY(dispensingLog, "quvprotocol.dispensing")

const FW_Dispenser *dispenserOf(const ProtoCommand &command)
{
    return dynamic_cast<const FW_Dispenser *>(command.machine());
}

bool levelsSuffice(const Formula &pour, const FW_Dispenser *dispenser, const LevelsCodes &codes,
                   FW_DriverError &error)
{
    return levelsAllow(pour, dispenser, codes, &error);
}

bool canPour(const ProtoCommand &command, const Formula &formula, const PourCodes &codes,
             FW_DriverError &error)
{
    CircuitFormulaItemList items;
    return canPourItems(command, formula, codes, items, &error);
}

std::shared_ptr<const CheckedPour> checkedPour(const ProtoCommand &command, const Formula &formula,
                                               const FW_Dispenser *dispenser, const PourCodes &codes,
                                               const char *function)
{
    if (!dispenser)
        return nullptr;
    const auto checked = std::make_shared<CheckedPour>();
    // an error tells the time, which takes its own: only a formula that is refused gets one
    if (!canPourItems(command, formula, codes, checked->items, nullptr))
        require(function, [&](FW_DriverError &error) { return canPour(command, formula, codes, error); });
    checked->formula = formula;
    return checked;
}

bool pouredItems(const ProtoCommand &command, const Formula &formula,
                 const std::shared_ptr<const CheckedPour> &checked, CircuitFormulaItemList &items)
{
    const FW_Dispenser *dispenser = dispenserOf(command);
    if (!dispenser || !checked || checked->formula != formula)
        return dispenser && formula.getCircuitFormulaItems(items, dispenser, nullptr);
    items = checked->items;
    return true;
}

bool isTint2(const ProtoCommand &command)
{
    return command.command() == ProtoCommandList::cmdStr(ProtoCommandList::TINT2);
}

QList<int> pourParameters(const ProtoCommand &command, const Formula &formula,
                          const CircuitFormulaItemList &items, bool purge)
{
    const bool tint2 = isTint2(command);
    return TintCmd::getSerialParameters(items, criterionOf(formula, items, tint2), purge, tint2);
}

long long autocapTime(const FW_Dispenser *dispenser)
{
    return AutocapCmd().getCmdEstimatedExecutionTime(dispenser);
}

} // namespace quv
