// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "formulasources_p.h"

#include <QuvFramework/circuitformulaitem.h>
#include <QuvFramework/formula.h>

#include <vector>

class FW_Dispenser;
class FW_DriverError;

// A formula against a machine: which circuits its items come down to, and what each of them is to pour.

namespace quv {

/** A pour of one circuit, all items that name it added up. */
struct Portion
{
    Source source;
    double quantity = 0;
    int queueID = 0;
    int nozzleValveID = 0;
    int speed = 0;
};

/** False and \a error filled when the formula does not fit the dispenser. */
bool portionsOf(const Formula &formula, const FW_Dispenser *dispenser, std::vector<Portion> &portions,
                FW_DriverError *error);

/** True for a weight or volume, which only a calibration turns into steps. */
inline bool isByCalibration(int unit)
{
    return unit != Formula::Steps && unit != Formula::Strokes;
}

CircuitFormulaItem::Result<long long> stepsOf(const Portion &portion, int unit);
CircuitFormulaItem::Result<int> strokesOf(const Portion &portion, int unit,
                                          const CircuitFormulaItem::Result<long long> &steps);
/** The weight or volume of a portion; false when its circuit cannot tell. */
bool weightOf(const Portion &portion, int unit, double &weight);

/** Fills \a error, when it is given. Always false. */
bool fail(FW_DriverError *error, const char *code, const QString &text);

} // namespace quv
