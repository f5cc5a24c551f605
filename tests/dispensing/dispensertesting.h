// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "base/translatedtexts.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/purgeformula.h>

#include <QtCore/QStringList>

#include <initializer_list>

// What the tests of dispensing share: a small dispenser in plain numbers, what can be wrong with it, and formulas.

namespace testing_dispensing {

using namespace testing_base;

/**
 * A dispenser with four canisters, each feeding one circuit:
 *
 * | Position | Circuit | Canister | Colorant | Queue | Head |
 * |---|---|---|---|---|---|
 * | 1 | 11 | 101 | B | 31 | 1 |
 * | 2 | 12 | 102 | C | 32 | 1 |
 * | 3 | 13 | 103 | KX | 33 | 1 |
 * | 4 | 14 | 104 | W | 34 | 1 |
 *
 * Every canister holds 500 g of 1000 g, with the reserve at 50 g and the warning at 100 g. Every circuit is calibrated to 10
 * steps a gram at speed 40, and has 3000 steps a stroke, 200 steps a turn and 50 turns a minute at most. So a step takes
 * 7.5 ms by weight, and 6 ms in steps or strokes. One circuit pours at a time.
 */
FW_Dispenser dispenser();

// The same dispenser with one thing different.
FW_Dispenser withoutCalibration(int position); ///< neither steps nor speed of a weight
FW_Dispenser withoutSpeed(int position);       ///< calibrated, but at speed 0
FW_Dispenser withDisabledCircuit(int position);
FW_Dispenser withoutQueue(int position);
FW_Dispenser withContent(int position, double grams); ///< of the canister
/** Each circuit with two nozzle valves of its own, 10 and 20 times its position, the first in its calibration. */
FW_Dispenser nozzleBased();
/** A table with the positions in their order, 1000 ms from one to the next, its refill angle 90 degrees. */
FW_Dispenser withTurntable();
/** Positions 1 and 2 on head 1, 3 and 4 on head 2; both heads pour at once. */
FW_Dispenser dualHead();
FW_Dispenser gravimetric(int position); ///< this circuit dosed by a scale
FW_Dispenser withAutocap();
FW_Dispenser ofModel(const char *name);

/** One item of a formula, as it is written in a test. */
struct Pour
{
    const char *id = "";
    double quantity = 0;
    int queueID = 0;
    int nozzleValveID = 0;
};

Formula formulaOf(int type, int unit, std::initializer_list<Pour> items);
Formula grams(std::initializer_list<Pour> items);   ///< by circuit positions
Formula steps(std::initializer_list<Pour> items);   ///< by circuit positions
Formula strokes(std::initializer_list<Pour> items); ///< by circuit positions

/** The formula with a policy by which levels are checked before it is poured, as 2 and 3 are. */
Formula checkingLevels(Formula formula, int policy = 2);

/** Formula() as it travels. */
constexpr char emptyFormulaWritten[] =
    R"({"decimals": 3, "exec_criterion": 0, "formula_type": 1, "ids": [], "levels_policy": 0, )"
    R"("quantities": [], "quantity_unit": 3})";

inline QVariant variantOf(const Formula &held)
{
    return QVariant::fromValue(held);
}
inline QVariant variantOf(const PurgeFormula &held)
{
    return QVariant::fromValue(held);
}

// What a formula is refused with, by several commands with codes of their own.
constexpr char notPositive[] = "Bad values in formula! Values have to be positive";
constexpr char belowReserve[] =
    "Formula interrupted because the current amount will would below the critical level";
constexpr char belowZero[] = "Formula interrupted because the current amount would go below zero";
constexpr char badLevels[] = "Formula interrupted because of errors in level check";
constexpr char badSteps[] = "Formula stopped because of errors in steps calculus due to bad calibration";
constexpr char badSpeed[] = "Formula stopped because of errors in speed calculus due to bad calibration";

// What is meant for a formula and cannot be read as one.
Value unreadableFormula(); ///< the struct of a formula with a quantity that is a text
QVariant unreadableFormulaVariant();

/** While it lives, catches what is logged at debug level. */
class DebugLog
{
public:
    DebugLog();
    ~DebugLog();
    DebugLog(const DebugLog &) = delete;
    DebugLog &operator=(const DebugLog &) = delete;

    QStringList lines() const;
};

} // namespace testing_dispensing
