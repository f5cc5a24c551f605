// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/dispenserstatus.h"

#include "firmware/wirereply.h"

namespace quv {

std::vector<FirmwareCode> DispenserStatusPart::codes()
{
    return {{QStringLiteral("0006"), QStringLiteral("I3"),
             [this](int module, const QList<int> &) { return tell(module); }}};
}

void DispenserStatusPart::tellStatus(StatusWords &status, int /*module*/) const
{
    // A head cannot begin to dispense while something is in its way.
    const bool isReady = m_machine.mayBegin(Process::Pouring);
    status.words.set(8, 2, isReady);
    status.words.set(8, 3, isReady && m_machine.dispenser().hasMultipleHead());
}

FirmwareReply DispenserStatusPart::tell(int module) const
{
    constexpr int AtWork = 1;
    constexpr int LastCircuitBoard = 200; // behind it are the boards that no circuit has
    const QList<int> positions = m_machine.dispenser().getPositionsIDList(false);
    if (!positions.isEmpty() && module > 0 && module <= LastCircuitBoard && !positions.contains(module))
        return refused(Reason::WrongModule);
    const StatusWords status = m_machine.status(module);
    return replied(QList<int>{0, AtWork} + status.words.numbers(1, 5) +
                   QList<int>{status.position, status.zone} + status.words.numbers(8, 12));
}

} // namespace quv
