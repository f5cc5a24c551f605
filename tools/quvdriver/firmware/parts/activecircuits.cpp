// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/activecircuits.h"

#include "firmware/circuitprocess.h"
#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

#include <algorithm>
#include <utility>

namespace quv {

std::vector<FirmwareCode> ActiveCircuits::codes()
{
    return {
        {QStringLiteral("001A"), {}, [this](int, const QList<int> &numbers) { return tell(numbers); }, true}};
}

void ActiveCircuits::tellStatus(StatusWords &status, int module) const
{
    const auto isAsked = [module](const ActiveCircuit &circuit) {
        return module == 0 || circuit.position == module;
    };
    const auto critical = circuitsAtCriticalLevel();
    status.words.set(9, 6, std::any_of(critical.begin(), critical.end(), isAsked));
    const auto stalled = blockedCircuits(PhysicalState);
    status.words.set(10, 2, std::any_of(stalled.begin(), stalled.end(), isAsked));
}

std::vector<ActiveCircuit> ActiveCircuits::activeCircuits(int process) const
{
    constexpr int HighStall = 2;
    switch (static_cast<CircuitProcess>(process)) {
    case CircuitProcess::Blocked:
        return blockedCircuits(PhysicalState);
    case CircuitProcess::CriticalLevel:
        return circuitsAtCriticalLevel();
    case CircuitProcess::Stall:
        return blockedCircuits(HighStall);
    default:
        return {};
    }
}

FirmwareReply ActiveCircuits::tell(const QList<int> &parameters) const
{
    constexpr int ValuesOfPosition = 2;
    WireReader reader(parameters);
    const int process =
        reader.next(static_cast<int>(CircuitProcess::Dosing), static_cast<int>(CircuitProcess::Stall));
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    QList<int> told;
    for (const auto &part : m_machine.parts()) {
        for (const ActiveCircuit &circuit : part->activeCircuits(process))
            told << circuit.position << circuit.state;
    }
    return replied(QList<int>{static_cast<int>(told.size()) / ValuesOfPosition, ValuesOfPosition} + told);
}

std::vector<ActiveCircuit> ActiveCircuits::circuitsAtCriticalLevel() const
{
    std::vector<ActiveCircuit> circuits;
    for (const FW_Canister &canister : std::as_const(m_machine).dispenser().canisters()) {
        if (!m_machine.tellsCriticalLevel(canister))
            continue;
        for (const int position : canister.getCircuitPositions(true))
            circuits.push_back({position, PhysicalState});
    }
    return circuits;
}

std::vector<ActiveCircuit> ActiveCircuits::blockedCircuits(int state) const
{
    std::vector<ActiveCircuit> circuits;
    for (const int position : risingNumbers(m_machine.faults().blockedCircuits))
        circuits.push_back({position, state});
    return circuits;
}

} // namespace quv
