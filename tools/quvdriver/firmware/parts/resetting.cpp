// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/resetting.h"

#include "firmware/circuitprocess.h"
#include "firmware/wirereply.h"

namespace quv {

std::vector<FirmwareCode> Resetting::codes()
{
    return {{QStringLiteral("0001"), {}, [this](int, const QList<int> &) { return begin(); }}};
}

FirmwareReply Resetting::begin()
{
    if (const auto obstacle = m_machine.obstacleByHand(Process::Resetting))
        return refused(*obstacle);
    // What writes a memory is not cut off, and the search is not begun anew while it goes on.
    if (const auto obstacle =
            m_machine.obstacleByWork({Process::Resetting, Process::Finalising, Process::UpdatingBoards}))
        return refused(*obstacle);
    for (const auto &part : m_machine.parts()) {
        part->stop();
        part->reset();
    }
    m_end = m_machine.endOf(ResetDuration);
    return begun();
}

void Resetting::tellStatus(StatusWords &status, int /*module*/) const
{
    status.words.set(1, 6, !atWork().isEmpty()); // a mixer calls it repositioning
}

/// All, for each looks for its origin.
std::vector<ActiveCircuit> Resetting::activeCircuits(int process) const
{
    std::vector<ActiveCircuit> circuits;
    if (process != static_cast<int>(CircuitProcess::Resetting) || atWork().isEmpty())
        return circuits;
    for (const int position : m_machine.dispenser().getPositionsIDList(true))
        circuits.push_back({position, LogicalState | PhysicalState});
    return circuits;
}

ProcessSet Resetting::atWork() const
{
    return m_machine.now() < m_end ? ProcessSet{Process::Resetting} : ProcessSet();
}

} // namespace quv
