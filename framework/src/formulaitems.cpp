// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulaportions_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_turntable.h>

#include <algorithm>
#include <limits>

// The circuits of a formula, in the numbers that their motors understand.

namespace {

using quv::Portion;
using quv::Source;

CircuitFormulaItem::Result<int> speedOf(const Portion &portion, int unit)
{
    const FW_Circuit &circuit = *portion.source.circuit;
    if (portion.speed != 0)
        return {portion.speed, FW_DosingMotor::checkMaxSpeed(portion.speed)};
    if (!quv::isByCalibration(unit))
        return {circuit.maxSpeed(), circuit.maxSpeed() > 0};
    bool ok = false;
    const int speed = circuit.calibration().speed(portion.quantity, &ok);
    return {speed, ok};
}

CircuitFormulaItem::Result<int> nozzleValveOf(const Portion &portion, int unit)
{
    const FW_Circuit &circuit = *portion.source.circuit;
    bool ok = true;
    int valve = portion.nozzleValveID;
    if (valve == 0 && quv::isByCalibration(unit))
        valve = circuit.calibration().nozzleValveID(portion.quantity, &ok);
    return {valve, ok && (valve == 0 || circuit.nozzleValvesID().contains(valve))};
}

int contentInSteps(const Source &source)
{
    const long long steps = source.circuit->calibration().steps(source.canister->currentQuantity());
    return static_cast<int>(std::clamp(steps, 0LL, static_cast<long long>(std::numeric_limits<int>::max())));
}

void fill(CircuitFormulaItem &item, const Portion &portion, int unit)
{
    const auto steps = quv::stepsOf(portion, unit);
    item.setSteps(steps);
    item.setStrokes(quv::strokesOf(portion, unit, steps));
    item.setSpeed(speedOf(portion, unit));
    item.setNozzleValveID(nozzleValveOf(portion, unit));
    item.setQueueID(portion.queueID != 0 ? portion.queueID : portion.source.circuit->queueID());
    item.setCurrentCheckLevelSteps(contentInSteps(portion.source));
}

/** Nearest first, beginning with the circuit nearest to \a position. */
void sortAround(const FW_Turntable &table, int position, CircuitFormulaItemList &items)
{
    for (auto next = items.begin(); next != items.end(); ++next) {
        const auto nearest = std::min_element(
            next, items.end(), [&](const CircuitFormulaItem &left, const CircuitFormulaItem &right) {
                return table.distance(position, left.positionId()) <
                       table.distance(position, right.positionId());
            });
        std::rotate(next, nearest, nearest + 1);
        position = next->positionId();
    }
}

} // namespace

bool Formula::getCircuitFormulaItems(CircuitFormulaItemList &items, const FW_Dispenser *dispenser,
                                     FW_DriverError *error) const
{
    items.clear();
    std::vector<Portion> portions;
    if (!quv::portionsOf(*this, dispenser, portions, error))
        return false;
    items.setParallelism(dispenser->tintingParallelism());
    items.reserve(static_cast<int>(portions.size()));
    for (const Portion &portion : portions)
        items.append(CircuitFormulaItem(*portion.source.circuit));
    auto item = items.begin();
    for (const Portion &portion : portions)
        fill(*item++, portion, m_quantityUnit);
    return true;
}

bool Formula::getCircuitFormulaItems(CircuitFormulaItemList &items, const FW_Dispenser *dispenser,
                                     FW_DriverError &error) const
{
    return getCircuitFormulaItems(items, dispenser, &error);
}

bool Formula::getCircuitFormulaItems(CircuitFormulaItemList &items, int position,
                                     const FW_Dispenser *dispenser, FW_DriverError *error) const
{
    if (!getCircuitFormulaItems(items, dispenser, error))
        return false;
    if (const auto *table = dynamic_cast<const FW_Turntable *>(dispenser->getDevice(FW_Device::Turntable)))
        sortAround(*table, position, items);
    return true;
}

bool Formula::convertToCircuitPositions(Formula &converted, const FW_Dispenser *dispenser,
                                        FW_DriverError *error) const
{
    std::vector<Portion> portions;
    if (!quv::portionsOf(*this, dispenser, portions, error))
        return false;
    Formula formula = *this;
    formula.setFormulaType(CircuitPositions);
    formula.m_items.clear();
    for (const Portion &portion : portions)
        formula.addItem({quv::nameOf(portion.source.circuit->positionId()), portion.quantity, portion.queueID,
                         portion.nozzleValveID, portion.speed});
    converted = formula;
    return true;
}
